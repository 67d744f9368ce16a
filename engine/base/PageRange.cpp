#include "base/PageRange.h"

#include "base/Failure.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <set>

#include <fmt/format.h>

namespace orvane {
namespace {

std::string_view trimmed(std::string_view text) {
    const auto isBlank = [](char c) { return c == ' ' || c == '\t'; };
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

/// A page number of any length; what does not fit an int is beyond every document.
int parsePageNumber(std::string_view text, std::string_view range) {
    text = trimmed(text);
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isWhole = end == text.data() + text.size();
    if (error == std::errc::result_out_of_range && isWhole && text.front() != '-')
        return std::numeric_limits<int>::max();
    if (error != std::errc{} || !isWhole || number < 1)
        throw Failure(FailureCode::InvalidRequest, fmt::format("\"{}\" is not a page range (write 1-3,7)", range));
    return number;
}

struct PageInterval {
    int first;
    int last;
};

PageInterval parseItem(std::string_view item, std::string_view range) {
    const std::size_t dash = item.find('-');
    if (dash == std::string_view::npos) {
        const int page = parsePageNumber(item, range);
        return {page, page};
    }
    const int a = parsePageNumber(item.substr(0, dash), range);
    const int b = parsePageNumber(item.substr(dash + 1), range);
    return {std::min(a, b), std::max(a, b)};
}

PageSelection allPages(int pageCount) {
    PageSelection selection;
    for (int page = 1; page <= pageCount; ++page)
        selection.pages.push_back(page);
    return selection;
}

} // namespace

PageSelection selectPages(std::string_view range, int pageCount) {
    const std::string_view text = trimmed(range);
    if (text.empty())
        return allPages(pageCount);

    std::set<int> pages;
    PageSelection selection;
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t comma = std::min(text.find(',', start), text.size());
        const PageInterval interval = parseItem(text.substr(start, comma - start), range);
        selection.wasCut |= interval.last > pageCount;
        for (int page = interval.first; page <= std::min(interval.last, pageCount); ++page)
            pages.insert(page);
        start = comma + 1;
    }
    if (pages.empty())
        throw Failure(FailureCode::NoPageInRange,
                      fmt::format("the page range \"{}\" names no page of this document, which has {}", range, pageCount));
    selection.pages.assign(pages.begin(), pages.end());
    return selection;
}

} // namespace orvane
