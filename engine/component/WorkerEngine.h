#pragma once

#include "base/Failure.h"
#include "base/JobObserver.h"
#include "orvane/ConversionEngine.h"
#include "protocol/WorkerProcess.h"

#include <filesystem>
#include <memory>

namespace orvane::component {

/// The contract's engine: each conversion is done by a worker process, which this object starts and follows. Releasing
/// it before the end leaves the worker to finish by itself, after DoCancel() to stop by itself.
class WorkerEngine : public ConversionEngine {
public:
    explicit WorkerEngine(std::filesystem::path workerProgram)
        : m_workerProgram(std::move(workerProgram)) {}

    std::int32_t DoConvert(const ConversionRequest& request) override;
    std::int32_t GetStatus(std::int32_t& first, std::int32_t& second, std::int16_t& finishCode) override;
    void DoCancel() override;

private:
    std::int32_t convert(const ConversionRequest& request);
    std::int32_t waitForAnswer();
    void take(const protocol::Message& message);

    std::filesystem::path m_workerProgram;
    std::unique_ptr<protocol::WorkerProcess> m_worker;
    protocol::StatusReport m_status;
    bool m_hasStatus = false;
    std::int16_t m_finishCode = finish::kWorking;
};

/// The result of DoConvert() for a job that was refused.
std::int32_t resultFor(FailureCode code);

} // namespace orvane::component
