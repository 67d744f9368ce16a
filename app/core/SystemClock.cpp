#include "core/SystemClock.h"

#include <thread>

std::chrono::milliseconds SystemClock::now() const {
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now().time_since_epoch());
}

void SystemClock::sleep(std::chrono::milliseconds duration) {
    std::this_thread::sleep_for(duration);
}
