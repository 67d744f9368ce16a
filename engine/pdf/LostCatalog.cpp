#include "pdf/LostCatalog.h"

#include <algorithm>
#include <cctype>
#include <string_view>
#include <vector>

#include <fmt/format.h>

namespace orvane::pdf {
namespace {

bool isDigit(char c) {
    return std::isdigit(static_cast<unsigned char>(c)) != 0;
}
bool isSpace(char c) {
    return std::isspace(static_cast<unsigned char>(c)) != 0 || c == '\0';
}

/// Where in the file an object's dictionary stands.
struct FoundObject {
    int number = 0;
    std::string_view dictionary;
};

/// The number that ends before `end` of the file, passing over blanks; moves `end` to its start. -1 for none.
int numberBefore(std::string_view file, std::size_t& end) {
    while (end > 0 && isSpace(file[end - 1]))
        --end;
    const std::size_t last = end;
    while (end > 0 && isDigit(file[end - 1]) && last - end < 9)
        --end;
    return end == last ? -1 : std::stoi(std::string(file.substr(end, last - end)));
}

/// Every "n g obj << ... " of the file in order; streams are searched too, which finds nothing but costs nothing.
std::vector<FoundObject> findDictionaries(std::string_view file) {
    std::vector<FoundObject> objects;
    for (std::size_t at = file.find("obj"); at != std::string_view::npos; at = file.find("obj", at + 3)) {
        std::size_t before = at;
        const int generation = numberBefore(file, before);
        const int number = generation < 0 ? -1 : numberBefore(file, before);
        std::size_t start = at + 3;
        while (start < file.size() && isSpace(file[start]))
            ++start;
        if (number <= 0 || file.substr(start, 2) != "<<")
            continue;
        const std::size_t end = std::min(file.find("endobj", start), file.find("stream", start));
        objects.push_back({number, file.substr(start, std::min(end, file.size()) - start)});
    }
    return objects;
}

/// Whether the dictionary says "/Type /`type`".
bool isOfType(std::string_view dictionary, std::string_view type) {
    for (std::size_t at = dictionary.find("/Type"); at != std::string_view::npos;
         at = dictionary.find("/Type", at + 5)) {
        std::size_t value = at + 5;
        while (value < dictionary.size() && isSpace(dictionary[value]))
            ++value;
        const std::size_t end = value + 1 + type.size();
        const bool isWholeName = end >= dictionary.size() || !std::isalnum(static_cast<unsigned char>(dictionary[end]));
        if (dictionary.substr(value, 1) == "/" && dictionary.substr(value + 1, type.size()) == type && isWholeName)
            return true;
    }
    return false;
}

} // namespace

std::optional<std::string> withRebuiltCatalog(std::string file) {
    const std::vector<FoundObject> objects = findDictionaries(file);
    int catalog = 0;
    int highest = 0;
    bool hasPageTree = false;
    std::vector<int> pages;
    for (const FoundObject& object : objects) {
        highest = std::max(highest, object.number);
        if (isOfType(object.dictionary, "Catalog"))
            catalog = object.number;
        hasPageTree = hasPageTree || isOfType(object.dictionary, "Pages");
        // An object that was written again replaces its older form.
        if (isOfType(object.dictionary, "Page") && std::find(pages.begin(), pages.end(), object.number) == pages.end())
            pages.push_back(object.number);
    }
    if (pages.empty())
        return std::nullopt;
    // What the cut left of the last object must not swallow what is added.
    file += "\nendstream\nendobj\n";
    if (catalog == 0 || !hasPageTree) {
        catalog = highest + 1;
        std::string kids;
        for (const int page : pages)
            kids += fmt::format("{} 0 R ", page);
        file += fmt::format("{} 0 obj\n<< /Type /Catalog /Pages {} 0 R >>\nendobj\n", catalog, catalog + 1);
        file +=
            fmt::format("{} 0 obj\n<< /Type /Pages /Count {} /Kids [{}] >>\nendobj\n", catalog + 1, pages.size(), kids);
        highest += 2;
    }
    file += fmt::format("trailer\n<< /Size {} /Root {} 0 R >>\nstartxref\n0\n%%EOF\n", highest + 1, catalog);
    return file;
}

} // namespace orvane::pdf
