#pragma once

#include "ui/form/Form.h"

#include <memory>
#include <string>
#include <vector>

/// The application's loaded windows: one of each kind at a time, made at its first use.
/// Owns: the forms. One that is unloaded lives on until the handlers that still use it are through.
class FormRegistry : public LoadedWindows {
public:
    /// The loaded form of that kind, or a new one made from the arguments. The new one is not loaded yet.
    template<typename FormType, typename... Arguments>
    std::shared_ptr<FormType> obtain(Arguments&&... arguments) {
        if (auto loaded = find<FormType>())
            return loaded;
        auto* form = new FormType(*this, std::forward<Arguments>(arguments)...);
        std::shared_ptr<FormType> holder(form, [](FormType* unused) { unused->deleteLater(); });
        m_forms.push_back(holder);
        return holder;
    }

    /// The form of that kind; null when there is none.
    template<typename FormType>
    std::shared_ptr<FormType> find() const {
        for (const auto& form : m_forms)
            if (auto wanted = std::dynamic_pointer_cast<FormType>(form))
                return wanted;
        return nullptr;
    }

    std::vector<std::shared_ptr<LoadedWindow>> loadedWindows() const override;

    /// Lets go of a form that is being unloaded.
    void remove(const Form& form);

    /// Restores and brings to the foreground the window that the user is at.
    /// `activationToken`: the display server's leave to take the focus, often empty.
    void bringForward(const std::string& activationToken);

    /// Ends the program: nothing is shown any more, and the event loop returns.
    void endProgram();
    bool hasProgramEnded() const { return m_hasProgramEnded; }

    /// Deletes all forms, loaded or not, asking nobody. Requires: no handler of a form is running.
    void dispose();

    /// Why a window is being closed from outside.
    UnloadMode closeReason() const { return m_closeReason; }
    void noteSystemShutdown() { m_closeReason = UnloadMode::SystemShutdown; }

private:
    std::vector<std::shared_ptr<Form>> m_forms;
    UnloadMode m_closeReason = UnloadMode::ControlMenu;
    bool m_hasProgramEnded = false;
};
