#pragma once

#include <functional>

class QLineEdit;

/// Hands every character that is typed into the box, and backspace (8), to the handler, which swallows it by setting it
/// to 0. Keys that type nothing, shortcuts and pasted text do not come by. A key with several characters is offered by
/// its first.
void onKeyPress(QLineEdit& box, std::function<void(int& keyCode)> handler);
