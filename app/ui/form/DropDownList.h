#pragma once

#include <QComboBox>

/// A list that drops down and counts by positions: settings store them. Filling it selects nothing; each selection, by
/// the user or by code, is told.
class DropDownList : public QComboBox {
    Q_OBJECT

public:
    explicit DropDownList(QWidget* parent = nullptr);

    /// -1 when nothing is selected.
    int listIndex() const { return currentIndex(); }
    /// A position that the list does not have is passed over.
    void setListIndex(int position);

signals:
    void itemSelected(int position);

protected:
    void paintEvent(QPaintEvent* event) override;
};
