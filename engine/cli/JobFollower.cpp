#include "cli/JobFollower.h"

#include "cli/Interrupt.h"
#include "protocol/WorkerProcess.h"
#include "protocol/WorkerProgram.h"

#include <chrono>
#include <type_traits>

namespace orvane::cli {
namespace {

using namespace protocol;
using namespace std::chrono_literals;

// How soon an interrupt is noticed.
constexpr auto kPollInterval = 100ms;

void take(const Message& message, Outcome& outcome, const StatusAction& onStatus) {
    std::visit(
        [&](const auto& m) {
            using Type = std::decay_t<decltype(m)>;
            if constexpr (std::is_same_v<Type, Accepted>)
                outcome.accepted = m;
            else if constexpr (std::is_same_v<Type, Refused>)
                outcome.failure = Failed{m.code, m.message, {}};
            else if constexpr (std::is_same_v<Type, StatusReport>)
                onStatus(m);
            else if constexpr (std::is_same_v<Type, DiagnosticReport>)
                outcome.diagnostics.push_back(m.diagnostic);
            else if constexpr (std::is_same_v<Type, SourceReport>)
                outcome.source = m;
            else if constexpr (std::is_same_v<Type, PageReport>)
                outcome.pages.push_back(m);
            else if constexpr (std::is_same_v<Type, PictureReport>)
                outcome.pictures.push_back(m);
            else if constexpr (std::is_same_v<Type, Finished>)
                outcome.finished = m;
            else
                outcome.failure = m;
        },
        message);
}

void follow(WorkerProcess& worker, Outcome& outcome, const StatusAction& onStatus) {
    while (!worker.hasEnded()) {
        if (wasInterrupted())
            worker.cancel();
        if (const auto message = worker.next(kPollInterval))
            take(*message, outcome, onStatus);
    }
}

} // namespace

Outcome runJob(const Job& job, const StatusAction& onStatus) {
    Outcome outcome;
    outcome.job = job;
    if (wasInterrupted()) {
        outcome.failure = Failed{FailureCode::Cancelled, "the conversion was cancelled", {}};
        return outcome;
    }
    try {
        WorkerProcess worker(workerProgram(), job);
        follow(worker, outcome, onStatus);
    } catch (const Failure& failure) {
        const Refused refused = refuseUnstarted(job, failure);
        outcome.failure = Failed{refused.code, refused.message, {}};
    }
    return outcome;
}

} // namespace orvane::cli
