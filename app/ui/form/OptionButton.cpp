#include "ui/form/OptionButton.h"

OptionButton::OptionButton(QWidget* parent)
    : QRadioButton(parent) {
    connect(this, &QRadioButton::toggled, this, [this](bool isTrue) {
        if (isTrue)
            emit turnedTrue();
    });
}

void OptionButton::setValue(bool value) {
    if (value) {
        setChecked(true);
        return;
    }
    // A chosen button of a group cannot be taken back as long as it belongs to the group.
    setAutoExclusive(false);
    setChecked(false);
    setAutoExclusive(true);
}
