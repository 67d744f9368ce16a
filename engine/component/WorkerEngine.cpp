#include "component/WorkerEngine.h"

#include "component/RequestReader.h"

#include <chrono>
#include <exception>
#include <optional>

namespace orvane::component {
namespace {

using namespace protocol;
using namespace std::chrono_literals;

// The application stands still while the worker opens the file. Even a huge one opens in seconds; a file that takes
// longer than this is hostile.
constexpr auto kPatienceForAnswer = 60s;

// A worker cannot keep the application in one call by talking faster than it is listened to.
constexpr int kMaxMessagesAtOnce = 10000;

} // namespace

std::int32_t resultFor(FailureCode code) {
    switch (code) {
    case FailureCode::TargetInUse:
        return result::kInUse;
    case FailureCode::UserPasswordNeeded:
        return result::kUserPasswordNeeded;
    case FailureCode::OwnerPasswordNeeded:
        return result::kOwnerPasswordNeeded;
    default:
        return result::kFailed;
    }
}

std::int32_t WorkerEngine::DoConvert(const ConversionRequest& request) {
    try {
        return m_worker ? result::kFailed : convert(request); // one object, one job
    } catch (const std::exception&) {
        return result::kFailed; // nothing may be thrown into an application of another language
    }
}

std::int32_t WorkerEngine::convert(const ConversionRequest& request) {
    Job job = readRequest(request);
    try {
        job.layout = readLayout(request.layoutCode);
        if (job.layout == Layout::Images)
            job.imageFormat = readImageFormat(request.imageFormat);
        m_worker = std::make_unique<WorkerProcess>(m_workerProgram, job);
    } catch (const Failure& failure) {
        return resultFor(refuseUnstarted(job, failure).code);
    }
    const std::int32_t answer = waitForAnswer();
    if (answer != result::kAccepted)
        m_finishCode = finish::kFailed;
    return answer;
}

std::int32_t WorkerEngine::waitForAnswer() {
    const auto end = std::chrono::steady_clock::now() + kPatienceForAnswer;
    while (std::chrono::steady_clock::now() < end) {
        const std::optional<Message> message = m_worker->next(kPatienceForAnswer);
        if (!message)
            continue;
        if (const auto* refused = std::get_if<Refused>(&*message))
            return resultFor(refused->code);
        take(*message);
        if (std::holds_alternative<Accepted>(*message))
            return result::kAccepted;
    }
    m_worker->cancel();
    return result::kFailed;
}

std::int32_t WorkerEngine::GetStatus(std::int32_t& first, std::int32_t& second, std::int16_t& finishCode) {
    try {
        for (int count = 0; m_worker && count < kMaxMessagesAtOnce; ++count) {
            const std::optional<Message> message = m_worker->next(0ms);
            if (!message)
                break;
            take(*message);
        }
    } catch (const std::exception&) {
        m_finishCode = finish::kFailed;
    }
    first = m_status.first;
    second = m_status.second;
    finishCode = m_finishCode;
    return m_hasStatus ? static_cast<std::int32_t>(m_status.stage) : 0;
}

void WorkerEngine::DoCancel() {
    if (m_worker)
        m_worker->cancel();
}

void WorkerEngine::take(const Message& message) {
    if (const auto* status = std::get_if<StatusReport>(&message)) {
        m_status = *status;
        m_hasStatus = true;
    } else if (std::holds_alternative<Finished>(message)) {
        m_finishCode = finish::kSucceeded;
    } else if (std::holds_alternative<Failed>(message)) {
        m_finishCode = finish::kFailed;
    }
}

} // namespace orvane::component
