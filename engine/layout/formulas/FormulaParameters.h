#pragma once

#include <cstddef>

namespace orvane::layout {

/// Thresholds of the folder `formulas`: what is a formula, and how it is built. A field says its unit, its meaning and
/// what taught its value. Lengths are shares of the font size unless said otherwise.
struct FormulaParameters {
    /// FormulaPieces and FormulaFinder: where formulas are.
    struct Formulas {
        std::size_t mostWords = 2;      ///< words of a language among the signs of a formula: "if"
        std::size_t mostWordsAlone = 3; ///< of them beside a formula: "for all i"
        double wordShare = 0.5;         ///< of a piece's characters; with more in such words it is text
        std::size_t longestLoose = 40;  ///< characters of what may belong to a formula without looking like one
        double gap = 2.2;               ///< parts of one formula stand no farther apart; two quads are set around words
        double shared = 0.5;            ///< of the lower one's height; what shares as much stands in one row
        double ruleReach = 0.9;         ///< between a fraction's rule and what is above and below it
        double limitReach = 0.6;        ///< between an operator and its limits
        double limitSize = 0.9;         ///< font size of limits against that of their operator
        double fenceGap = 0.3;          ///< between the pieces that a bracket is put together from
        double longestBar = 4;          ///< of a rule over letters, with nothing above
        double proseGap = 1;            ///< text so near to a formula on its row is the text around it
        double proseShared = 0.3;       ///< of the text's height; for being on its row
        double tall = 1.7;              ///< height of signs that reach over several lines
        double level = 0.3;             ///< baselines farther apart are two
        double indent = 0.8;            ///< by which a formula of one line is set off the text
        double neighbourReach = 4;      ///< in which the lines above and below are looked for
        std::size_t fewestSigns = 3;    ///< of a formula of one line
        double rowReach = 8;            ///< in which nothing else stands before a formula of one line
        double figureGap = 2;           ///< between a figure and a formula; what is nearer is a label of it
        double paintedMargin = 1;       ///< points, around the ink of a formula that is painted
    } formulas;

    /// FormulaParser: what belongs to what.
    struct FormulaGrammar {
        double sameBaseline = 0.12;  ///< letters that stand on one line
        double sameAxis = 0.4;       ///< fractions, sums and large brackets stand about the line's axis
        double axisHeight = 0.25;    ///< of the axis above the baseline; rules of fractions lie on it
        double mainSize = 0.8;       ///< of the largest size; smaller signs are scripts
        double leastRise = 0.1;      ///< of a superscript; closer to the line it is uncertain
        double letterGap = 0.15;     ///< between letters of one word
        double wordGap = 0.2;        ///< between two words
        double quadGap = 0.9;        ///< that is kept as a blank
        double widestGap = 4;        ///< between what is read as one row
        double deepestOverlap = 0.4; ///< of neighbours in a row; more is something not understood
        double barSlack = 0.15;      ///< by which parts of a fraction may reach beyond its rule
        double radicalJoint = 0.3;   ///< between a radical sign and its rule
        double barReach = 0.6;       ///< between a rule and the letters under it, where nothing is above
        double tallFence = 1.1;      ///< height of brackets that grow with what they enclose
        double limitGap = 0.6;       ///< between an operator and its limits
        double limitStep = 0.4;      ///< between the signs of a limit
        int deepest = 12;            ///< parts within parts; more is damage
    } formulaGrammar;
};

} // namespace orvane::layout
