#pragma once

#include "core/Leaving.h"
#include "core/OpenDocument.h"
#include "core/ProgressRun.h"
#include "core/RunFollowUp.h"

#include <QStringList>

#include <deque>
#include <functional>
#include <map>
#include <set>
#include <stdexcept>
#include <vector>

namespace tavrelion::tests {

/// What happened around a run, in its order: one line an event.
using Journal = QStringList;

/// What the engines of a test answer, and what they were asked.
struct EngineScript {
    struct Status {
        std::int32_t code = 0;
        std::int32_t first = 0;
        std::int32_t second = 0;
        std::int16_t finishCode = 0;
    };

    std::deque<std::int32_t> results{0};       ///< of DoConvert, one a call; the last one stays
    std::deque<Status> statuses{Status{}};     ///< of GetStatus, likewise
    bool isMissing = false;                    ///< no engine can be made
    bool failsToConvert = false;               ///< DoConvert throws
    bool failsToTellStatus = false;            ///< GetStatus throws
    bool failsToCancel = false;                ///< DoCancel throws
    std::function<void()> whileConverting;     ///< runs inside DoConvert
    std::function<void()> whileAskedForStatus; ///< runs inside GetStatus

    std::vector<orvane::ConversionRequest> requests;
    int enginesMade = 0;
    int enginesAlive = 0;
    int statusCalls = 0;
    int cancels = 0;
};

template<typename Value>
Value nextOf(std::deque<Value>& script) {
    const Value value = script.front();
    if (script.size() > 1)
        script.pop_front();
    return value;
}

class FakeEngine : public orvane::ConversionEngine {
public:
    explicit FakeEngine(EngineScript& script)
        : m_script(script) {
        ++m_script.enginesMade;
        ++m_script.enginesAlive;
    }
    ~FakeEngine() override { --m_script.enginesAlive; }

    std::int32_t DoConvert(const orvane::ConversionRequest& request) override {
        m_script.requests.push_back(request);
        if (m_script.whileConverting)
            m_script.whileConverting();
        if (m_script.failsToConvert)
            throw std::runtime_error("the engine fell over");
        return nextOf(m_script.results);
    }

    std::int32_t GetStatus(std::int32_t& first, std::int32_t& second, std::int16_t& finishCode) override {
        ++m_script.statusCalls;
        if (m_script.whileAskedForStatus)
            m_script.whileAskedForStatus();
        if (m_script.failsToTellStatus)
            throw std::runtime_error("the engine does not answer");
        const EngineScript::Status status = nextOf(m_script.statuses);
        first = status.first;
        second = status.second;
        finishCode = status.finishCode;
        return status.code;
    }

    void DoCancel() override {
        ++m_script.cancels;
        if (m_script.failsToCancel)
            throw std::runtime_error("the engine does not stop");
    }

private:
    EngineScript& m_script;
};

class FakeEngineFactory : public EngineFactory {
public:
    EngineScript script;

    std::unique_ptr<orvane::ConversionEngine> create() override {
        if (script.isMissing)
            throw std::runtime_error("liborvane.so: cannot open shared object file");
        return std::make_unique<FakeEngine>(script);
    }
};

/// The progress window: unloads as the real one does, with Form_QueryUnload and Form_Unload.
class FakeProgressView : public ProgressView {
public:
    explicit FakeProgressView(Journal& journal)
        : m_journal(journal) {}

    ProgressRun* run = nullptr;
    QString status;
    QStringList statuses;
    int bar = 0;
    bool isTimerOn = false;
    bool isShown = false;
    bool isMinimised = false;
    bool isUnloaded = false;
    bool areStageLabelsHidden = false;
    bool failsToSetBar = false;
    bool failsToSetStatus = false;
    bool failsToStopTimer = false;
    std::map<Button, bool> buttons;
    QString log;
    struct Row {
        ListRow cells;
        int icon;
    };
    std::vector<Row> rows; ///< of lvwGeneral

    void show() override {
        isShown = true;
        m_journal << "progress.show";
    }
    void minimise() override {
        isMinimised = true;
        m_journal << "progress.minimise";
    }
    void unload() override {
        if (isUnloaded)
            return;
        bool cancel = false;
        run::Form_QueryUnload(*run, cancel, UnloadMode::Code);
        isUnloaded = true;
        isShown = false;
        m_journal << "progress.unload";
        run::Form_Unload(*run);
    }
    void setStatus(const QString& caption) override {
        if (failsToSetStatus)
            throw std::runtime_error("the status line is broken");
        status = caption;
        statuses << caption;
        m_journal << "status " + caption;
    }
    void setBar(int value) override {
        if (failsToSetBar)
            throw std::runtime_error("the bar is broken");
        bar = value;
        m_journal << "bar " + QString::number(value);
    }
    void startTimer() override {
        isTimerOn = true;
        m_journal << "timer on";
    }
    void stopTimer() override {
        if (failsToStopTimer)
            throw std::runtime_error("the timer is broken");
        isTimerOn = false;
        m_journal << "timer off";
    }
    QString stageCaption(const QString& label) const override { return "<" + label + ">"; }
    void hideStageLabels() override { areStageLabelsHidden = true; }
    void showButton(Button button) override { buttons[button] = true; }
    void hideButton(Button button) override { buttons[button] = false; }
    void addListRow(int index, const ListRow& row, int icon) override {
        if (index < 1 || index > static_cast<int>(rows.size()) + 1)
            throw std::out_of_range("Index out of bounds");
        rows.insert(rows.begin() + index - 1, {row, icon});
    }
    void setListRow(int index, const QString& text, int icon) override {
        Row& row = rows.at(static_cast<std::size_t>(index - 1));
        row.cells.status = text;
        row.icon = icon;
    }
    void showLog(const QString& text) override { log = text; }
    void setDefaultPointer() override { m_journal << "default pointer"; }

private:
    Journal& m_journal;
};

class FakeMainView : public MainView {
public:
    explicit FakeMainView(Journal& journal)
        : m_journal(journal) {}

