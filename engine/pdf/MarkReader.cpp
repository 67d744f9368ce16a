#include "pdf/MarkReader.h"

#include "pdf/TextString.h"

#include <Object.h>

namespace orvane::pdf {

void MarkReader::begin(const char* tag, ::Dict* properties) {
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

void MarkReader::end() {
    if (!m_open.empty())
        m_open.pop_back();
}

} // namespace orvane::pdf
