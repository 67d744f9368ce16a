#pragma once

#include <QString>

#include <orvane/ConversionEngine.h>

#include <chrono>
#include <functional>
#include <memory>

/// What is said when a task takes long.
struct BusyNotice {
    std::chrono::milliseconds after{0};
    std::function<void()> tell;
};

/// The user interface's events.
class EventLoop {
public:
    virtual ~EventLoop() = default;

    /// Lets pending events run: the only place where a run can be interrupted.
    virtual void yield() = 0;

    /// Runs a task that may take long on a thread of its own and returns when it is through. Windows go on being drawn
    /// and timers go on ticking; what the user does meanwhile waits for the next yield.
    /// Errors: those of the task.
    virtual void runAside(const std::function<void()>& task, const BusyNotice& notice = {}) = 0;
};

/// Time as the run sees it.
class Clock {
public:
    virtual ~Clock() = default;
    /// Since some fixed moment.
    virtual std::chrono::milliseconds now() const = 0;
    virtual void sleep(std::chrono::milliseconds duration) = 0;
};

/// Files and folders as the run sees them.
class FileOperations {
public:
    virtual ~FileOperations() = default;

    virtual bool exists(const QString& path) const = 0;
    virtual bool folderExists(const QString& path) const = 0;
    /// Creates a folder that only this user can enter. Errors: throws.
    virtual void createFolder(const QString& path) = 0;

    enum class Deletion { Done, Failed };
    /// Deletes a folder with all it holds, without asking.
    virtual Deletion deleteFolder(const QString& path) = 0;
    /// Copies a file over whatever is there. Errors: throws.
    virtual void copy(const QString& source, const QString& target) = 0;
    /// Length of a file in bytes. Errors: throws.
    virtual std::int64_t size(const QString& path) const = 0;
    /// Makes `alias` another name of `file`, unless it is one already or there is no such file. Errors: throws.
    virtual void makeReachableAs(const QString& file, const QString& alias) = 0;
    /// The text of a file. Errors: throws.
    virtual QString readText(const QString& path) const = 0;
};

/// Makes engines.
class EngineFactory {
public:
    virtual ~EngineFactory() = default;
    /// A new engine, never null. Errors: throws when the component cannot be loaded or does not work here.
    virtual std::unique_ptr<orvane::ConversionEngine> create() = 0;
};
