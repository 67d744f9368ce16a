#include "layout/structure/PrintedAddress.h"

#include "base/Utf8.h"

#include <algorithm>
#include <array>
#include <optional>

namespace orvane::layout {
namespace {

struct Scheme {
    std::u32string_view text; ///< with which an address starts
    std::string_view prefix;  ///< what its target has in front of that
};
constexpr std::array kSchemes = {Scheme{U"https://", ""}, Scheme{U"http://", ""}, Scheme{U"ftp://", ""},
                                 Scheme{U"mailto:", ""}, Scheme{U"www.", "http://"}};

constexpr std::u32string_view kNeverInAddresses = U"\"<>\\^`{|}[]";
constexpr std::u32string_view kNeverAtEnd = U".,;:!?'*";
constexpr std::u32string_view kNeverLast = U"-_=&?%#+~"; ///< of a whole address: what ends a line with one goes on
constexpr std::u32string_view kWithinPaths = U"/?&=#%_";

bool isOneOf(char32_t c, std::u32string_view characters) {
    return characters.find(c) != std::u32string_view::npos;
}
bool isLetter(char32_t c) {
    return (c >= U'a' && c <= U'z') || (c >= U'A' && c <= U'Z');
}
bool isLetterOrDigit(char32_t c) {
    return isLetter(c) || (c >= U'0' && c <= U'9');
}
bool isOfAddress(char32_t c) {
    return c > U' ' && c < 0x7F && !isOneOf(c, kNeverInAddresses);
}
bool isOfMailName(char32_t c) {
    return isLetterOrDigit(c) || isOneOf(c, U"._%+-");
}
bool isOfHost(char32_t c) {
    return isLetterOrDigit(c) || c == U'.' || c == U'-';
}

bool startsWith(std::u32string_view text, std::u32string_view start) {
    return text.size() >= start.size() &&
           std::equal(start.begin(), start.end(), text.begin(),
                      [](char32_t a, char32_t b) { return a == (b >= U'A' && b <= U'Z' ? b + (U'a' - U'A') : b); });
}

const Scheme* schemeAt(std::u32string_view text) {
    const auto found = std::find_if(kSchemes.begin(), kSchemes.end(),
                                    [&](const Scheme& scheme) { return startsWith(text, scheme.text); });
    return found == kSchemes.end() ? nullptr : &*found;
}

/// The part of the text from its start for which the predicate holds.
template<typename Predicate>
std::u32string_view leading(std::u32string_view text, const Predicate& holds) {
    return text.substr(0, static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), holds) - text.begin()));
}

/// At least two names with a full stop between them, "www." aside.
bool isHost(std::u32string_view host) {
    if (startsWith(host, U"www."))
        host.remove_prefix(4);
    const std::size_t stop = host.rfind(U'.');
    return stop != std::u32string_view::npos && stop > 0 && host.size() - stop > 2 && isLetterOrDigit(host.front()) &&
           isLetterOrDigit(host[stop + 1]) && isLetterOrDigit(host.back()) &&
           host.find(U"..") == std::u32string_view::npos;
}

/// Signs of a path or a file's name between letters: "b/c", "index.html".
bool looksLikePath(std::u32string_view text) {
    for (std::size_t i = 1; i + 1 < text.size(); ++i)
        if ((isOneOf(text[i], kWithinPaths) || text[i] == U'.') && isLetterOrDigit(text[i + 1]))
            return true;
    return false;
}

/// Whether an address that reaches the end of a line goes on with the next.
bool goesOn(std::u32string_view address, std::u32string_view nextLine) {
    const std::u32string_view next = leading(nextLine, isOfAddress);
    if (next.empty() || schemeAt(next))
        return false;
    if (isOneOf(address.back(), kNeverLast))
        return isLetterOrDigit(next.front()) || isOneOf(next.front(), kWithinPaths);
    if (address.back() == U'/')
        return isLetterOrDigit(next.front()) && looksLikePath(next);
    const bool startsWithin = isOneOf(next.front(), kWithinPaths) || next.front() == U'.';
    return startsWithin && next.size() > 1 && isLetterOrDigit(next[1]);
}

/// Whether an opening bracket of the address waits for the closing one at its end.
bool isBracketOpen(std::u32string_view address) {
    return std::count(address.begin(), address.end(), U'(') >= std::count(address.begin(), address.end(), U')');
}

std::u32string_view withoutStops(std::u32string_view address) {
    while (!address.empty() && (isOneOf(address.back(), kNeverAtEnd) || address.back() == U'\n' ||
                                (address.back() == U')' && !isBracketOpen(address))))
        address.remove_suffix(1);
    return address;
}

std::string uriOf(std::string_view prefix, std::u32string_view text) {
    std::u32string joined(text);
    std::erase(joined, U'\n');
    return std::string(prefix) + utf8FromUtf32(joined);
}

class AddressReader {
public:
    explicit AddressReader(std::u32string_view text)
        : m_text(text) {}

    std::vector<PrintedAddress> read() {
        std::vector<PrintedAddress> addresses;
        std::size_t from = 0; // behind the address before
        for (std::size_t i = 0; i < m_text.size(); ++i) {
            const auto address = m_text[i] == U'@' ? mailAddressAround(i, from) : webAddressAt(i);
            if (!address)
                continue;
            addresses.push_back(*address);
            from = address->to;
            i = from - 1;
        }
        return addresses;
    }

private:
    std::optional<PrintedAddress> webAddressAt(std::size_t from) const {
        if (from > 0 && isLetterOrDigit(m_text[from - 1]))
            return std::nullopt;
        const Scheme* scheme = schemeAt(m_text.substr(from));
        if (!scheme)
            return std::nullopt;
        std::size_t to = from + leading(m_text.substr(from), isOfAddress).size();
        while (to < m_text.size() && m_text[to] == U'\n' &&
               goesOn(m_text.substr(from, to - from), m_text.substr(to + 1)))
            to += 1 + leading(m_text.substr(to + 1), isOfAddress).size();
        const std::u32string_view address = withoutStops(m_text.substr(from, to - from));
        if (!leadsSomewhere(*scheme, address))
            return std::nullopt;
        return PrintedAddress{from, from + address.size(), uriOf(scheme->prefix, address), scheme->prefix.empty()};
    }

    static bool leadsSomewhere(const Scheme& scheme, std::u32string_view address) {
        if (address.size() <= scheme.text.size())
            return false;
        const std::u32string_view rest = scheme.prefix.empty() ? address.substr(scheme.text.size()) : address;
        if (scheme.text == U"mailto:")
            return rest.find(U'@') != std::u32string_view::npos;
        return isHost(withoutStops(leading(rest, isOfHost)));
    }

    std::optional<PrintedAddress> mailAddressAround(std::size_t at, std::size_t earliest) const {
        std::size_t from = at;
        while (from > earliest && isOfMailName(m_text[from - 1]))
            --from;
        while (from < at && !isLetterOrDigit(m_text[from]))
            ++from;
        std::u32string_view host = leading(m_text.substr(at + 1), isOfHost);
        while (!host.empty() && !isLetterOrDigit(host.back()))
            host.remove_suffix(1);
        if (from == at || !isHost(host) || !isLetter(host.back()))
            return std::nullopt;
        const std::size_t to = at + 1 + host.size();
        return PrintedAddress{from, to, uriOf("mailto:", m_text.substr(from, to - from)), false};
    }

    std::u32string_view m_text;
};

} // namespace

std::vector<PrintedAddress> findPrintedAddresses(std::u32string_view text) {
    return AddressReader(text).read();
}

} // namespace orvane::layout
