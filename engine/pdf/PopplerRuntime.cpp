#include "pdf/PopplerRuntime.h"

#include "pdf/SurplusRestores.h"

#include <memory>
#include <mutex>

#include <Error.h>
#include <GlobalParams.h>

namespace orvane::pdf {
namespace {

thread_local ComplaintCollector* t_collector = nullptr;

void onPopplerError(ErrorCategory category, Goffset, const char* message) {
    const bool isFault = category == errSyntaxError || category == errUnimplemented || category == errInternal;
    if (isFault && t_collector)
        t_collector->add(message);
}

} // namespace

void preparePoppler() {
    static std::once_flag once;
    std::call_once(once, [] {
        setErrorCallback(onPopplerError);
        globalParams = std::make_unique<GlobalParams>();
    });
}

ComplaintCollector::ComplaintCollector()
    : m_outer(t_collector) {
    t_collector = this;
}

ComplaintCollector::~ComplaintCollector() {
    t_collector = m_outer;
}

void ComplaintCollector::add(const char* message) {
    if (m_count++ == 0)
        m_first = message;
    m_hasSurplusRestore = m_hasSurplusRestore || isSurplusRestore(message);
}

} // namespace orvane::pdf
