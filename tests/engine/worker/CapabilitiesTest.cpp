#include "worker/Capabilities.h"
#include "base/Failure.h"

#include <gmock/gmock.h>

namespace orvane::worker {
namespace {

using protocol::Format;
using protocol::Layout;

TEST(Capabilities, HasEachLayoutInEachFormat) {
    for (const Layout layout : {Layout::Flowing, Layout::TruePage, Layout::Continuous, Layout::PlainText})
        for (const Format format : {Format::Docx, Format::Rtf, Format::Doc})
            EXPECT_NO_THROW(requireSupported(layout, format));
}

TEST(Capabilities, NamesWhatIsMissing) {
    struct Row {
        Layout layout;
        Format format;
        const char* named;
    };
    const Row rows[] = {
        {Layout::Images, Format::Docx, "\"images\""},
        {Layout::Images, Format::Doc, "\"images\""},
    };
    for (const Row& row : rows) {
        try {
            requireSupported(row.layout, row.format);
            ADD_FAILURE() << row.named << " was accepted";
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.code(), FailureCode::NotSupported);
            EXPECT_THAT(failure.what(), testing::HasSubstr(row.named));
        }
    }
}

} // namespace
} // namespace orvane::worker
