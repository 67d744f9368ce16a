#pragma once

#include "app/support/RunFakes.h"
#include "core/FileDialogs.h"
#include "ui/dialogs/Refusals.h"
#include "ui/main/NextWindows.h"

#include <optional>

namespace tavrelion::tests {

/// File dialogs in which a user chooses what the test says; nothing chosen is Cancel.
class FakeFileDialogs : public FileDialogs {
public:
    std::optional<QString> opened;
    std::optional<QString> saved;
    std::vector<OpenRequest> openRequests;
    std::vector<SaveRequest> saveRequests;

    std::optional<QString> open(const OpenRequest& request) override {
        openRequests.push_back(request);
        return opened;
    }
    std::optional<QString> save(const SaveRequest& request) override {
        saveRequests.push_back(request);
        return saved;
    }
};

/// Notes the refusals, in the order of everything else that is told.
class FakeRefusals : public Refusals {
public:
    explicit FakeRefusals(Journal& journal)
        : m_journal(journal) {}

    QStringList refused; ///< the controls, of both windows

    void refuse(const QString& controlName) override {
        m_journal << "refuse " + controlName;
        refused << controlName;
    }
    void refusePages(const QString& controlName) override {
        m_journal << "refuse pages " + controlName;
        refused << controlName;
    }

private:
    Journal& m_journal;
};

/// Notes which window the main window hands over to.
class FakeNextWindows : public NextWindows {
public:
    explicit FakeNextWindows(Journal& journal)
        : m_journal(journal) {}

    bool failsToShow = false;
    std::optional<ImagePages> imagePages;
    QString strExtractPages;
    std::int16_t intExtractFromTo = 0;

    void showLayout() override { note("frmLayout"); }
    void showOutputOptions() override { note("frmOutputOptions"); }
    void showOptions() override { note("frmOption"); }
    void showProgress() override { note("frmProgress"); }
    void showProgressAndWait() override { note("frmProgress until its end"); }
    void chooseImagePages(ImagePages pages) override { imagePages = pages; }
    QString sameSourceImagesCaption() override { return "<same>"; }
    void setImagePages(const QString& pages, std::int16_t fromTo) override {
        strExtractPages = pages;
        intExtractFromTo = fromTo;
    }
    void showImageFormatOutput() override { note("frmImageFormatOutput"); }

private:
    void note(const char* window) {
        if (failsToShow)
            throw std::runtime_error("the window cannot be made");
        m_journal << window;
    }

    Journal& m_journal;
};

} // namespace tavrelion::tests
