#pragma once

#include "base/PictureData.h"

#include <map>

namespace orvane::write::doc {

/// The numbers by which a file tells its pictures apart, counted from 1 in the order in which they are written. The ids
/// of the pictures are none: which of two pages was read first is a matter of chance.
class PictureNumbers {
public:
    int of(PictureId id) { return m_numbers.try_emplace(id, static_cast<int>(m_numbers.size()) + 1).first->second; }

private:
    std::map<PictureId, int> m_numbers;
};

} // namespace orvane::write::doc
