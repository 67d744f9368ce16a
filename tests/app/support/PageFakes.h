#pragma once

#include "ui/form/FolderDialog.h"
#include "ui/form/MainWindowControls.h"

#include <QStringList>

#include <functional>
#include <stdexcept>

namespace tavrelion::tests {

class FakeFolderDialog : public FolderDialog {
public:
    QString folder;
    QStringList titles;
    bool failsToOpen = false;
    QString BrowseFolder(QWidget&, const QString& title) override {
        titles << title;
        if (failsToOpen)
            throw std::runtime_error("the folder picker is gone");
        return folder;
    }
};

class FakeMainWindow : public MainWindowControls {
public:
    int showings = 0;
    std::function<void()> whenShown;
    QString outputBox;
    bool allPages = false;
    bool fromTo = false;
    void show() override {
        ++showings;
        if (whenShown)
            whenShown();
    }
    QString txtfilepathOutput() const override { return outputBox; }
    void setTxtfilepathOutput(const QString& path) override { outputBox = path; }
    bool chkAllPages() const override { return allPages; }
    bool chkFromTo() const override { return fromTo; }
};

} // namespace tavrelion::tests
