#include "core/PageNumberPair.h"

#include <limits>
#include <stdexcept>

namespace {

constexpr int kBackspace = 8;

bool isDigit(QChar character) {
    return character >= '0' && character <= '9';
}

} // namespace

std::int16_t pageNumberOf(const QString& text) {
    int number = 0;
    for (const QChar character : text.trimmed()) {
        if (!isDigit(character))
            break;
        number = number * 10 + character.digitValue();
        if (number > std::numeric_limits<std::int16_t>::max())
            throw std::overflow_error("Overflow");
    }
    return static_cast<std::int16_t>(number);
}

PageNumberFault checkPageNumbers(const QString& from, const QString& to) {
    if (from.isEmpty() || to.isEmpty())
        return PageNumberFault::IncompleteRange;
    if (pageNumberOf(to) < pageNumberOf(from))
        return PageNumberFault::IncorrectRange;
    if (pageNumberOf(from) == 0 || pageNumberOf(to) == 0)
        return PageNumberFault::PageRangeZero;
    return PageNumberFault::None;
}

QString refusalOf(PageNumberFault fault) {
    switch (fault) {
    case PageNumberFault::IncompleteRange:
        return "txtIncompleteRange";
    case PageNumberFault::IncorrectRange:
        return "txtIncorrectRange";
    case PageNumberFault::PageRangeZero:
        return "txtPageRangeZero";
    case PageNumberFault::None:
        break;
    }
    throw std::invalid_argument("there is nothing to refuse");
}

void filterPageNumberKey(int& keyCode) {
    if (keyCode != kBackspace && !isDigit(QChar(keyCode)))
        keyCode = 0;
}
