#include "layout/tables/TableCaption.h"

#include "layout/text/LabelText.h"
#include "layout/text/LineText.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace orvane::layout {
namespace {

/// How the word for a table begins: Table, Tabelle, Tableau, Tabla, Tabella, Tabela, Tabel, Tabulka, Tabula, Taulukko,
/// Cuadro, Quadro and the Greek and Cyrillic ones.
bool isWordForTable(std::string_view word) {
    static constexpr std::array<std::string_view, 12> kBeginnings{
        "Tab", "TAB", "Taulu", "TAULU", "Cuadro", "CUADRO", "Quadro", "QUADRO", "Πίνακ", "ΠΙΝΑΚ", "Табл", "ТАБЛ"};
    return std::ranges::any_of(kBeginnings, [&](std::string_view beginning) { return word.starts_with(beginning); });
}

/// "12", "3.1", "A-4:", "IV.": a digit, or nothing but the letters of a Roman number.
bool isNumber(std::string_view word) {
    const auto isDigit = [](char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; };
    if (std::ranges::any_of(word, isDigit))
        return word.size() <= 10;
    const std::string_view letters = word.substr(0, word.find_last_not_of(".:") + 1);
    return !letters.empty() && letters.find_first_not_of("IVXL") == std::string_view::npos;
}

/// Whether the line names a table from that word on.
bool namesTable(const Line& line, std::size_t word) {
    return word + 1 < line.words.size() && isWordForTable(textOf(line.words[word])) &&
           isNumber(textOf(line.words[word + 1]));
}

/// Whether what stands behind the number is the table's title, and no sentence.
bool isTitled(const Line& line) {
    if (line.words.size() == 2)
        return true;
    const char end = textOf(line.words[1]).back();
    const std::string next = textOf(line.words[2]);
    return end == '.' || end == ':' || next == ":" || isDash(next);
}

} // namespace

bool isTableCaption(const PieceRow& row, const std::vector<Line>& lines) {
    const TextPiece& piece = row.pieces.front();
    // A head may name tables in one of its cells.
    return row.pieces.size() <= 2 && namesTable(lines[piece.line], piece.firstWord);
}

bool hasTableCaption(const Rect& box, const std::vector<Line>& lines, const TableParameters::Tables& parameters) {
    return std::any_of(lines.begin(), lines.end(), [&](const Line& line) {
        const double gap = std::max(box.top - line.box.bottom, line.box.top - box.bottom);
        return gap > -parameters.rowSnap * line.fontSize && gap <= parameters.captionReach * line.fontSize &&
               overlap(line.box.left, line.box.right, box.left, box.right) > 0 && namesTable(line, 0) && isTitled(line);
    });
}

} // namespace orvane::layout
