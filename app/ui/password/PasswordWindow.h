#pragma once

#include "core/RunViews.h"
#include "ui/password/PasswordPorts.h"

class FormRegistry;

/// Asks for passwords in frmPassword, which lives for one question.
class PasswordWindow : public PasswordPrompt {
public:
    PasswordWindow(FormRegistry& registry, PasswordPorts ports);

    void ask(Password wanted) override;

private:
    FormRegistry& m_registry;
    PasswordPorts m_ports;
};
