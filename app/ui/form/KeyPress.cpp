#include "ui/form/KeyPress.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace {

constexpr int kBackspace = 8;

/// The character that a key types; 0 for a key that types none.
int characterOf(const QKeyEvent& event) {
    if (event.key() == Qt::Key_Backspace)
        return kBackspace;
    const bool isShortcut = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const QString text = event.text();
    if (text.isEmpty() || !text.front().isPrint() || (isShortcut && !(event.modifiers() & Qt::GroupSwitchModifier)))
        return 0;
    return text.front().unicode();
}

class KeyPressFilter : public QObject {
public:
    KeyPressFilter(QLineEdit& box, std::function<void(int&)> handler)
        : QObject(&box)
        , m_handler(std::move(handler)) {
        box.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress)
            return false;
        int keyCode = characterOf(static_cast<const QKeyEvent&>(*event));
        if (keyCode == 0)
            return false;
        m_handler(keyCode);
        return keyCode == 0;
    }

private:
    std::function<void(int&)> m_handler;
};

} // namespace

void onKeyPress(QLineEdit& box, std::function<void(int& keyCode)> handler) {
    new KeyPressFilter(box, std::move(handler)); // the box owns it
}
