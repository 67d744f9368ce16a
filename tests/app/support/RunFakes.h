#pragma once

#include "app/support/DialogFakes.h"
#include "app/support/EngineFakes.h"
#include "app/support/SystemFakes.h"
#include "app/support/ViewFakes.h"
#include "core/OpenDocument.h"
#include "core/ProgressRun.h"
#include "core/RunFollowUp.h"

#include <memory>
#include <stdexcept>
#include <vector>

// Everything that a run reaches, faked: the engine, the windows and dialogs, the system, and what is here.

namespace tavrelion::tests {

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
