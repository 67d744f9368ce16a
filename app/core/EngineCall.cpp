#include "core/EngineCall.h"

#include "core/ProgressRun.h"

#include <stdexcept>

namespace run {
namespace {

/// A flag that is set as long as this lives.
class Mark {
public:
    explicit Mark(bool& flag)
        : m_flag(flag) {
        m_flag = true;
    }
    ~Mark() { m_flag = false; }
    Mark(const Mark&) = delete;
    Mark& operator=(const Mark&) = delete;

private:
    bool& m_flag;
};

} // namespace

void callEngine(ProgressRun& run, const std::function<void(orvane::ConversionEngine&)>& call) {
    // Held here too: the window that goes meanwhile releases its own reference.
    const auto engine = run.objEngine;
    if (!engine)
        throw std::runtime_error("there is no conversion engine to call");
    const Mark busy(run.isEngineBusy);
    run.eventLoop.runAside([&] { call(*engine); }, run.engineNotice);
}

} // namespace run
