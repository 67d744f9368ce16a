#include "write/rtf/FieldRtf.h"

namespace orvane::write::rtf {

void startField(RtfStream& rtf, const std::string& instruction) {
    rtf.open();
    rtf.word("field");
    {
        const RtfDestination code(rtf, "fldinst");
        rtf.text(instruction);
    }
    rtf.open();
    rtf.word("fldrslt");
}

void endField(RtfStream& rtf) {
    rtf.close();
    rtf.close();
}

} // namespace orvane::write::rtf
