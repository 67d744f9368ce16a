#pragma once

#include <chrono>
#include <thread>

namespace orvane::tests {

/// Waits until the condition holds; false when it does not within `patience`. The machine may be busy.
template<typename Condition>
bool waitFor(Condition condition, std::chrono::seconds patience = std::chrono::seconds(60)) {
    const auto end = std::chrono::steady_clock::now() + patience;
    // What held once may not hold when asked again: files come and go.
    do {
        if (condition())
            return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    } while (std::chrono::steady_clock::now() < end);
    return false;
}

} // namespace orvane::tests