    bool isShown = true;
    bool isMinimisedNow = false;
    bool isEnabled = true;
    bool failsToSetTexts = false;
    bool failsToShow = false;
    std::map<Text, QString> texts;
    QString sourceToolTip = "design";
    std::map<Button, bool> buttons;
    Banner banner = Banner::lblPlzBrowse;
    QString finishedDocument;

    void show() override {
        if (failsToShow)
            throw std::runtime_error("the main window is broken");
        isShown = true;
        m_journal << "main.show";
    }
    void hide() override {
        isShown = false;
        m_journal << "main.hide";
    }
    bool isMinimised() const override { return isMinimisedNow; }
    void setNormal() override { m_journal << "main.normal"; }
    void minimise() override {
        isMinimisedNow = true;
        m_journal << "main.minimise";
    }
    void enable() override { isEnabled = true; }
    void setText(Text control, const QString& value) override {
        if (failsToSetTexts)
            throw std::runtime_error("the box is broken");
        texts[control] = value;
    }
    QString text(Text control) const override {
        const auto found = texts.find(control);
        return found == texts.end() ? QString() : found->second;
    }
    void setSourceToolTip(const QString& value) override { sourceToolTip = value; }
    void enableButton(Button button) override { buttons[button] = true; }
    void disableButton(Button button) override { buttons[button] = false; }
    void showBanner(Banner shown) override { banner = shown; }
    void showFinishedDocument(const QString& path) override { finishedDocument = path; }

private:
    Journal& m_journal;
};

class FakeMessageBox : public UserMessages {
public:
    explicit FakeMessageBox(Journal& journal)
        : m_journal(journal) {}

    struct Message {
        Icon icon;
        QString text;
        QString title;
    };
    std::vector<Message> messages;
    QStringList questions;
    Answer answer = Answer::No;

    void tell(Icon icon, const QString& text, const QString& title) override {
        messages.push_back({icon, text, title});
        m_journal << "message";
    }
    Answer ask(const QString& question, const QString&) override {
        questions << question;
        return answer;
    }

private:
    Journal& m_journal;
};

class FakeYesNoDialog : public YesNoDialog {
public:
    explicit FakeYesNoDialog(SharedRecords& records)
        : m_records(records) {}

    std::int16_t answer = 0;
    QStringList asked;
    std::vector<Place> places;
    std::function<void()> whileOpen;

    void ask(const QString& controlName, Place place) override {
        asked << controlName;
        places.push_back(place);
        if (whileOpen)
            whileOpen();
        m_records.flags.intDialogAnswer = answer;
    }

private:
    SharedRecords& m_records;
};

/// Enters one password after the other; gives the file up when none is left, as the real window does.
class FakePasswordPrompt : public PasswordPrompt {
public:
    explicit FakePasswordPrompt(SharedRecords& records)
        : m_records(records) {}

    std::deque<QString> passwords;
    std::vector<Password> asked;
    std::function<void()> giveUp;
    std::function<void()> whileOpen;

    void ask(Password wanted) override {
        asked.push_back(wanted);
        if (whileOpen)
            whileOpen();
        m_records.flags.intDialogAnswer = passwords.empty() ? 0 : 1;
        if (passwords.empty())
            return giveUp();
        m_records.job.strPdfPassword = passwords.front();
        passwords.pop_front();
    }

private:
    SharedRecords& m_records;
};

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

class FakeFollowUp : public RunFollowUp {
public:
    explicit FakeFollowUp(Journal& journal)
        : m_journal(journal) {}

    void ShowCompleted(ProgressRun&, Offer) override { m_journal << "ShowCompleted"; }
    void BatchConversion(ProgressRun& run) override {
        m_journal << (run.blnAdvanceQueue ? "BatchConversion advancing" : "BatchConversion");
    }
    void GetNextFile(ProgressRun&) override { m_journal << "GetNextFile"; }
    void LaunchMsWordForMultipleFiles(ProgressRun&) override { m_journal << "LaunchMsWordForMultipleFiles"; }
    void UpdateListRow(ProgressRun&, int row, const QString& text, int icon) override {
        m_journal << "row " + QString::number(row) + " " + text + " " + QString::number(icon);
    }

private:
    Journal& m_journal;
};

/// Notes what is opened, and with what.
class FakeDocumentShell : public DocumentShell {
public:
    int installed = 1;
    bool failsToOpen = false;
    QStringList opened; ///< "winword PATH in FOLDER" or "association PATH in FOLDER"

    int IsMSWordInstalled() override { return installed; }
    void openInWordProcessor(const QString& path, const QString& folder) override { open("winword", path, folder); }
    void openByAssociation(const QString& path, const QString& folder) override { open("association", path, folder); }

private:
    void open(const QString& how, const QString& path, const QString& folder) {
        if (failsToOpen)
            throw std::runtime_error("the shell is gone");
        opened << how + ' ' + path + " in " + folder;
    }
};

/// Loaded windows of a test: counts how often each is unloaded.
class FakeWindows : public LoadedWindows {
public:
    struct Window : LoadedWindow {
        int unloads = 0;
        void unload() override { ++unloads; }
    };
    std::vector<std::shared_ptr<Window>> windows{std::make_shared<Window>(), std::make_shared<Window>()};

    std::vector<std::shared_ptr<LoadedWindow>> loadedWindows() const override {
        return {windows.begin(), windows.end()};
    }
};

} // namespace tavrelion::tests
