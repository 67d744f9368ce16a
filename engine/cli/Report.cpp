#include "cli/Report.h"

#include "protocol/DiagnosticDigest.h"

#include <algorithm>
#include <vector>

#include <fmt/format.h>

namespace orvane::cli {
namespace {

using namespace protocol;

std::string counted(int number, const char* singular) {
    return fmt::format("{} {}{}", number, singular, number == 1 ? "" : "s");
}

const char* adviceFor(FailureCode code) {
    switch (code) {
    case FailureCode::UserPasswordNeeded:
        return " (give the password with --password-file or ORVANE_PASSWORD)";
    case FailureCode::OwnerPasswordNeeded:
        return " (give the owner's password with --password-file or ORVANE_PASSWORD)";
    default:
        return "";
    }
}

std::string pageSizes(const std::vector<PageReport>& pages) {
    const auto sizeOf = [](const PageReport& page) {
        constexpr double kMillimetresPerPoint = 25.4 / 72;
        return fmt::format("{:.0f} x {:.0f} mm", page.width * kMillimetresPerPoint, page.height * kMillimetresPerPoint);
    };
    std::vector<std::string> sizes;
    for (const PageReport& page : pages)
        if (const std::string size = sizeOf(page); std::find(sizes.begin(), sizes.end(), size) == sizes.end())
            sizes.push_back(size);
    if (sizes.empty())
        return "";
    return sizes.size() == 1
               ? sizes.front()
               : fmt::format("{} and {} more", sizes.front(), counted(static_cast<int>(sizes.size()) - 1, "size"));
}

/// How many notes there are, and where to find them.
std::string notesPart(const Outcome& outcome) {
    if (outcome.finished->diagnostics == 0)
        return "";
    return fmt::format(", {} ({})", counted(outcome.finished->diagnostics, "note"),
                       outcome.job.logPath.empty() ? "--log FILE keeps them" : "see the log");
}

const char* yesOrNo(bool value) {
    return value ? "yes" : "no";
}

} // namespace

ExitCode exitCodeOf(const Outcome& outcome) {
    return outcome.failure ? exitCodeFor(outcome.failure->code) : ExitCode::Done;
}

std::string successLine(const Outcome& outcome) {
    return fmt::format("{}: {}{}", outcome.job.target, counted(outcome.accepted->selectedPages, "page"),
                       notesPart(outcome));
}

std::string picturesLine(const Outcome& outcome) {
    return fmt::format("{}: {} of {}{}", outcome.job.target,
                       counted(static_cast<int>(outcome.pictures.size()), "picture"),
                       counted(outcome.accepted->selectedPages, "page"), notesPart(outcome));
}

std::string failureLine(const Outcome& outcome) {
    const Failed& failure = *outcome.failure;
    const bool namesTheFile = failure.message.find(outcome.job.source) != std::string::npos;
    return fmt::format("orvane: {}{}{}", namesTheFile ? "" : outcome.job.source + ": ", failure.message,
                       adviceFor(failure.code));
}

std::string infoText(const Outcome& outcome) {
    const SourceReport& source = *outcome.source;
    std::string text = outcome.job.source + "\n";
    const auto add = [&text](const char* name, const std::string& value) {
        if (!value.empty())
            text += fmt::format("  {:<11} {}\n", name, value);
    };
    add("pages", std::to_string(outcome.accepted->pageCount));
    add("page size", pageSizes(outcome.pages));
    add("PDF version", source.pdfVersion);
    add("encrypted", yesOrNo(source.isEncrypted));
    add("tagged", yesOrNo(source.isTagged));
    add("outline", yesOrNo(source.hasOutline));
    add("title", source.title);
    add("author", source.author);
    add("subject", source.subject);
    add("keywords", source.keywords);
    add("creator", source.creator);
    add("producer", source.producer);
    add("created", source.created);
    add("modified", source.modified);
    add("language", source.language);
    return text;
}

} // namespace orvane::cli
