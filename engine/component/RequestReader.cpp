#include "component/RequestReader.h"

#include "base/Failure.h"

#include <fmt/format.h>

namespace orvane::component {
namespace {

using namespace protocol;

Format readFormat(std::int32_t flags) {
    if ((flags & flag::kWordFormat) == 0)
        return Format::Rtf;
    return (flags & flag::kDocx) != 0 ? Format::Docx : Format::Doc;
}

} // namespace

Layout readLayout(std::int16_t code) {
    switch (code) {
    case layout_code::kFlowing:
        return Layout::Flowing;
    case layout_code::kTruePage:
        return Layout::TruePage;
    case layout_code::kContinuous:
        return Layout::Continuous;
    case layout_code::kPlainText:
        return Layout::PlainText;
    case layout_code::kImages:
        return Layout::Images;
    default:
        throw Failure(FailureCode::InvalidRequest, fmt::format("there is no layout with the code {}", code));
    }
}

ImageFileFormat readImageFormat(std::int16_t code) {
    // The formats stand in the order of their codes; the last of them has none.
    if (code < 0 || code >= static_cast<std::int16_t>(ImageFileFormat::Original))
        throw Failure(FailureCode::InvalidRequest, fmt::format("there is no picture format with the code {}", code));
    return static_cast<ImageFileFormat>(code);
}

PasswordPair readPasswords(const std::string& text, std::int32_t flags) {
    constexpr std::int32_t kBothAsked = flag::kUserPasswordAsked | flag::kOwnerPasswordAsked;
    const std::size_t separator =
        (flags & kBothAsked) == kBothAsked ? text.find(kPasswordSeparator) : std::string::npos;
    if (separator == std::string::npos)
        return {text, text};
    const std::string owner = text.substr(0, separator);
    const std::string user = text.substr(separator + std::string_view(kPasswordSeparator).size());
    // One of the two may have been lost between two questions; the other is then tried for both.
    return {user.empty() ? owner : user, owner.empty() ? user : owner};
}

Job readRequest(const ConversionRequest& request) {
    Job job;
    job.source = request.sourcePath;
    job.target = request.targetPath;
    job.logPath = request.logPath;
    job.scratchFolder = request.temporaryFolder;
    job.applicationName = request.applicationName;
    const auto [user, owner] = readPasswords(request.password, request.flags);
    job.userPassword = user;
    job.ownerPassword = owner;
    if ((request.flags & flag::kAllPages) == 0)
        job.pageRange = request.pageRange;
    job.format = readFormat(request.flags);
    job.pictures = (request.flags & flag::kRemoveImages) != 0 ? Pictures::Remove : Pictures::Keep;
    job.characterSpacing =
        (request.flags & flag::kKeepCharacterSpacing) != 0 ? CharacterSpacing::Exact : CharacterSpacing::Automatic;
    // An application that is closed while it converts leaves the run to end by itself; only DoCancel() stops it.
    job.whenStarterEnds = WhenStarterEnds::Finish;
    return job;
}

} // namespace orvane::component
