#include "write/docx/FieldXml.h"

#include "write/docx/RunXml.h"

namespace orvane::write::docx {
namespace {

using namespace document;

template<typename Content>
void writeRun(XmlWriter& xml, const RunProperties& look, const RunProperties& base, const Content& content) {
    const XmlElement run(xml, "w:r");
    writeRunProperties(xml, look, &base, ScriptUse::Simple);
    content();
}

void writeMark(XmlWriter& xml, const char* type, const RunProperties& look, const RunProperties& base) {
    writeRun(xml, look, base, [&] { xml.leaf("w:fldChar", {{"w:fldCharType", type}}); });
}

} // namespace

void writeFieldStart(XmlWriter& xml, const std::string& instruction, const RunProperties& look,
                     const RunProperties& base) {
    writeMark(xml, "begin", look, base);
    writeRun(xml, look, base, [&] {
        const XmlElement code(xml, "w:instrText", {{"xml:space", "preserve"}});
        xml.text(instruction);
    });
    writeMark(xml, "separate", look, base);
}

void writeFieldEnd(XmlWriter& xml, const RunProperties& look, const RunProperties& base) {
    writeMark(xml, "end", look, base);
}

} // namespace orvane::write::docx
