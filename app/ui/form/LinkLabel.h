#pragma once

#include <QLabel>

/// A label that acts like a button: by a click, by Enter or the space bar when it has the focus, and by its access key.
class LinkLabel : public QLabel {
    Q_OBJECT

public:
    explicit LinkLabel(QWidget* parent = nullptr);

signals:
    void clicked();

protected:
    bool event(QEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};
