#pragma once

#include "document/Document.h"

#include <map>
#include <string>
#include <vector>

namespace orvane::document {

/// Counts the paragraphs of lists and tells the label that a word processor puts before each.
class ListLabels {
public:
    explicit ListLabels(const Document& document)
        : m_document(document) {}

    /// The label of the next paragraph with this membership; empty when it is in no list of the document.
    /// Requires: called once for each paragraph, in reading order.
    std::string next(const ListReference& list);

private:
    const Document& m_document;
    std::map<std::size_t, std::vector<int>>
        m_counts; ///< by numbering: the last number of each level that is counted on
};

/// A number in the words of a format: "iv", "D", "07", "†"; empty for formats without numbers.
std::string formatNumber(int number, NumberFormat format);

} // namespace orvane::document
