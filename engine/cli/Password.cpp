#include "cli/Password.h"

#include "cli/UsageError.h"

#include <cstdlib>
#include <fstream>

namespace orvane::cli {

std::string findPassword(const std::string& file) {
    if (file.empty()) {
        const char* variable = std::getenv("ORVANE_PASSWORD");
        return variable == nullptr ? "" : variable;
    }
    std::ifstream in(file, std::ios::binary);
    std::string line;
    if (!in || (!std::getline(in, line) && !in.eof()))
        throw UsageError("the password file " + file + " cannot be read");
    if (!line.empty() && line.back() == '\r')
        line.pop_back();
    return line;
}

} // namespace orvane::cli
