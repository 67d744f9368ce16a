#include "ui/form/Form.h"

#include "records/SharedRecords.h"
#include "ui/form/FormRegistry.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QPushButton>
#include <QWindow>

namespace {

/// The first button that can be pressed now and that the condition holds for.
template<typename Condition>
QPushButton* pressableButton(const QWidget& window, Condition condition) {
    for (QPushButton* button : window.findChildren<QPushButton*>())
        if (button->isVisible() && button->isEnabled() && condition(*button))
            return button;
    return nullptr;
}

/// Keeps a window in front of the one that it was opened over.
void putOver(QWidget& window, const QWidget* below) {
    window.winId(); // makes its handle
    if (below && below != &window && below->windowHandle())
        window.windowHandle()->setTransientParent(below->windowHandle());
}

} // namespace

Form::Form(FormRegistry& registry)
    : m_registry(registry) {
    setWindowTitle(kWindowTitle);
}

void Form::load() {
    if (m_state != State::NotLoaded)
        return;
    m_state = State::Loaded;
    const auto alive = held();
    Form_Load();
}

void Form::showForm() {
    const auto alive = held();
    load();
    if (!isLoaded() || m_registry.hasProgramEnded())
        return;
    const bool wasHidden = !isVisible();
    show();
    if (wasHidden)
        Form_Activate();
}

void Form::showModal() {
    const auto alive = held();
    load();
    if (!isLoaded() || m_registry.hasProgramEnded())
        return;
    setWindowModality(Qt::ApplicationModal);
    putOver(*this, QApplication::activeWindow());
    QEventLoop loop;
    m_modalLoop = &loop;
    showForm();
    activateWindow();
    if (isVisible())
        loop.exec(QEventLoop::DialogExec);
    m_modalLoop = nullptr;
}

void Form::unload(UnloadMode reason) {
    if (m_state != State::Loaded)
        return;
    const auto alive = held();
    m_state = State::QueryingUnload;
    bool cancel = false;
    Form_QueryUnload(cancel, reason);
    m_state = cancel ? State::Loaded : State::Unloaded;
    if (cancel)
        return;
    hide();
    m_registry.remove(*this);
    Form_Unload();
}

void Form::Form_QueryUnload(bool&, UnloadMode) {}

void Form::closeEvent(QCloseEvent* event) {
    unload(m_registry.closeReason());
    // A form that refused must not be hidden; whoever asked for the close hears of it.
    event->setAccepted(m_state == State::Unloaded);
}

void Form::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    // Hiding by the desktop, as minimising does, is spontaneous and ends nothing.
    if (m_modalLoop && !event->spontaneous())
        m_modalLoop->quit();
}

void Form::keyPressEvent(QKeyEvent* event) {
    QPushButton* button = nullptr;
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        button = pressableButton(*this, [](const QPushButton& candidate) { return candidate.isDefault(); });
    else if (event->key() == Qt::Key_Escape)
        button =
            pressableButton(*this, [](const QPushButton& candidate) { return candidate.property("escape").toBool(); });
    if (button)
        button->click();
    else
        QWidget::keyPressEvent(event);
}
