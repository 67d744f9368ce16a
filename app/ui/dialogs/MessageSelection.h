#pragma once

#include <QString>

class QWidget;

/// Of the text boxes and labels of a message window, which lie on top of each other, shows the one of that name and
/// hides the others. A name that no text has hides them all. Controls of other kinds are left alone.
void showOnlyText(QWidget& messageWindow, const QString& controlName);
