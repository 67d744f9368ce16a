#pragma once

#include "core/System.h"

#include <QString>

namespace run {

/// Tests for the engine by making one and releasing it at once. `found` tells the outcome; when it is false, the
/// failure stands in the error log and `message` names the missing component. `mode` is not used.
void IsComponentExists(EngineFactory& engines, std::int16_t mode, QString& message, bool& found);

} // namespace run
