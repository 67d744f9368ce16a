#include "base/Failure.h"
#include "base/PictureStore.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

PictureData pictureOf(std::initializer_list<int> bytes) {
    PictureData picture{PictureFormat::Png, 3, 2, {}};
    for (const int byte : bytes)
        picture.bytes.push_back(static_cast<std::byte>(byte));
    return picture;
}

TEST(PictureStore, StoresEqualPicturesOnce) {
    const tests::TemporaryFolder folder;
    PictureStore store(folder.path());
    const PictureId first = store.add(pictureOf({1, 2, 3}));
    const PictureId other = store.add(pictureOf({1, 2, 4}));
    EXPECT_EQ(store.add(pictureOf({1, 2, 3})), first);
    EXPECT_NE(first, other);
    EXPECT_EQ(store.size(), 2u);
    EXPECT_EQ(std::filesystem::file_size(store.at(first).file), 3u);
}

TEST(PictureStore, RemovesItsFiles) {
    const tests::TemporaryFolder folder;
    {
        PictureStore store(folder.path());
        store.add(pictureOf({1}));
        EXPECT_FALSE(std::filesystem::is_empty(folder.path()));
    }
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

TEST(PictureStore, SaysWhenItCannotWrite) {
    const tests::TemporaryFolder folder;
    PictureStore store(folder.path() / "missing");
    try {
        store.add(pictureOf({1}));
        ADD_FAILURE() << "stored in a folder that does not exist";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.code(), FailureCode::TargetUnwritable);
    }
}

} // namespace
} // namespace orvane
