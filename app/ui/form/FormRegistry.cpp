#include "ui/form/FormRegistry.h"

#include <QApplication>

#include <algorithm>

std::vector<std::shared_ptr<LoadedWindow>> FormRegistry::loadedWindows() const {
    std::vector<std::shared_ptr<LoadedWindow>> windows;
    std::copy_if(m_forms.begin(), m_forms.end(), std::back_inserter(windows),
                 [](const auto& form) { return form->isLoaded(); });
    return windows;
}

void FormRegistry::remove(const Form& form) {
    m_forms.erase(std::remove_if(m_forms.begin(), m_forms.end(), [&](const auto& held) { return held.get() == &form; }),
                  m_forms.end());
}

void FormRegistry::bringForward(const std::string& activationToken) {
    const auto shown =
        std::find_if(m_forms.rbegin(), m_forms.rend(), [](const auto& form) { return form->isVisible(); });
    if (shown == m_forms.rend())
        return;
    QWidget& window = **shown;
    // The platform plugins take the token from here when the window asks to be activated.
    if (!activationToken.empty())
        qputenv("XDG_ACTIVATION_TOKEN", QByteArray::fromStdString(activationToken));
    if (window.isMinimized())
        window.showNormal();
    window.raise();
    // A question that is open is what the user has to answer first.
    QWidget* modal = QApplication::activeModalWidget();
    QWidget& front = modal ? *modal : window;
    front.raise();
    front.activateWindow();
    qunsetenv("XDG_ACTIVATION_TOKEN"); // it was for this once, and no program started later may inherit it
}

void FormRegistry::endProgram() {
    m_hasProgramEnded = true;
    QCoreApplication::exit(0);
}

void FormRegistry::dispose() {
    m_forms.clear();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
