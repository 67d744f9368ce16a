#pragma once

#include "core/System.h"

/// The machine's steady clock.
class SystemClock : public Clock {
public:
    std::chrono::milliseconds now() const override;
    void sleep(std::chrono::milliseconds duration) override;
};
