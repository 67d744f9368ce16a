#include "pdf/SurplusRestores.h"

#include "pdf/ContentScanner.h"

namespace orvane::pdf {

std::string withoutSurplusRestores(std::string_view content) {
    std::string result(content);
    ContentScanner scanner(content);
    int depth = 0;
    for (std::string_view token = scanner.next(); !token.empty(); token = scanner.next()) {
        if (token == "q")
            ++depth;
        else if (token == "Q" && --depth < 0) {
            result[static_cast<std::size_t>(token.data() - content.data())] = ' ';
            depth = 0;
        }
    }
    return result;
}

bool isSurplusRestore(std::string_view complaint) {
    return complaint.starts_with("Restoring state when no valid states");
}

} // namespace orvane::pdf
