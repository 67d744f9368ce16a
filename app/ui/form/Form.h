#pragma once

#include "core/UnloadMode.h"
#include "services/UnloadAllForms.h"

#include <QWidget>

class FormRegistry;
class QEventLoop;

/// What makes a window a window here. It is loaded once, activated at each showing, asked before it is unloaded, and
/// may refuse. A form lives in a FormRegistry, which makes and holds it; after unloading, the next use makes a new one.
/// Thread: the user interface's thread.
class Form : public QWidget, public LoadedWindow, public std::enable_shared_from_this<Form> {
    Q_OBJECT

public:
    explicit Form(FormRegistry& registry);

    /// Runs Form_Load, once.
    void load();

    /// Loads the form when needed and shows it; a form that was hidden is activated.
    void showForm();

    /// Shows the form over all others and waits until it is unloaded or hidden. Modal forms nest.
    void showModal();

    /// Unloads the form by the program, unless it refuses.
    void unload() override { unload(UnloadMode::Code); }

    /// Asks the form with the reason, then unloads it. A form that is on its way out already is left alone.
    void unload(UnloadMode reason);

    bool isLoaded() const { return m_state == State::Loaded || m_state == State::QueryingUnload; }

protected:
    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    /// `cancel` set to true keeps the form.
    virtual void Form_QueryUnload(bool& cancel, UnloadMode unloadMode);
    virtual void Form_Unload() {}

    FormRegistry& registry() const { return m_registry; }

    /// Keeps the form alive in a handler that may unload it.
    std::shared_ptr<Form> held() { return shared_from_this(); }

    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    /// Enter presses the default button; Escape presses the button with the property "escape" set.
    void keyPressEvent(QKeyEvent* event) override;

private:
    enum class State { NotLoaded, Loaded, QueryingUnload, Unloaded };

    FormRegistry& m_registry;
    State m_state = State::NotLoaded;
    QEventLoop* m_modalLoop = nullptr; ///< runs while the form is shown modally
};
