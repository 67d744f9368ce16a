#pragma once

#include "layout/formulas/FormulaClusters.h"
#include "layout/formulas/FormulaParameters.h"
#include "layout/text/PageText.h"

#include <span>
#include <vector>

namespace orvane::layout {

/// Brings signs that stand above and below a line of text (the parts of a fraction, the limits of a sum) into that
/// line, together with the words of it that belong to the same formula. Such a formula has structure where it is
/// certain, else its text stands there in one line.
class InlineFormulas {
public:
    /// `isTaken` tells for each piece whether a formula has it; pieces that are taken here are marked.
    InlineFormulas(const pdf::PageContent& page, PageText& text, std::span<const FormulaPiece> pieces,
                   std::vector<bool>& isTaken, const FormulaParameters& parameters);

    /// Puts clusters that stand in text where they belong. Those of which that is not clear stay as they are.
    void place(const std::vector<FormulaCluster>& clusters);

private:
    /// Signs off the line, and the words of the line from `first` to before `last` that go with them.
    struct Group {
        std::vector<std::size_t> pieces;
        std::vector<std::size_t> rules;
        Rect ink;
        std::size_t first = 0;
        std::size_t last = 0;
    };

    std::optional<std::size_t> hostOf(const FormulaCluster& cluster) const;
    std::optional<Group> groupIn(const FormulaCluster& cluster, std::size_t host) const;
    bool reachesInto(const Word& word, const Rect& ink, double size) const;
    static void join(std::vector<Group>& groups, Group group);
    void fill(std::size_t host, const std::vector<Group>& groups);
    Formula formulaOf(std::size_t host, const Line& line, const Group& group) const;
    std::vector<std::size_t> rulesOf(const Rect& box, const Group& group) const;
    std::vector<std::size_t> glyphsOf(std::size_t host, const Line& line, const Group& group) const;

    const pdf::PageContent& m_page;
    PageText& m_text;
    std::span<const FormulaPiece> m_pieces;
    std::vector<bool>& m_isTaken;
    const FormulaParameters& m_parameters;
};

} // namespace orvane::layout
