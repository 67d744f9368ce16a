#include "ui/application/MainWindowView.h"

#include "ui/form/FormRegistry.h"
#include "ui/main/frmMain.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>

namespace {

const char* nameOf(MainView::Text control) {
    switch (control) {
    case MainView::Text::txtfilepath:
        return "txtfilepath";
    case MainView::Text::txtFileBrowsePath:
        return "txtFileBrowsePath";
    case MainView::Text::txtFileSize:
        return "txtFileSize";
    case MainView::Text::txtfilepathOutput:
        return "txtfilepathOutput";
    case MainView::Text::lblOutputFormatDoc:
        break;
    }
    return "lblOutputFormatDoc";
}

const char* nameOf(MainView::Button button) {
    return button == MainView::Button::cmdBrowse ? "cmdBrowse" : "cmdBrowseOutput";
}

} // namespace

MainWindowView::MainWindowView(FormRegistry& registry, Obtain obtain)
    : m_registry(registry)
    , m_obtain(std::move(obtain)) {}

void MainWindowView::show() {
    if (!m_registry.hasProgramEnded())
        m_obtain()->showForm();
}

void MainWindowView::hide() {
    m_obtain()->hide();
}

bool MainWindowView::isMinimised() const {
    const auto window = m_registry.find<frmMain>();
    return window && window->isMinimized();
}

void MainWindowView::setNormal() {
    if (!m_registry.hasProgramEnded())
        m_obtain()->showNormal();
}

void MainWindowView::minimise() {
    const auto window = m_obtain();
    window->setWindowState(window->windowState() | Qt::WindowMinimized);
}

void MainWindowView::enable() {
    m_obtain()->setEnabled(true);
}

QWidget* MainWindowView::control(const char* name) const {
    return m_obtain()->findChild<QWidget*>(name);
}

void MainWindowView::setText(Text target, const QString& text) {
    QWidget* widget = control(nameOf(target));
    if (auto* box = qobject_cast<QLineEdit*>(widget))
        box->setText(text);
    else if (auto* label = qobject_cast<QLabel*>(widget))
        label->setText(text);
}

QString MainWindowView::text(Text source) const {
    const QWidget* widget = control(nameOf(source));
    if (const auto* box = qobject_cast<const QLineEdit*>(widget))
        return box->text();
    const auto* label = qobject_cast<const QLabel*>(widget);
    return label ? label->text() : QString();
}

void MainWindowView::setSourceToolTip(const QString& text) {
    if (QWidget* box = control(nameOf(Text::txtFileBrowsePath)))
        box->setToolTip(text);
}

void MainWindowView::setEnabled(Button button, bool isEnabled) {
    if (QWidget* widget = control(nameOf(button)))
        widget->setEnabled(isEnabled);
}

void MainWindowView::enableButton(Button button) {
    setEnabled(button, true);
}

void MainWindowView::disableButton(Button button) {
    setEnabled(button, false);
}

void MainWindowView::showBanner(Banner banner) {
    const bool isBatch = banner == Banner::lblBatchInProcess;
    if (QWidget* inProcess = control("lblBatchInProcess"))
        inProcess->setVisible(isBatch);
    if (QWidget* pleaseBrowse = control("lblPlzBrowse"))
        pleaseBrowse->setVisible(!isBatch);
}

void MainWindowView::showFinishedDocument(const QString& path) {
    m_obtain()->showFinishedDocument(path);
}

QString MainWindowView::txtfilepathOutput() const {
    return text(Text::txtfilepathOutput);
}

void MainWindowView::setTxtfilepathOutput(const QString& path) {
    setText(Text::txtfilepathOutput, path);
}

bool MainWindowView::chkAllPages() const {
    return isChosen("chkAllPages");
}

bool MainWindowView::chkFromTo() const {
    return isChosen("chkFromTo");
}

bool MainWindowView::isChosen(const char* option) const {
    const auto* button = qobject_cast<const QAbstractButton*>(control(option));
    return button && button->isChecked();
}
