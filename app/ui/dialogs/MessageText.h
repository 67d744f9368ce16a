#pragma once

#include <QPlainTextEdit>

/// A message in a text box that reads as plain text: as large as its lines, without a frame, not to be edited. It tells
/// when it gets the focus, so that its window can hand the focus on.
class MessageText : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit MessageText(QWidget* parent = nullptr);

    /// Takes the background of the window that it stands on.
    void takeWindowColour();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    void gotFocus();

protected:
    void focusInEvent(QFocusEvent* event) override;
};
