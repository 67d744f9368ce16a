#include "platform/RunningCopy.h"

#include "platform/Environment.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>
#include <utility>

namespace platform {
namespace {

constexpr int kAnswerMilliseconds = 2000; ///< how long one copy waits for the other's line
constexpr std::size_t kLongestLine = 4096;
constexpr char kKnock[] = "come forward ";
constexpr char kAnswer[] = "here\n";

/// A file descriptor that is closed with its scope.
class Descriptor {
public:
    explicit Descriptor(int value)
        : m_value(value) {}
    ~Descriptor() {
        if (m_value >= 0)
            close(m_value);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int get() const { return m_value; }
    int release() { return std::exchange(m_value, -1); }

private:
    int m_value;
};

/// A folder that nobody but this user can write to; empty when there is none.
std::string privateFolder() {
    if (const auto runtime = environmentValue("XDG_RUNTIME_DIR"); runtime && !runtime->empty())
        return *runtime;
    const std::string folder = "/tmp/tavrelion-" + std::to_string(getuid());
    mkdir(folder.c_str(), S_IRWXU);
    struct stat status {};
    // Somebody else may have made it first, to listen in our place.
    const bool ours = lstat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == getuid() &&
                      (status.st_mode & (S_IRWXG | S_IRWXO)) == 0;
    return ours ? folder : std::string();
}

/// The socket address of a path. Errors: false when the path is empty or too long for one.
bool fillAddress(sockaddr_un& address, const std::string& path) {
    if (path.empty() || path.size() >= sizeof address.sun_path)
        return false;
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
    return true;
}

int newSocket() {
    return socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
}

/// A connection to whoever listens at the path; -1 when nobody does.
int connectTo(const std::string& path) {
    sockaddr_un address{};
    Descriptor connection(newSocket());
    if (connection.get() < 0 || !fillAddress(address, path))
        return -1;
    if (connect(connection.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
        return -1;
    return connection.release();
}

bool readable(int descriptor, int milliseconds) {
    pollfd entry{descriptor, POLLIN, 0};
    return poll(&entry, 1, milliseconds) > 0;
}

/// One line, without its end. Errors: what came until the other side closed or fell silent.
std::string readLine(int descriptor) {
    std::string line;
    char letter = 0;
    while (line.size() < kLongestLine && readable(descriptor, kAnswerMilliseconds) &&
           read(descriptor, &letter, 1) == 1 && letter != '\n')
        line += letter;
    return line;
}

void sendText(int descriptor, const std::string& text) {
    // A copy that went away meanwhile is no reason to die of SIGPIPE.
    [[maybe_unused]] const ssize_t sent = send(descriptor, text.data(), text.size(), MSG_NOSIGNAL);
}

/// The leave to take the focus that the desktop gave the copy it has just started.
std::string activationToken() {
    for (const char* name : {"XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID"}) {
        const auto token = environmentValue(name);
        if (token && !token->empty() && token->find('\n') == std::string::npos)
            return *token;
    }
    return {};
}

} // namespace

RunningCopy::RunningCopy(std::string title)
    : m_title(std::move(title)) {
    const std::string folder = privateFolder();
    if (!folder.empty())
        m_address = folder + "/" + m_title;
}

RunningCopy::~RunningCopy() {
    if (m_listener < 0)
        return;
    close(m_listener);
    unlink(m_address.c_str());
}

RunningCopy::Found RunningCopy::askToComeForward() {
    const Descriptor connection(connectTo(m_address));
    if (connection.get() < 0)
        return Found::Nobody;
    sendText(connection.get(), kKnock + activationToken() + "\n");
    // Waiting for the answer keeps the leave to take the focus alive until the other copy has used it. A copy that is
    // too busy to answer is a running copy all the same.
    readLine(connection.get());
    return Found::OtherCopy;
}

RunningCopy::Listening RunningCopy::listen() {
    sockaddr_un address{};
    Descriptor listener(newSocket());
    if (listener.get() < 0 || !fillAddress(address, m_address))
        return Listening::No;
    if (Descriptor other(connectTo(m_address)); other.get() >= 0)
        return Listening::No;
    unlink(m_address.c_str());
    if (bind(listener.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        ::listen(listener.get(), 4) != 0)
        return Listening::No;
    m_listener = listener.release();
    return Listening::Yes;
}

void RunningCopy::answerKnock(const ComeForward& comeForward) {
    if (m_listener < 0 || !readable(m_listener, 0))
        return;
    const Descriptor visitor(accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC));
    if (visitor.get() < 0)
        return;
    const std::string line = readLine(visitor.get());
    if (line.rfind(kKnock, 0) != 0)
        return;
    comeForward(line.substr(std::strlen(kKnock)));
    sendText(visitor.get(), kAnswer);
}

} // namespace platform
