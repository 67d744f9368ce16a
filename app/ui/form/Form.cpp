#include "ui/form/Form.h"

#include "records/SharedRecords.h"
#include "ui/form/FormRegistry.h"

#include <QCloseEvent>

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
