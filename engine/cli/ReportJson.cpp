#include "cli/Report.h"

#include "protocol/DiagnosticDigest.h"

#include <nlohmann/json.hpp>

namespace orvane::cli {
namespace {

using nlohmann::ordered_json;
using namespace protocol;

/// File names need not be UTF-8; what is not shows as a replacement character.
std::string toLine(const ordered_json& object) {
    return object.dump(-1, ' ', false, ordered_json::error_handler_t::replace);
}

void addFailure(const Outcome& outcome, ordered_json& object) {
    object["result"] = outcome.failure ? toString(outcome.failure->code) : "done";
    object["exitCode"] = static_cast<int>(exitCodeOf(outcome));
    if (!outcome.failure)
        return;
    object["message"] = outcome.failure->message;
    if (outcome.failure->where.page > 0)
        object["page"] = outcome.failure->where.page;
}

ordered_json countsJson(const Counts& counts) {
    return {{"charactersRead", counts.charactersRead}, {"charactersWritten", counts.charactersWritten},
            {"picturesRead", counts.picturesRead},     {"picturesWritten", counts.picturesWritten},
            {"linksRead", counts.linksRead},           {"linksWritten", counts.linksWritten},
            {"valuesRead", counts.valuesRead},         {"valuesWritten", counts.valuesWritten}};
}

ordered_json notesJson(const std::vector<Diagnostic>& diagnostics) {
    ordered_json notes = ordered_json::array();
    for (const DiagnosticGroup& group : groupDiagnostics(diagnostics))
        notes.push_back({{"kind", toString(group.kind)},
                         {"message", group.message},
                         {"pages", group.pages},
                         {"count", group.count}});
    return notes;
}

/// What the outcomes of all runs tell first.
ordered_json runJson(const Outcome& outcome) {
    ordered_json object{{"source", outcome.job.source}, {"target", outcome.job.target}};
    addFailure(outcome, object);
    if (outcome.accepted) {
        object["pageCount"] = outcome.accepted->pageCount;
        object["selectedPages"] = outcome.accepted->selectedPages;
    }
    return object;
}

ordered_json pictureJson(const PictureReport& picture) {
    ordered_json parts = ordered_json::array();
    for (const PictureReport::Part& part : picture.parts)
        parts.push_back({{"object", part.objectNumber}, {"x", part.x}, {"y", part.y}});
    return {{"file", picture.file},
            {"width", picture.width},
            {"height", picture.height},
            {"pages", picture.pages},
            {"parts", std::move(parts)}};
}

} // namespace

std::string imagesJson(const Outcome& outcome) {
    ordered_json object = runJson(outcome);
    object["format"] = toString(outcome.job.imageFormat);
    object["pictures"] = ordered_json::array();
    for (const PictureReport& picture : outcome.pictures)
        object["pictures"].push_back(pictureJson(picture));
    if (outcome.finished)
        object["seconds"] = outcome.finished->seconds;
    object["notes"] = notesJson(outcome.diagnostics);
    return toLine(object);
}

std::string conversionJson(const Outcome& outcome) {
    ordered_json object = runJson(outcome);
    if (outcome.finished) {
        object["counts"] = countsJson(outcome.finished->counts);
        object["seconds"] = outcome.finished->seconds;
    }
    object["notes"] = notesJson(outcome.diagnostics);
    return toLine(object);
}

std::string infoJson(const Outcome& outcome) {
    ordered_json object{{"source", outcome.job.source}};
    addFailure(outcome, object);
    if (!outcome.source || outcome.failure)
        return toLine(object);
    const SourceReport& source = *outcome.source;
    object["pageCount"] = outcome.accepted->pageCount;
    object["pdfVersion"] = source.pdfVersion;
    object["isEncrypted"] = source.isEncrypted;
    object["isTagged"] = source.isTagged;
    object["hasOutline"] = source.hasOutline;
    object["title"] = source.title;
    object["author"] = source.author;
    object["subject"] = source.subject;
    object["keywords"] = source.keywords;
    object["creator"] = source.creator;
    object["producer"] = source.producer;
    object["created"] = source.created;
    object["modified"] = source.modified;
    object["language"] = source.language;
    object["pages"] = ordered_json::array();
    for (const PageReport& page : outcome.pages)
        object["pages"].push_back({{"number", page.number},
                                   {"width", page.width},
                                   {"height", page.height},
                                   {"rotation", page.rotation},
                                   {"label", page.label}});
    return toLine(object);
}

} // namespace orvane::cli
