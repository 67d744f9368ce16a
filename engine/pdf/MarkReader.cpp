#include "pdf/MarkReader.h"

#include "pdf/NamedMarks.h"
#include "pdf/TextString.h"

#include <algorithm>
#include <string_view>

#include <Object.h>

namespace orvane::pdf {

void MarkReader::begin(const char* tag, const ::Dict* properties) {
    Mark mark;
    mark.tag = tag;
    mark.parent = current();
    mark.isArtifact =
        mark.tag == "Artifact" || (mark.parent >= 0 && m_marks[static_cast<std::size_t>(mark.parent)].isArtifact);
    if (properties) {
        const ::Object mcid = properties->lookup("MCID");
        if (mcid.isInt() && mcid.getInt() >= 0)
            mark.mcid = mcid.getInt();
        mark.actualText = textFromPdf(properties->lookup("ActualText"));
        mark.alternateText = textFromPdf(properties->lookup("Alt"));
        mark.language = textFromPdf(properties->lookup("Lang"));
    }
    m_open.push_back(static_cast<std::int32_t>(m_marks.size()));
    m_marks.push_back(std::move(mark));
}

void MarkReader::markPoint(const char* tag, const ::Dict* properties) {
    if (!properties || std::string_view(tag) != kNamedMarkPoint)
        return;
    const ::Object name = properties->lookup(kNamedMarkTag);
    if (name.isName())
        begin(name.getName(), properties);
}

void MarkReader::end() {
    const std::size_t base = m_formBases.empty() ? 0 : m_formBases.back();
    if (m_open.size() > base)
        m_open.pop_back();
}

void MarkReader::endForm() {
    if (m_formBases.empty())
        return;
    m_open.resize(std::min(m_open.size(), m_formBases.back()));
    m_formBases.pop_back();
}

} // namespace orvane::pdf
