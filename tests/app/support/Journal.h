#pragma once

#include <QStringList>

namespace tavrelion::tests {

/// What happened around a run, in its order: one line an event.
using Journal = QStringList;

} // namespace tavrelion::tests
