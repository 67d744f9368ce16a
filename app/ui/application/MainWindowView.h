#pragma once

#include "core/RunViews.h"
#include "ui/form/MainWindowControls.h"

#include <functional>
#include <memory>

class FormRegistry;
class QWidget;
class frmMain;

/// The main window as the run sees it: loaded when it is needed, its controls found by their names, as the language
/// files find them. A control that the window does not have takes nothing and reads as empty.
class MainWindowView : public MainView, public MainWindowControls {
public:
    /// The main window, made at its first use.
    using Obtain = std::function<std::shared_ptr<frmMain>()>;

    MainWindowView(FormRegistry& registry, Obtain obtain);

    void show() override;
    void hide() override;
    bool isMinimised() const override;
    void setNormal() override;
    void minimise() override;
    void enable() override;
    void setText(Text control, const QString& text) override;
    QString text(Text control) const override;
    void setSourceToolTip(const QString& text) override;
    void enableButton(Button button) override;
    void disableButton(Button button) override;
    void showBanner(Banner banner) override;
    void showFinishedDocument(const QString& path) override;

    // What the wizards and the options window see of it
    QString txtfilepathOutput() const override;
    void setTxtfilepathOutput(const QString& path) override;
    bool chkAllPages() const override;
    bool chkFromTo() const override;

private:
    QWidget* control(const char* name) const;
    bool isChosen(const char* option) const;
    void setEnabled(Button button, bool isEnabled);

    FormRegistry& m_registry;
    Obtain m_obtain;
};
