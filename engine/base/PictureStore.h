#pragma once

#include "base/PictureData.h"

#include <filesystem>
#include <mutex>
#include <unordered_map>
#include <vector>

namespace orvane {

/// The pictures of one job, on disk: a page's pictures are put here as the page is read, so that memory holds those of one page
/// only. Equal pictures are stored once.
/// Owns: the files it makes in its folder; they are removed with it. Thread: any.
class PictureStore {
public:
    struct Entry {
        PictureFormat format = PictureFormat::Png;
        int pixelWidth = 0;
        int pixelHeight = 0;
        std::filesystem::path file; ///< the picture's bytes, as a file of its format
    };

    /// Requires: `folder` exists and can be written.
    explicit PictureStore(std::filesystem::path folder);
    ~PictureStore();
    PictureStore(const PictureStore&) = delete;
    PictureStore& operator=(const PictureStore&) = delete;

    /// Stores the picture unless an equal one is there, and returns its id.
    /// Errors: Failure(TargetUnwritable) when the disk is full.
    PictureId add(const PictureData& picture);

    /// Requires: `id` came from add() of this store.
    Entry at(PictureId id) const;
    std::size_t size() const;

private:
    std::filesystem::path m_folder;
    mutable std::mutex m_mutex;
    std::vector<Entry> m_entries;
    std::unordered_multimap<std::size_t, PictureId> m_byHash;
};

} // namespace orvane
