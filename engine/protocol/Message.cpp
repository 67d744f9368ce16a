#include "protocol/Message.h"

#include "protocol/JsonReader.h"
#include "protocol/PercentText.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace orvane::protocol {
namespace {

using nlohmann::json;

constexpr IntegerRange kCount{0, std::numeric_limits<int>::max()};
constexpr IntegerRange kLongCount{0, std::numeric_limits<long long>::max()};

// Some ten texts of this length fit a line even when every byte of them is written as an escape.
constexpr std::size_t kMaxTextLength = 1000;

constexpr EnumNames<JobStage, 10> kStages{{{JobStage::Opening, "opening"},
                                           {JobStage::Reading, "reading"},
                                           {JobStage::AnalysingFonts, "analysingFonts"},
                                           {JobStage::Page, "page"},
                                           {JobStage::PageOfPages, "pageOfPages"},
                                           {JobStage::Picture, "picture"},
                                           {JobStage::WritingPage, "writingPage"},
                                           {JobStage::Generating, "generating"},
                                           {JobStage::DocumentComplete, "documentComplete"},
                                           {JobStage::ImagesComplete, "imagesComplete"}}};

// Of pages and parts of one picture; their numbers fit a line.
constexpr std::size_t kMaxListed = 1000;
constexpr std::size_t kMaxPages = 1'000'000;

constexpr DiagnosticKind kLastDiagnosticKind = DiagnosticKind::ContentLeftOut;

std::string cut(const std::string& text) {
    if (text.size() <= kMaxTextLength)
        return text;
    std::size_t end = kMaxTextLength;
    while (end > 0 && (text[end] & 0xC0) == 0x80) // not within a character
        --end;
    return text.substr(0, end) + "...";
}

/// JSON has no infinity; a box of a damaged file may.
double finite(double value) {
    return std::isfinite(value) ? value : 0;
}

json toJson(const Accepted& m) {
    return {{"type", "accepted"}, {"pageCount", m.pageCount}, {"selectedPages", m.selectedPages}};
}

json toJson(const Refused& m) {
    return {{"type", "refused"}, {"code", toString(m.code)}, {"message", cut(m.message)}};
}

json toJson(const StatusReport& m) {
    return {{"type", "status"}, {"stage", nameOf(kStages, m.stage)}, {"first", m.first}, {"second", m.second}};
}

json toJson(const DiagnosticReport& m) {
    const Rect& box = m.diagnostic.box;
    return {{"type", "diagnostic"},
            {"kind", toString(m.diagnostic.kind)},
            {"page", m.diagnostic.page},
            {"box", {finite(box.left), finite(box.top), finite(box.right), finite(box.bottom)}},
            {"message", cut(m.diagnostic.message)}};
}

json toJson(const SourceReport& m) {
    return {{"type", "source"},
            {"pdfVersion", cut(m.pdfVersion)},
            {"isEncrypted", m.isEncrypted},
            {"isTagged", m.isTagged},
            {"hasOutline", m.hasOutline},
            {"title", cut(m.title)},
            {"author", cut(m.author)},
            {"subject", cut(m.subject)},
            {"keywords", cut(m.keywords)},
            {"creator", cut(m.creator)},
            {"producer", cut(m.producer)},
            {"created", cut(m.created)},
            {"modified", cut(m.modified)},
            {"language", cut(m.language)}};
}

json toJson(const PageReport& m) {
    return {{"type", "page"},         {"number", m.number},   {"width", finite(m.width)}, {"height", finite(m.height)},
            {"rotation", m.rotation}, {"label", cut(m.label)}};
}

/// Ascending numbers as pairs of the first and the last of those that follow each other.
json toRanges(const std::vector<int>& numbers) {
    json ranges = json::array();
    for (std::size_t i = 0; i < numbers.size() && ranges.size() < kMaxListed;) {
        std::size_t last = i;
        while (last + 1 < numbers.size() && numbers[last + 1] == numbers[last] + 1)
            ++last;
        ranges.push_back({numbers[i], numbers[last]});
        i = last + 1;
    }
    return ranges;
}

json toJson(const PictureReport& m) {
    json parts = json::array();
    for (const PictureReport::Part& part : m.parts)
        if (parts.size() < kMaxListed)
            parts.push_back({part.objectNumber, part.x, part.y});
    return {{"type", "picture"},  {"file", percentEncoded(m.file)}, {"width", m.width},
            {"height", m.height}, {"pages", toRanges(m.pages)},     {"parts", std::move(parts)}};
}

json toJson(const Finished& m) {
    return {{"type", "finished"},
            {"charactersRead", m.counts.charactersRead},
            {"charactersWritten", m.counts.charactersWritten},
            {"picturesRead", m.counts.picturesRead},
            {"picturesWritten", m.counts.picturesWritten},
            {"linksRead", m.counts.linksRead},
            {"linksWritten", m.counts.linksWritten},
            {"valuesRead", m.counts.valuesRead},
            {"valuesWritten", m.counts.valuesWritten},
            {"diagnostics", m.diagnostics},
            {"seconds", m.seconds}};
}

json toJson(const Failed& m) {
    return {{"type", "failed"},
            {"code", toString(m.code)},
            {"message", cut(m.message)},
            {"page", m.where.page},
            {"object", m.where.object}};
}

FailureCode readFailureCode(JsonReader& reader) {
    const std::string name = reader.text("code");
    const FailureCode code = failureCodeFromString(name);
    if (name != toString(code))
        throw ProtocolError("a failure with an unknown code");
    return code;
}

DiagnosticKind readDiagnosticKind(JsonReader& reader) {
    const std::string name = reader.text("kind");
    for (int kind = 0; kind <= static_cast<int>(kLastDiagnosticKind); ++kind)
        if (name == toString(static_cast<DiagnosticKind>(kind)))
            return static_cast<DiagnosticKind>(kind);
    throw ProtocolError("a diagnostic of an unknown kind");
}

Rect readBox(JsonReader& reader) {
    const json& values = reader.array("box");
    if (values.size() != 4 || !std::all_of(values.begin(), values.end(), [](const json& v) { return v.is_number(); }))
        throw ProtocolError("a box is not four numbers");
    return {values[0].get<double>(), values[1].get<double>(), values[2].get<double>(), values[3].get<double>()};
}

Message readDiagnostic(JsonReader& reader) {
    Diagnostic diagnostic;
    diagnostic.kind = readDiagnosticKind(reader);
    diagnostic.page = reader.integer("page", kCount);
    diagnostic.box = readBox(reader);
    diagnostic.message = reader.text("message");
    return DiagnosticReport{std::move(diagnostic)};
}

Message readSource(JsonReader& reader) {
    SourceReport m;
    m.pdfVersion = reader.text("pdfVersion");
    m.isEncrypted = reader.boolean("isEncrypted");
    m.isTagged = reader.boolean("isTagged");
    m.hasOutline = reader.boolean("hasOutline");
    m.title = reader.text("title");
    m.author = reader.text("author");
    m.subject = reader.text("subject");
    m.keywords = reader.text("keywords");
    m.creator = reader.text("creator");
    m.producer = reader.text("producer");
    m.created = reader.text("created");
    m.modified = reader.text("modified");
    m.language = reader.text("language");
    return m;
}

Message readPage(JsonReader& reader) {
    PageReport m;
    m.number = reader.integer("number", kCount);
    m.width = reader.number("width");
    m.height = reader.number("height");
    m.rotation = reader.integer("rotation", {0, 359});
    m.label = reader.text("label");
    return m;
}

/// An array of arrays of `count` whole numbers from 0 up.
std::vector<std::vector<int>> readTuples(JsonReader& reader, const char* field, std::size_t count) {
    std::vector<std::vector<int>> tuples;
    for (const json& value : reader.array(field)) {
        const bool isTuple = value.is_array() && value.size() == count &&
                             std::all_of(value.begin(), value.end(), [](const json& number) {
                                 return number.is_number_integer() && number.get<long long>() >= kCount.least &&
                                        number.get<long long>() <= kCount.most;
                             });
        if (!isTuple)
            throw ProtocolError("a list of numbers is none");
        tuples.push_back(value.get<std::vector<int>>());
    }
    return tuples;
}

Message readPicture(JsonReader& reader) {
    PictureReport m;
    m.file = percentDecoded(reader.text("file"));
    m.width = reader.integer("width", kCount);
    m.height = reader.integer("height", kCount);
    for (const std::vector<int>& range : readTuples(reader, "pages", 2))
        for (long long page = range[0]; page <= range[1]; ++page) {
            if (m.pages.size() == kMaxPages)
                throw ProtocolError("a picture on more pages than there can be");
            m.pages.push_back(static_cast<int>(page));
        }
    for (const std::vector<int>& part : readTuples(reader, "parts", 3))
        m.parts.push_back({part[0], part[1], part[2]});
    return m;
}

Message readFinished(JsonReader& reader) {
    Finished m;
    m.counts.charactersRead = reader.longInteger("charactersRead", kLongCount);
    m.counts.charactersWritten = reader.longInteger("charactersWritten", kLongCount);
    m.counts.picturesRead = reader.longInteger("picturesRead", kLongCount);
    m.counts.picturesWritten = reader.longInteger("picturesWritten", kLongCount);
    m.counts.linksRead = reader.longInteger("linksRead", kLongCount);
    m.counts.linksWritten = reader.longInteger("linksWritten", kLongCount);
    m.counts.valuesRead = reader.longInteger("valuesRead", kLongCount);
    m.counts.valuesWritten = reader.longInteger("valuesWritten", kLongCount);
    m.diagnostics = reader.integer("diagnostics", kCount);
    m.seconds = reader.number("seconds");
    return m;
}

Message readByType(const std::string& type, JsonReader& reader) {
    if (type == "accepted")
        return Accepted{reader.integer("pageCount", kCount), reader.integer("selectedPages", kCount)};
    if (type == "refused") {
        const FailureCode code = readFailureCode(reader);
        return Refused{code, reader.text("message")};
    }
    if (type == "status") {
        const JobStage stage = reader.name("stage", kStages);
        return StatusReport{stage, reader.integer("first", kCount), reader.integer("second", kCount)};
    }
    if (type == "diagnostic")
        return readDiagnostic(reader);
    if (type == "source")
        return readSource(reader);
    if (type == "page")
        return readPage(reader);
    if (type == "picture")
        return readPicture(reader);
    if (type == "finished")
        return readFinished(reader);
    if (type == "failed") {
        const FailureCode code = readFailureCode(reader);
        std::string message = reader.text("message");
        return Failed{code, std::move(message), {reader.integer("page", kCount), reader.integer("object", kCount)}};
    }
    throw ProtocolError("a message of an unknown type");
}

} // namespace

std::string encodeMessage(const Message& message) {
    const json object = std::visit([](const auto& m) { return toJson(m); }, message);
    return object.dump(-1, ' ', true, json::error_handler_t::replace);
}

Message decodeMessage(std::string_view line) {
    if (line.size() > kMaxLineLength)
        throw ProtocolError("the line is too long");
    const json object = parseObject(line);
    JsonReader reader(object, "message");
    const std::string type = reader.text("type");
    Message message = readByType(type, reader);
    reader.requireNothingElse();
    return message;
}

} // namespace orvane::protocol
