#include "layout/assembly/InlineBuilder.h"

#include "layout/assembly/FieldControl.h"

#include <string>
#include <utility>

namespace orvane::layout {

using document::Inline;
using document::LinkTarget;

void InlineBuilder::addText(std::string_view text, const document::RunProperties& properties,
                            const std::optional<LinkTarget>& link) {
    if (text.empty())
        return;
    enterLink(link);
    document::Text* last = lastText();
    if (last && last->properties == properties)
        last->text += text;
    else
        target().push_back({document::Text{std::string(text), properties}});
}

void InlineBuilder::add(Inline item, const std::optional<LinkTarget>& link) {
    enterLink(link);
    target().push_back(std::move(item));
}

void InlineBuilder::dropLastCharacter() {
    document::Text* last = lastText();
    if (!last)
        return;
    while (!last->text.empty() && (static_cast<unsigned char>(last->text.back()) & 0xC0) == 0x80)
        last->text.pop_back();
    if (!last->text.empty())
        last->text.pop_back();
    if (last->text.empty())
        target().pop_back();
}

void InlineBuilder::enterField(const pdf::FormField* field) {
    if (field == m_field)
        return;
    enterLink(std::nullopt);
    if (m_field && !m_fieldInlines.empty())
        m_inlines.push_back({controlOf(*m_field, std::exchange(m_fieldInlines, {}))});
    m_field = field;
}

std::vector<Inline> InlineBuilder::finish() {
    enterField(nullptr);
    enterLink(std::nullopt);
    return std::exchange(m_inlines, {});
}

document::Text* InlineBuilder::lastText() {
    std::vector<Inline>& inlines = target();
    return inlines.empty() ? nullptr : std::get_if<document::Text>(&inlines.back().value);
}

void InlineBuilder::enterLink(const std::optional<LinkTarget>& link) {
    const bool isSame = m_link.has_value() == link.has_value() &&
                        (!link || *m_link == *link);
    if (isSame)
        return;
    if (m_link && !m_linkInlines.empty())
        outside().push_back({document::Link{*m_link, std::exchange(m_linkInlines, {})}});
    m_link = link;
}

} // namespace orvane::layout
