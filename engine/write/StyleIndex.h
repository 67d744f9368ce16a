#pragma once

#include "document/Document.h"

#include <string_view>
#include <unordered_map>

namespace orvane::write {

/// Finds a document's styles by id.
class StyleIndex {
public:
    explicit StyleIndex(const document::Document& document);

    /// The style, or the default paragraph style for an id that is none.
    const document::Style& at(const document::StyleId& id) const;
    bool isKnown(const document::StyleId& id) const { return m_byId.count(id) > 0; }
    const document::Style& defaultStyle() const { return *m_default; }
    /// The style that `style` takes its properties from; null for a root.
    const document::Style* parentOf(const document::Style& style) const;

private:
    document::Style m_fallback; ///< the default paragraph style of a document without styles
    const document::Style* m_default;
    std::unordered_map<std::string_view, const document::Style*> m_byId;
};

} // namespace orvane::write
