#include "ui/dialogs/MessageWindows.h"

#include "ui/dialogs/MessageSelection.h"
#include "ui/dialogs/frmErrorOkOnly.h"
#include "ui/dialogs/frmErrorYesNoOnly.h"
#include "ui/dialogs/frmmsgbox.h"
#include "ui/form/FormRegistry.h"

#include <QScreen>

#include <algorithm>

namespace {

constexpr int kBelowCentre = 80; ///< pixels, 1200 twips: leaves the progress window's status line in sight

/// Moves a window to the middle of another, but not out of the screen.
void centreOn(QWidget& window, const QWidget& anchor, int below) {
    window.adjustSize();
    const QRect frame = anchor.frameGeometry();
    const QRect screen = anchor.screen()->availableGeometry();
    const int left = frame.x() + (frame.width() - window.width()) / 2;
    const int top = frame.y() + (frame.height() - window.height()) / 2 + below;
    window.move(std::clamp(left, screen.left(), std::max(screen.left(), screen.right() - window.width())),
                std::clamp(top, screen.top(), std::max(screen.top(), screen.bottom() - window.height())));
}

template<typename Window>
void showText(FormRegistry& registry, const MessagePorts& ports, const QString& controlName) {
    const auto window = registry.obtain<Window>(ports);
    window->load();
    showOnlyText(*window, controlName);
    window->showModal();
    window->unload();
}

} // namespace

MessageWindows::MessageWindows(FormRegistry& registry, MessagePorts ports, Anchor anchor)
    : m_registry(registry)
    , m_ports(ports)
    , m_anchor(std::move(anchor)) {}

void MessageWindows::ask(const QString& controlName, Place place) {
    if (const auto open = m_registry.find<frmErrorYesNoOnly>())
        open->unload();
    // A question that the program itself takes away, as at its end, has not been answered with yes.
    m_ports.records.flags.intDialogAnswer = 0;
    const auto window = m_registry.obtain<frmErrorYesNoOnly>(m_ports);
    window->load();
    window->DisplayMsgYesNo(controlName);
    if (const QWidget* anchor = m_anchor(place))
        centreOn(*window, *anchor, place == Place::BelowCentreOfProgress ? kBelowCentre : 0);
    window->showModal();
}

void MessageWindows::refuse(const QString& controlName) {
    showText<frmErrorOkOnly>(m_registry, m_ports, controlName);
}

void MessageWindows::refusePages(const QString& controlName) {
    showText<frmmsgbox>(m_registry, m_ports, controlName);
}
