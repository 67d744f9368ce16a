#include "layout/tables/ColumnPieces.h"

#include "layout/support/Tally.h"

#include <charconv>
#include <string>

namespace orvane::layout {
namespace {

/// The number that the digits make, whatever stands between them.
long numberOfDigits(const std::string& text) {
    long number = 0;
    for (const char c : text)
        if (c >= '0' && c <= '9' && number < std::numeric_limits<long>::max() / 100)
            number = 10 * number + (c - '0');
    return number;
}

/// Where a number's point stands, or where it would: behind the number.
double pointOf(const TextPiece& piece, const std::vector<Line>& lines) {
    const std::string text = textOf(piece, lines);
    const std::size_t point = text.find_last_of(",.");
    const double before = static_cast<double>(point == std::string::npos ? text.size() : point);
    return piece.box.left + piece.box.width() * before / static_cast<double>(text.size());
}

} // namespace

void ColumnPieces::add(const TextPiece& piece) {
    pieces.push_back(&piece);
    left = std::min(left, piece.box.left);
    right = std::max(right, piece.box.right);
}

double ColumnPieces::wordsPerPiece() const {
    double words = 0;
    for (const TextPiece* piece : pieces)
        words += static_cast<double>(piece->wordCount());
    return pieces.empty() ? 0 : words / static_cast<double>(pieces.size());
}

bool areOthersFew(std::span<const ColumnPieces> columns, const TableParameters::Tables& parameters) {
    const double fewest = parameters.filledRowShare * static_cast<double>(columns[1].pieces.size());
    return std::all_of(columns.begin() + 2, columns.end(),
                       [&](const ColumnPieces& column) { return static_cast<double>(column.pieces.size()) < fewest; });
}

bool isFull(const ColumnPieces& column, const TableParameters::Tables& parameters) {
    return column.share([&](const TextPiece* piece) {
        return piece->box.width() > parameters.proseFill * (column.right - column.left);
    }) > parameters.proseFullShare;
}

bool isProse(const ColumnPieces& column, const TableParameters::Tables& parameters) {
    return static_cast<int>(column.pieces.size()) >= parameters.proseLines &&
           column.wordsPerPiece() > parameters.proseWords && isFull(column, parameters);
}

bool holdsEntries(const ColumnPieces& column, const std::vector<Line>& lines,
                  const TableParameters::Tables& parameters) {
    return column.share([&](const TextPiece* piece) { return beginsLikeSentence(*piece, lines); }) >=
           parameters.numberedShare;
}

bool isOfNumbers(const ColumnPieces& column, const std::vector<Line>& lines,
                 const TableParameters::Tables& parameters) {
    return column.share([&](const TextPiece* piece) { return isNumeric(*piece, lines); }) > parameters.numericShare;
}

bool isRising(const ColumnPieces& column, const std::vector<Line>& lines) {
    long last = 0;
    for (const TextPiece* piece : column.pieces) {
        const std::string text = textOf(*piece, lines);
        long number = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
        if (error != std::errc{} || end != text.data() + text.size() || number < last)
            return false;
        last = number;
    }
    return true;
}

bool isFalling(const ColumnPieces& column, const std::vector<Line>& lines, const TableParameters::Tables& parameters) {
    long last = 0;
    int falls = 0;
    int numbers = 0;
    for (const TextPiece* piece : column.pieces) {
        if (!isNumeric(*piece, lines))
            continue;
        const long number = numberOfDigits(textOf(*piece, lines));
        ++numbers;
        falls += number < last;
        last = number;
    }
    return numbers >= parameters.fewestPartedRows && falls >= parameters.fallingShare * numbers;
}

double brokenNumberShare(const ColumnPieces& column, const std::vector<Line>& lines) {
    return column.share(
        [&](const TextPiece* piece) { return textOf(*piece, lines).find_first_of(",.") != std::string::npos; });
}

double keptShare(const ColumnPieces& column, const std::vector<Line>& lines,
                 const TableParameters::Tables& parameters) {
    std::vector<double> lefts, middles, rights, points;
    for (const TextPiece* piece : column.pieces) {
        lefts.push_back(piece->box.left);
        middles.push_back(piece->box.centerX());
        rights.push_back(piece->box.right);
        if (isNumeric(*piece, lines))
            points.push_back(pointOf(*piece, lines));
    }
    const double tolerance = parameters.columnEdge * column.pieces.front()->fontSize;
    std::size_t most = 0;
    for (const std::vector<double>& places : {lefts, middles, rights, points})
        most = std::max(most, densestRange(places, tolerance).count);
    return static_cast<double>(most) / std::max(1.0, static_cast<double>(lefts.size()));
}

} // namespace orvane::layout
