#pragma once

#include <functional>

class QWidget;

/// Runs the handler each time the control has got the focus; it may move the focus on.
void onGotFocus(QWidget& control, std::function<void()> handler);
