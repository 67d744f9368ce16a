#include "ui/form/DropDownList.h"

DropDownList::DropDownList(QWidget* parent)
    : QComboBox(parent) {
    // With a text for "nothing selected", the first item that is added does not select itself.
    setPlaceholderText(" ");
    connect(this, &QComboBox::currentIndexChanged, this, [this](int position) {
        if (position >= 0)
            emit itemSelected(position);
    });
}

void DropDownList::setListIndex(int position) {
    if (position < count())
        setCurrentIndex(position);
}
