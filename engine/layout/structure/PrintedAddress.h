#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::layout {

/// A web or mail address that stands in a text.
struct PrintedAddress {
    std::size_t from = 0;    ///< characters of the text
    std::size_t to = 0;      ///< behind its last one
    std::string uri;         ///< what it leads to: with a scheme, without the ends of lines within
    bool showsScheme = true; ///< "https://" and the like stand in the text
};

/// The addresses in a text, in their order: "https://a.example/b", "www.a.example", "name@a.example", without brackets
/// and full stops around them. '\n' is the end of a line; addresses go on behind it where what stands there can be
/// nothing else.
std::vector<PrintedAddress> findPrintedAddresses(std::u32string_view text);

} // namespace orvane::layout
