#pragma once

#include "document/Document.h"
#include "pdf/PageContent.h"

#include <optional>
#include <string_view>
#include <vector>

namespace orvane::layout {

/// Collects runs, joins those of one look, and puts what belongs to one link or form field into it.
class InlineBuilder {
public:
    void addText(std::string_view text, const document::RunProperties& properties,
                 const std::optional<document::LinkTarget>& link);
    void add(document::Inline item, const std::optional<document::LinkTarget>& link);
    /// Takes the last character off, a hyphen that joins two lines.
    void dropLastCharacter();
    /// What is added from now on stands in the field; null for none.
    void enterField(const pdf::FormField* field);
    /// What was added. The builder is empty then.
    std::vector<document::Inline> finish();

private:
    std::vector<document::Inline>& outside() { return m_field ? m_fieldInlines : m_inlines; }
    std::vector<document::Inline>& target() { return m_link ? m_linkInlines : outside(); }
    /// The run at the end of what is being added to; null where something else stands there.
    document::Text* lastText();
    void enterLink(const std::optional<document::LinkTarget>& link);

    std::vector<document::Inline> m_inlines;
    std::vector<document::Inline> m_fieldInlines;
    const pdf::FormField* m_field = nullptr;
    std::vector<document::Inline> m_linkInlines;
    std::optional<document::LinkTarget> m_link;
};

} // namespace orvane::layout
