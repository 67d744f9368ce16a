#include "pdf/PopplerRuntime.h"

#include "pdf/SurplusRestores.h"

#include <memory>
#include <mutex>

#include <Error.h>
#include <GfxState.h>
#include <GlobalParams.h>
#include <Page.h>

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
        // The first graphics state makes the colour profiles that all share, and is not guarded against a second one
        // beside it.
        const PDFRectangle box(0, 0, 1, 1);
        const GfxState state(72, 72, &box, 0, false);
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
