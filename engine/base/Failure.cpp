#include "base/Failure.h"

#include <array>
#include <utility>

namespace orvane {
namespace {

constexpr std::array<std::pair<FailureCode, const char*>, 13> kNames{{
    {FailureCode::InvalidRequest, "InvalidRequest"},
    {FailureCode::NotSupported, "NotSupported"},
    {FailureCode::SourceUnreadable, "SourceUnreadable"},
    {FailureCode::NotAPdf, "NotAPdf"},
    {FailureCode::UserPasswordNeeded, "UserPasswordNeeded"},
    {FailureCode::OwnerPasswordNeeded, "OwnerPasswordNeeded"},
    {FailureCode::NoPageInRange, "NoPageInRange"},
    {FailureCode::TargetUnwritable, "TargetUnwritable"},
    {FailureCode::TargetInUse, "TargetInUse"},
    {FailureCode::Cancelled, "Cancelled"},
    {FailureCode::LimitExceeded, "LimitExceeded"},
    {FailureCode::WorkerDied, "WorkerDied"},
    {FailureCode::Internal, "Internal"},
}};

} // namespace

const char* toString(FailureCode code) {
    for (const auto& [value, name] : kNames)
        if (value == code)
            return name;
    return "Internal";
}

FailureCode failureCodeFromString(const std::string& name) {
    for (const auto& [value, text] : kNames)
        if (name == text)
            return value;
    return FailureCode::Internal;
}

} // namespace orvane
