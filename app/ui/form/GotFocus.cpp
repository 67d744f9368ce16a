#include "ui/form/GotFocus.h"

#include <QEvent>
#include <QWidget>

namespace {

class FocusFilter : public QObject {
public:
    FocusFilter(QWidget& control, std::function<void()> handler)
        : QObject(&control)
        , m_handler(std::move(handler)) {
        control.installEventFilter(this);
    }

    bool eventFilter(QObject* control, QEvent* event) override {
        // Once the event is through: a control that loses the focus inside its own event draws itself as if it had it.
        if (event->type() == QEvent::FocusIn)
            QMetaObject::invokeMethod(
                control,
                [this, control] {
                    if (static_cast<QWidget*>(control)->hasFocus())
                        m_handler();
                },
                Qt::QueuedConnection);
        return false;
    }

private:
    std::function<void()> m_handler;
};

} // namespace

void onGotFocus(QWidget& control, std::function<void()> handler) {
    new FocusFilter(control, std::move(handler)); // the control owns it
}
