#pragma once

#include <functional>
#include <string>

namespace platform {

/// Finds the copy of the program that this user already runs, by the title of its windows, and asks it to come forward.
/// The first copy listens on a local socket of the user that is named after the title; the second knocks there. That
/// works alike under every display server. Nothing of the second copy's command line travels.
class RunningCopy {
public:
    explicit RunningCopy(std::string title);
    ~RunningCopy();
    RunningCopy(const RunningCopy&) = delete;
    RunningCopy& operator=(const RunningCopy&) = delete;

    /// Whether the knocking copy found another one.
    enum class Found { Nobody, OtherCopy };

    /// The second copy's part: asks a running copy to restore its window and bring it to the foreground.
    Found askToComeForward();

    /// Whether this process can be found from now on.
    enum class Listening { Yes, No };

    /// The first copy's part. A socket that a dead copy left behind is replaced.
    Listening listen();

    /// Becomes readable when another copy knocks; -1 when this process does not listen.
    int handle() const { return m_listener; }

    /// Comes forward with the display server's leave to take the focus (often empty).
    using ComeForward = std::function<void(const std::string& activationToken)>;

    /// Takes one knock, comes forward, then answers. Does nothing when nobody stands at the door.
    void answerKnock(const ComeForward& comeForward);

private:
    std::string m_title;
    std::string m_address;
    int m_listener = -1;
};

} // namespace platform
