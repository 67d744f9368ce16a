#pragma once

#include <QString>

/// The main window as the wizards and the options window see it: some of its controls, and its showing.
class MainWindowControls {
public:
    virtual ~MainWindowControls() = default;

    virtual void show() = 0; ///< makes and loads it when needed

    virtual QString txtfilepathOutput() const = 0;
    virtual void setTxtfilepathOutput(const QString& path) = 0;
    virtual bool chkAllPages() const = 0;
    virtual bool chkFromTo() const = 0;
};
