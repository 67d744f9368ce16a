#include "ui/dialogs/MessageText.h"

#include <QFontMetrics>

#include <algorithm>

MessageText::MessageText(QWidget* parent)
    : QPlainTextEdit(parent) {
    setReadOnly(true);
    setFrameShape(QFrame::NoFrame);
    setLineWrapMode(NoWrap);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
    document()->setDocumentMargin(0);
    connect(this, &QPlainTextEdit::textChanged, this, &MessageText::updateGeometry);
}

void MessageText::takeWindowColour() {
    QPalette colours = palette();
    colours.setColor(QPalette::Base, window()->palette().color(QPalette::Window));
    setPalette(colours);
}

QSize MessageText::sizeHint() const {
    const QFontMetrics metrics(font());
    QString text = toPlainText();
    // Texts end in a line break, which needs no room.
    while (text.endsWith('\n'))
        text.chop(1);
    const QStringList lines = text.split('\n');
    int width = 0;
    for (const QString& line : lines)
        width = std::max(width, metrics.horizontalAdvance(line));
    constexpr int kRoomForCaret = 2; // pixels
    return {width + kRoomForCaret, static_cast<int>(lines.size()) * metrics.lineSpacing() + kRoomForCaret};
}

void MessageText::focusInEvent(QFocusEvent* event) {
    QPlainTextEdit::focusInEvent(event);
    emit gotFocus();
}
