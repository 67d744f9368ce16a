#include "worker/Capabilities.h"

#include "base/Failure.h"

#include <algorithm>
#include <array>

#include <fmt/format.h>

namespace orvane::worker {
namespace {

using protocol::Format;
using protocol::Layout;

struct Capability {
    Layout layout;
    Format format;
};

constexpr std::array<Capability, 12> kCapabilities{{
    {Layout::Flowing, Format::Docx},
    {Layout::Flowing, Format::Rtf},
    {Layout::Flowing, Format::Doc},
    {Layout::TruePage, Format::Docx},
    {Layout::TruePage, Format::Rtf},
    {Layout::TruePage, Format::Doc},
    {Layout::Continuous, Format::Docx},
    {Layout::Continuous, Format::Rtf},
    {Layout::Continuous, Format::Doc},
    {Layout::PlainText, Format::Docx},
    {Layout::PlainText, Format::Rtf},
    {Layout::PlainText, Format::Doc},
}};

} // namespace

void requireSupported(Layout layout, Format format) {
    const auto has = [](auto member, auto value) {
        return std::any_of(kCapabilities.begin(), kCapabilities.end(),
                           [&](const Capability& capability) { return capability.*member == value; });
    };
    if (!has(&Capability::layout, layout))
        throw Failure(FailureCode::NotSupported,
                      fmt::format("the layout \"{}\" is not available yet", toString(layout)));
    if (!has(&Capability::format, format))
        throw Failure(FailureCode::NotSupported,
                      fmt::format("the format \"{}\" is not available yet", toString(format)));
    const bool isKnownPair = std::any_of(kCapabilities.begin(), kCapabilities.end(), [&](const Capability& capability) {
        return capability.layout == layout && capability.format == format;
    });
    if (!isKnownPair)
        throw Failure(FailureCode::NotSupported,
                      fmt::format("the layout \"{}\" is not available in the format \"{}\" yet", toString(layout),
                                  toString(format)));
}

} // namespace orvane::worker
