#pragma once

#include "core/ProgressRun.h"

#include <deque>
#include <functional>
#include <map>
#include <stdexcept>
#include <vector>

namespace tavrelion::tests {

/// What the engines of a test answer, and what they were asked.
struct EngineScript {
    struct Status {
        std::int32_t code = 0;
        std::int32_t first = 0;
        std::int32_t second = 0;
        std::int16_t finishCode = 0;
    };

    std::deque<std::int32_t> results{0};       ///< of DoConvert, one a call; the last one stays
    std::deque<Status> statuses{Status{}};     ///< of GetStatus, likewise
    bool isMissing = false;                    ///< no engine can be made
    bool failsToConvert = false;               ///< DoConvert throws
    bool failsToTellStatus = false;            ///< GetStatus throws
    bool failsToCancel = false;                ///< DoCancel throws
    std::function<void()> whileConverting;     ///< runs inside DoConvert
    std::function<void()> whileAskedForStatus; ///< runs inside GetStatus

    std::vector<orvane::ConversionRequest> requests;
    int enginesMade = 0;
    int enginesAlive = 0;
    int statusCalls = 0;
    int cancels = 0;
};

template<typename Value>
Value nextOf(std::deque<Value>& script) {
    const Value value = script.front();
    if (script.size() > 1)
        script.pop_front();
    return value;
}

class FakeEngine : public orvane::ConversionEngine {
public:
    explicit FakeEngine(EngineScript& script)
        : m_script(script) {
        ++m_script.enginesMade;
        ++m_script.enginesAlive;
    }
    ~FakeEngine() override { --m_script.enginesAlive; }

    std::int32_t DoConvert(const orvane::ConversionRequest& request) override {
        m_script.requests.push_back(request);
        if (m_script.whileConverting)
            m_script.whileConverting();
        if (m_script.failsToConvert)
            throw std::runtime_error("the engine fell over");
        return nextOf(m_script.results);
    }

    std::int32_t GetStatus(std::int32_t& first, std::int32_t& second, std::int16_t& finishCode) override {
        ++m_script.statusCalls;
        if (m_script.whileAskedForStatus)
            m_script.whileAskedForStatus();
        if (m_script.failsToTellStatus)
            throw std::runtime_error("the engine does not answer");
        const EngineScript::Status status = nextOf(m_script.statuses);
        first = status.first;
        second = status.second;
        finishCode = status.finishCode;
        return status.code;
    }

    void DoCancel() override {
        ++m_script.cancels;
        if (m_script.failsToCancel)
            throw std::runtime_error("the engine does not stop");
    }

private:
    EngineScript& m_script;
};

class FakeEngineFactory : public EngineFactory {
public:
    EngineScript script;

    std::unique_ptr<orvane::ConversionEngine> create() override {
        if (script.isMissing)
            throw std::runtime_error("liborvane.so: cannot open shared object file");
        return std::make_unique<FakeEngine>(script);
    }
};

} // namespace tavrelion::tests
