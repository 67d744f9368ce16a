#pragma once

#include "ui/form/Picture.h"

/// The arrow beside a command, which opens its menu: by a click, or by Enter, the space bar or the down key when it has
/// the focus. Under the mouse it has a border; pressed, it looks sunken.
class DropDownPicture : public Picture {
    Q_OBJECT

public:
    explicit DropDownPicture(QWidget* parent = nullptr);

    /// Both are 0 or 1. They go back to 0 when the window says so, not when the mouse leaves.
    int borderStyle() const { return m_borderStyle; }
    int appearance() const { return m_appearance; }
    void clearFrame() { setFrame(0, 0); }

protected:
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void setFrame(int borderStyle, int appearance);

    int m_borderStyle = 0;
    int m_appearance = 0;
};
