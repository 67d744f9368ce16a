#pragma once

#include "layout/formulas/FormulaItem.h"

#include <optional>
#include <vector>

namespace orvane::layout {

/// Items in a row, and the line they stand on.
struct FormulaRow {
    document::FormulaPart content;
    Rect ink;
    double baseline = 0;
    double size = 0;
    FormulaLine line = FormulaLine::Baseline;
};

/// Puts items without rules, limits and large brackets in a row: what is smaller and off the line is a script of what
/// stands before it, and what follows a sum is what it works on. Scripts are rows of their own, which `readScript`
/// reads. Nothing where something is neither on the line nor a script.
class FormulaRowMaker {
public:
    FormulaRowMaker(std::vector<FormulaItem> items, const FormulaParameters::FormulaGrammar& grammar);

    template<typename ReadScript>
    std::optional<FormulaRow> make(ReadScript readScript) {
        if (!findLine() || !partScripts())
            return std::nullopt;
        for (Place& place : m_places)
            for (Script* script : {&place.below, &place.above}) {
                if (script->items.empty())
                    continue;
                std::optional<FormulaRow> row = readScript(std::move(script->items));
                if (!row)
                    return std::nullopt;
                script->content = std::move(row->content);
            }
        return finish();
    }

private:
    struct Script {
        std::vector<FormulaItem> items;
        document::FormulaPart content; ///< an empty row without items
    };
    /// An item on the line with its scripts.
    struct Place {
        FormulaItem item;
        Script below;
        Script above;
        double right = 0; ///< of all of it
    };
    enum class Height { OnLine, Above, Below, Unclear };

    bool findLine();
    bool partScripts();
    bool addScript(FormulaItem item, Height height);
    bool mayFollow(const FormulaItem& item) const;
    Height heightOf(const FormulaItem& item) const;
    FormulaRow finish();
    static document::FormulaPart withScripts(Place place);
    std::size_t bodyEnd(std::size_t from) const;
    void fillOperator(document::FormulaPart& target, std::vector<document::FormulaPart> body) const;
    std::vector<document::FormulaPart> joined(std::size_t from, std::size_t to,
                                              std::vector<document::FormulaPart>& parts) const;
    double gapBefore(std::size_t place) const;

    std::vector<FormulaItem> m_items;
    const FormulaParameters::FormulaGrammar& m_grammar;
    std::vector<Place> m_places;
    double m_baseline = 0;
    double m_size = 0;
    FormulaLine m_line = FormulaLine::Baseline;
};

} // namespace orvane::layout
