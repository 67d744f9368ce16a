#include "worker/ProcessLimits.h"
#include "support/ForkedProcess.h"
#include "worker/BuildKind.h"

#include <gtest/gtest.h>

#include <new>

#include <sys/resource.h>

namespace orvane::worker {
namespace {

template<typename Action>
int exitCodeUnder(const protocol::Limits& limits, Action action) {
    return tests::inForkedProcess([&] {
        applyLimits(limits);
        return action();
    });
}

TEST(ProcessLimits, EndTheMemoryWithAnExceptionNotACrash) {
    const auto allocate = [] {
        try {
            ::operator delete(::operator new (std::size_t{1} << 30));
            return 1;
        } catch (const std::bad_alloc&) {
            return 0;
        }
    };
    const int expected = kBuildKind == BuildKind::Plain ? 0 : 1; // a sanitizer needs all the address space there is
    EXPECT_EQ(exitCodeUnder({512, 60, 1}, allocate), expected);
    EXPECT_EQ(exitCodeUnder({4096, 60, 1}, allocate), 1) << "within the limit";
}

TEST(ProcessLimits, KeepNoDocumentInACoreFile) {
    EXPECT_EQ(exitCodeUnder({},
                            [] {
                                rlimit core{};
                                getrlimit(RLIMIT_CORE, &core);
                                return core.rlim_cur == 0 && core.rlim_max == 0 ? 0 : 1;
                            }),
              0);
}

TEST(ProcessLimits, DoNotRaiseALimitThatIsLower) {
    EXPECT_EQ(exitCodeUnder({},
                            [] {
                                rlimit limit{10, 10};
                                setrlimit(RLIMIT_CPU, &limit);
                                applyLimits({});
                                getrlimit(RLIMIT_CPU, &limit);
                                return limit.rlim_cur == 10 ? 0 : 1;
                            }),
              0);
}

} // namespace
} // namespace orvane::worker
