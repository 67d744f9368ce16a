#pragma once

#include "core/RunViews.h"
#include "ui/dialogs/MessagePorts.h"
#include "ui/dialogs/Refusals.h"

#include <functional>

class FormRegistry;
class QWidget;

/// Questions and refusals in the message windows. Each showing makes its window anew and loads it, so that its texts
/// are those of the moment.
class MessageWindows : public YesNoDialog, public Refusals {
public:
    /// The window that a place is told by; null when it is not there.
    using Anchor = std::function<const QWidget*(Place place)>;

    MessageWindows(FormRegistry& registry, MessagePorts ports, Anchor anchor);

    /// A question that is still open is closed for the new one.
    void ask(const QString& controlName, Place place) override;
    void refuse(const QString& controlName) override;
    void refusePages(const QString& controlName) override;

private:
    FormRegistry& m_registry;
    MessagePorts m_ports;
    Anchor m_anchor;
};
