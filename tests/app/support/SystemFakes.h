#pragma once

#include "app/support/Journal.h"
#include "core/System.h"

#include <functional>
#include <map>
#include <set>
#include <stdexcept>
#include <vector>

namespace tavrelion::tests {

/// Yields do what the test says: a function for a yield of a certain number, counted from 1.
class FakeEventLoop : public EventLoop {
public:
    std::map<int, std::function<void()>> atYield;
    int yields = 0;

    void yield() override {
        const auto action = atYield.find(++yields);
        if (action != atYield.end())
            action->second();
    }
    void runAside(const std::function<void()>& task, const BusyNotice& notice) override {
        if (tasksTakeLong && notice.tell)
            notice.tell();
        if (whileAside)
            whileAside();
        task();
    }
    bool tasksTakeLong = false;       ///< what is to be said about them is said
    std::function<void()> whileAside; ///< what happens before a task is through
};

/// Time passes only while something sleeps.
class FakeClock : public Clock {
public:
    std::chrono::milliseconds time{1000};
    std::vector<std::chrono::milliseconds> sleeps;

    std::chrono::milliseconds now() const override { return time; }
    void sleep(std::chrono::milliseconds duration) override {
        sleeps.push_back(duration);
        time += duration;
    }
};

class FakeFileOperations : public FileOperations {
public:
    explicit FakeFileOperations(Journal& journal)
        : m_journal(journal) {}

    std::set<QString> files;
    std::set<QString> folders;
    int failingDeletions = 0; ///< how many deletions fail before one is done
    bool failsToCopy = false;
    bool failsToCreateFolder = false;
    std::map<QString, QString> texts;
    std::map<QString, std::int64_t> sizes; ///< of the files whose length can be had

    bool exists(const QString& path) const override { return files.count(path) > 0; }
    bool folderExists(const QString& path) const override { return folders.count(path) > 0; }
    void createFolder(const QString& path) override {
        if (failsToCreateFolder)
            throw std::runtime_error("the folder cannot be made");
        folders.insert(path);
        m_journal << "create " + path;
    }
    Deletion deleteFolder(const QString& path) override {
        m_journal << "delete " + path;
        if (failingDeletions-- > 0)
            return Deletion::Failed;
        folders.erase(path);
        return Deletion::Done;
    }
    void copy(const QString& source, const QString& target) override {
        m_journal << "copy " + source + " to " + target;
        if (failsToCopy)
            throw std::runtime_error("the file is locked");
        files.insert(target);
    }
    std::int64_t size(const QString& path) const override { return sizes.at(path); }
    void makeReachableAs(const QString& file, const QString& alias) override {
        if (file != alias)
            m_journal << "reach " + file + " as " + alias;
    }
    QString readText(const QString& path) const override { return texts.at(path); }

private:
    Journal& m_journal;
};

} // namespace tavrelion::tests
