#pragma once

#include "core/FileDialogs.h"
#include "ui/dialogs/Refusals.h"
#include "ui/form/FolderDialog.h"
#include "ui/form/MainWindowControls.h"

#include <QStringList>

#include <vector>

namespace tavrelion::tests {

class FakeRefusals : public Refusals {
public:
    QStringList refused;
    void refuse(const QString& controlName) override { refused << controlName; }
    void refusePages(const QString& controlName) override { refused << controlName; }
};

/// Answers with the file that the test names; nothing for Cancel.
class FakeFileDialogs : public FileDialogs {
public:
    std::optional<QString> file;
    std::vector<SaveRequest> saves;
    std::optional<QString> open(const OpenRequest&) override { return file; }
    std::optional<QString> save(const SaveRequest& request) override {
        saves.push_back(request);
        return file;
    }
};

class FakeFolderDialog : public FolderDialog {
public:
    QString folder;
    QStringList titles;
    QString BrowseFolder(QWidget&, const QString& title) override {
        titles << title;
        return folder;
    }
};

class FakeMainWindow : public MainWindowControls {
public:
    int showings = 0;
    QString outputBox;
    bool allPages = false;
    bool fromTo = false;
    void show() override { ++showings; }
    QString txtfilepathOutput() const override { return outputBox; }
    void setTxtfilepathOutput(const QString& path) override { outputBox = path; }
    bool chkAllPages() const override { return allPages; }
    bool chkFromTo() const override { return fromTo; }
};

} // namespace tavrelion::tests
