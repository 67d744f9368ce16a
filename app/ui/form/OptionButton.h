#pragma once

#include <QRadioButton>

/// An option button whose click logic runs whenever its value turns True, by the user or by code. Setting True on one
/// that is True already does nothing.
class OptionButton : public QRadioButton {
    Q_OBJECT

public:
    explicit OptionButton(QWidget* parent = nullptr);

    bool value() const { return isChecked(); }
    /// False is taken too, and leaves a group with nothing chosen.
    void setValue(bool value);

signals:
    void turnedTrue();

private:
    void fixTabStop();
};
