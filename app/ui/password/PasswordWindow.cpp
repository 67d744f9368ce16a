#include "ui/password/PasswordWindow.h"

#include "ui/form/FormRegistry.h"
#include "ui/password/frmPassword.h"

PasswordWindow::PasswordWindow(FormRegistry& registry, PasswordPorts ports)
    : m_registry(registry)
    , m_ports(std::move(ports)) {}

void PasswordWindow::ask(Password wanted) {
    const auto window = m_registry.obtain<frmPassword>(m_ports);
    window->load();
    window->showWanted(wanted);
    window->showModal();
}
