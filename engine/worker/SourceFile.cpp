#include "worker/SourceFile.h"

#include "base/Failure.h"
#include "worker/SystemFiles.h"

#include <fstream>

#include <fmt/format.h>

namespace orvane::worker {

void checkSource(const std::filesystem::path& source) {
    const auto fail = [&source](FailureCode code, const char* why) {
        throw Failure(code, fmt::format("{} {}", source.string(), why));
    };
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(source, error);
    if (status.type() == std::filesystem::file_type::not_found)
        fail(FailureCode::SourceUnreadable, "does not exist");
    if (error)
        throw Failure(FailureCode::SourceUnreadable,
                      fmt::format("{} cannot be read: {}", source.string(), error.message()));
    if (!std::filesystem::is_regular_file(status))
        fail(FailureCode::SourceUnreadable, "is not a file");
    if (isHeldByAnother(source, Access::Read))
        fail(FailureCode::TargetInUse, "is held by another program");

    std::ifstream file(source, std::ios::binary);
    if (!file)
        fail(FailureCode::SourceUnreadable, "cannot be read");
    if (file.get() == std::ifstream::traits_type::eof())
        fail(file.bad() ? FailureCode::SourceUnreadable : FailureCode::NotAPdf,
             file.bad() ? "cannot be read" : "is empty");
}

} // namespace orvane::worker
