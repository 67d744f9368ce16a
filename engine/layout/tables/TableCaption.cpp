#include "layout/tables/TableCaption.h"

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

} // namespace

bool isTableCaption(const PieceRow& row, const std::vector<Line>& lines) {
    const TextPiece& piece = row.pieces.front();
    const Line& line = lines[piece.line];
    if (piece.firstWord + 1 >= line.words.size())
        return false;
    const auto textAt = [&](std::size_t word) { return textOf(pieceOf(line, piece.line, word, word + 1), lines); };
    // A head may name tables in one of its cells.
    return row.pieces.size() <= 2 && isWordForTable(textAt(piece.firstWord)) && isNumber(textAt(piece.firstWord + 1));
}

} // namespace orvane::layout
