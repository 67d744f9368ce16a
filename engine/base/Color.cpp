#include "base/Color.h"

#include <fmt/format.h>

namespace orvane {

std::string toHex(Color color) { return fmt::format("{:02X}{:02X}{:02X}", color.red, color.green, color.blue); }

} // namespace orvane
