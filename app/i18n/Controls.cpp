#include "i18n/Controls.h"

#include "i18n/Captions.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

#include <cmath>
#include <stdexcept>

namespace {

constexpr int kTwipsPerPixel = 15;      ///< at 96 dpi; on finer screens Qt counts in such pixels too
constexpr double kTwipsPerChar = 120.0; ///< what the product reckons for a character

bool isPartOfAWidget(const QWidget& widget) {
    return widget.objectName().isEmpty() || widget.objectName().startsWith("qt_");
}

void collectControls(const QWidget& parent, std::vector<QWidget*>& controls) {
    for (QObject* child : parent.children()) {
        auto* widget = qobject_cast<QWidget*>(child);
        if (!widget)
            continue;
        if (!isPartOfAWidget(*widget))
            controls.push_back(widget);
        collectControls(*widget, controls);
    }
}

} // namespace

ControlKind kindOf(const QWidget& control) {
    if (qobject_cast<const QCheckBox*>(&control))
        return ControlKind::CheckBox;
    if (qobject_cast<const QRadioButton*>(&control))
        return ControlKind::OptionButton;
    if (qobject_cast<const QPushButton*>(&control) || qobject_cast<const QToolButton*>(&control))
        return ControlKind::CommandButton;
    if (qobject_cast<const QLabel*>(&control))
        return ControlKind::Label;
    if (qobject_cast<const QGroupBox*>(&control))
        return ControlKind::Frame;
    if (qobject_cast<const QComboBox*>(&control))
        return ControlKind::ComboBox;
    if (qobject_cast<const QListWidget*>(&control))
        return ControlKind::ListBox;
    // A QTextEdit is a rich text box, which shows files and has no text of its own.
    if (qobject_cast<const QLineEdit*>(&control) || qobject_cast<const QPlainTextEdit*>(&control))
        return ControlKind::TextBox;
    return ControlKind::Other;
}

std::vector<QWidget*> controlsOf(const QWidget& window) {
    std::vector<QWidget*> controls;
    collectControls(window, controls);
    return controls;
}

QString captionOf(const QWidget& control) {
    if (const auto* label = qobject_cast<const QLabel*>(&control))
        return label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&control))
        return button->text();
    if (const auto* frame = qobject_cast<const QGroupBox*>(&control))
        return frame->title();
    throw std::runtime_error("Object doesn't support this property or method");
}

void setCaption(QWidget& control, const QString& caption) {
    if (auto* label = qobject_cast<QLabel*>(&control))
        label->setText(label->buddy() ? caption : withoutMnemonic(caption));
    else if (auto* button = qobject_cast<QAbstractButton*>(&control))
        button->setText(caption);
    else if (auto* frame = qobject_cast<QGroupBox*>(&control))
        frame->setTitle(caption);
    else
        throw std::runtime_error("Object doesn't support this property or method");
}

int widthInTwips(const QWidget& control) {
    return control.width() * kTwipsPerPixel;
}

int charactersIn(int width) {
    return static_cast<int>(std::nearbyint(width / kTwipsPerChar));
}
