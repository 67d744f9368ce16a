#include "write/rtf/RtfWriter.h"

#include "write/Languages.h"
#include "write/rtf/BodyRtf.h"
#include "write/rtf/RtfFile.h"
#include "write/rtf/RunRtf.h"

namespace orvane::write {
namespace {

constexpr int kVersion = 1;
constexpr int kAnsiCodePage = 1252;
/// The font of text that names none.
constexpr std::string_view kFallbackFont = "Times New Roman";
/// How many characters stand for one \u.
constexpr int kFallbackLength = 1;

/// Fills the tables of the file's head with what its text uses.
void survey(const document::Document& document, const PictureStore& pictures, rtf::HeadTables& head) {
    // The first font is the one that text has without further words.
    const StyleIndex styles(document);
    const std::string& standard = styles.defaultStyle().run.fontFamily;
    head.fonts.numberOf(standard.empty() ? kFallbackFont : std::string_view(standard));
    rtf::RtfStream nowhere([](std::string_view) {});
    Diagnostics ignored;
    rtf::RtfState state(document, pictures, head, rtf::Pass::Survey, ignored);
    rtf::writeBody(state, nowhere);
}

void writeHead(rtf::RtfStream& rtf, const rtf::HeadTables& head, const std::string& language) {
    rtf.word("rtf", kVersion);
    rtf.word("ansi");
    rtf.word("ansicpg", kAnsiCodePage);
    rtf.word("uc", kFallbackLength);
    rtf.word("deff", 0);
    if (const int number = languageNumber(language); number != 0) {
        const bool isEastAsian = scriptClassOf(language) == ScriptClass::EastAsian;
        rtf.word(isEastAsian ? "deflangfe" : "deflang", number);
    }
    rtf.newLine();
    head.fonts.write(rtf);
    rtf.newLine();
    head.colors.write(rtf);
    rtf.newLine();
}

} // namespace

void writeRtf(const document::Document& document, const PictureStore& pictures, const std::filesystem::path& target,
              Diagnostics& diagnostics) {
    rtf::HeadTables head;
    survey(document, pictures, head);
    rtf::RtfFile file(target);
    rtf::RtfStream rtf([&file](std::string_view bytes) { file.add(bytes); });
    {
        const rtf::RtfGroup whole(rtf);
        writeHead(rtf, head, document.metadata.language);
        rtf::RtfState state(document, pictures, head, rtf::Pass::Writing, diagnostics);
        rtf::writeBody(state, rtf);
    }
    rtf.newLine();
    rtf.finish();
    file.close();
}

} // namespace orvane::write
