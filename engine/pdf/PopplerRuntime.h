#pragma once

#include <string>

namespace orvane::pdf {

/// Sets the PDF library up, once for the process. Thread: any.
void preparePoppler();

/// Gathers what the PDF library complains of on this thread while it lives; the library never writes to standard error.
class ComplaintCollector {
public:
    ComplaintCollector();
    ~ComplaintCollector();
    ComplaintCollector(const ComplaintCollector&) = delete;
    ComplaintCollector& operator=(const ComplaintCollector&) = delete;

    /// How many faults were met that may change the result; warnings are not counted.
    int count() const { return m_count; }
    const std::string& first() const { return m_first; }
    /// A Q without a q was among them; see SurplusRestores.h.
    bool hasSurplusRestore() const { return m_hasSurplusRestore; }

    /// Called by the library's error callback.
    void add(const char* message);

private:
    int m_count = 0;
    std::string m_first;
    bool m_hasSurplusRestore = false;
    ComplaintCollector* m_outer;
};

} // namespace orvane::pdf
