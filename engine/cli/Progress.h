#pragma once

#include <iosfwd>
#include <mutex>
#include <string>
#include <string_view>

namespace orvane::cli {

/// Whether someone looks at the error output while it is written.
enum class Audience { Terminal, Nobody };

/// The audience of this program's error output.
Audience errorOutputAudience();

/// A bar that fills on one line of a terminal. For nobody it draws nothing. Thread: any.
class Progress {
public:
    Progress(std::ostream& out, Audience audience)
        : m_out(out)
        , m_audience(audience) {}
    ~Progress() { clear(); }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// Draws the bar at `done` of `total`, with what is counted behind it: "pages".
    void show(int done, int total, std::string_view what);
    /// Takes the bar away, so that other text can be written.
    void clear();

private:
    std::ostream& m_out;
    Audience m_audience;
    std::mutex m_mutex;
    std::string m_shown;
};

/// "[########------------] 12 of 30 pages"
std::string progressLine(int done, int total, std::string_view what);

} // namespace orvane::cli
