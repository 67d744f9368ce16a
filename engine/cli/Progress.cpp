#include "cli/Progress.h"

#include <algorithm>
#include <ostream>

#include <fmt/format.h>

namespace orvane::cli {
namespace {

constexpr int kBarLength = 30;

} // namespace

std::string progressLine(int done, int total, std::string_view what) {
    const int filled = total > 0 ? std::clamp(static_cast<int>(1LL * kBarLength * done / total), 0, kBarLength) : 0;
    return fmt::format("[{:#<{}}{:-<{}}] {} of {} {}", "", filled, "", kBarLength - filled, done, total, what);
}

void Progress::show(int done, int total, std::string_view what) {
    if (m_audience == Audience::Nobody)
        return;
    const std::lock_guard lock(m_mutex);
    std::string line = progressLine(done, total, what);
    if (line == m_shown)
        return;
    const std::size_t rest = m_shown.size() > line.size() ? m_shown.size() - line.size() : 0;
    m_out << '\r' << line << std::string(rest, ' ') << std::flush;
    m_shown = std::move(line);
}

void Progress::clear() {
    const std::lock_guard lock(m_mutex);
    if (m_shown.empty())
        return;
    m_out << '\r' << std::string(m_shown.size(), ' ') << '\r' << std::flush;
    m_shown.clear();
}

} // namespace orvane::cli
