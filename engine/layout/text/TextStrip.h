#pragma once

#include "layout/text/TextDraft.h"
#include "layout/text/TextParameters.h"

namespace orvane::layout {

/// Clusters that were painted one after the other on one baseline, of one size and without a wide gap.
struct TextStrip {
    std::vector<Cluster> clusters;
    std::uint32_t frame = 0;
    double start = 0; ///< of the inked clusters; of the blanks when there are no others
    double end = 0;
    double baseline = 0;
    double size = 0;
    std::size_t inkCount = 0; ///< clusters that are no blanks
    int dropCapLines = 0;
    bool isScript = false; ///< joined its host's row as superscript or subscript

    bool isBlank() const { return inkCount == 0; }
};

/// Cuts the clusters, which come in paint order, into strips.
std::vector<TextStrip> cutStrips(std::vector<Cluster> clusters, const TextParameters& parameters);

} // namespace orvane::layout
