#include "write/rtf/InfoRtf.h"

#include "write/IsoDate.h"

namespace orvane::write::rtf {
namespace {

void writeText(RtfStream& rtf, const char* destination, const std::string& text) {
    if (text.empty())
        return;
    const RtfGroup group(rtf, destination);
    rtf.text(text);
}

void writeTime(RtfStream& rtf, const char* destination, const std::string& date) {
    const auto time = dateTimeFromIso(date);
    if (!time)
        return;
    const RtfGroup group(rtf, destination);
    rtf.word("yr", time->year);
    rtf.word("mo", time->month);
    rtf.word("dy", time->day);
    rtf.word("hr", time->hour);
    rtf.word("min", time->minute);
    rtf.word("sec", time->second);
}

} // namespace

void writeInfo(RtfStream& rtf, const document::Metadata& metadata) {
    const RtfGroup info(rtf, "info");
    writeText(rtf, "title", metadata.title);
    writeText(rtf, "subject", metadata.subject);
    writeText(rtf, "author", metadata.author);
    writeText(rtf, "keywords", metadata.keywords);
    writeTime(rtf, "creatim", metadata.created);
    writeTime(rtf, "revtim", metadata.modified);
}

} // namespace orvane::write::rtf
