#pragma once

#include <utility>

#include <unistd.h>

namespace orvane::protocol {

/// An open file of the system, closed with the object.
class FileDescriptor {
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int descriptor)
        : m_descriptor(descriptor) {}
    ~FileDescriptor() { close(); }
    FileDescriptor(FileDescriptor&& other) noexcept
        : m_descriptor(std::exchange(other.m_descriptor, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }

    int get() const { return m_descriptor; } ///< -1 when none is open
    bool isOpen() const { return m_descriptor >= 0; }
    void close() {
        if (m_descriptor >= 0)
            ::close(std::exchange(m_descriptor, -1));
    }

private:
    int m_descriptor = -1;
};

} // namespace orvane::protocol
