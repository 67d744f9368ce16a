#include "pdf/PagePlayer.h"

#include <chrono>
#include <thread>

#include <gtest/gtest.h>

namespace orvane::pdf {
namespace {

using namespace std::chrono_literals;

TEST(TimeBudget, IsNotSpentByWaiting) {
    TimeBudget budget(50ms);
    std::this_thread::sleep_until(std::chrono::steady_clock::now() + 60ms);
    EXPECT_FALSE(budget.isSpent()) << "a busy machine lets threads wait";
}

TEST(TimeBudget, IsSpentByWork) {
    const std::chrono::nanoseconds start = threadTime();
    TimeBudget budget(5ms);
    const auto patience = std::chrono::steady_clock::now() + 60s;
    while (!budget.isSpent() && std::chrono::steady_clock::now() < patience) {
    }
    EXPECT_TRUE(budget.isSpent());
    EXPECT_GE(threadTime() - start, 5ms);
    EXPECT_TRUE(TimeBudget::isSpent(&budget)) << "the library asks in its own way";
}

} // namespace
} // namespace orvane::pdf
