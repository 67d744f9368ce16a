#include "pictures/PictureNames.h"

#include <algorithm>
#include <cctype>
#include <system_error>

#include <fmt/format.h>

namespace orvane::pictures {
namespace {

constexpr int kLeastPageDigits = 3;
constexpr int kLeastNumberDigits = 2;

int digitsOf(int number) {
    return static_cast<int>(std::to_string(number).size());
}

bool isNameOf(const std::string& prefix, const std::string& name) {
    const std::size_t length = prefix.size();
    return name.size() > length + 2 && name.compare(0, length, prefix) == 0 && name.compare(length, 2, "-p") == 0 &&
           std::isdigit(static_cast<unsigned char>(name[length + 2])) != 0;
}

bool isUsed(const std::filesystem::path& folder, const std::string& prefix) {
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error))
        if (isNameOf(prefix, entry->path().filename().string()))
            return true;
    return false;
}

} // namespace

PictureNames::PictureNames(const std::filesystem::path& folder, std::string stem, int pageCount)
    : m_prefix(stem)
    , m_pageDigits(std::max(kLeastPageDigits, digitsOf(pageCount))) {
    for (int run = 2; isUsed(folder, m_prefix); ++run)
        m_prefix = fmt::format("{}-{}", stem, run);
}

std::string PictureNames::name(int page, int number, int count) const {
    return fmt::format("{}-p{:0{}}-{:0{}}", m_prefix, page, m_pageDigits, number,
                       std::max(kLeastNumberDigits, digitsOf(count)));
}

} // namespace orvane::pictures
