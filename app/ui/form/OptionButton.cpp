#include "ui/form/OptionButton.h"

#include <algorithm>

OptionButton::OptionButton(QWidget* parent)
    : QRadioButton(parent) {
    connect(this, &QRadioButton::toggled, this, [this](bool isTrue) {
        fixTabStop();
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

/// The Tab key stops at the chosen one of a group; the arrow keys choose another. Without a choice it stops at each.
void OptionButton::fixTabStop() {
    const auto group = parentWidget()->findChildren<OptionButton*>(QString(), Qt::FindDirectChildrenOnly);
    const bool hasChoice = std::any_of(group.begin(), group.end(), [](const auto* option) { return option->value(); });
    for (OptionButton* option : group)
        option->setFocusPolicy(option->value() || !hasChoice ? Qt::StrongFocus : Qt::ClickFocus);
}
