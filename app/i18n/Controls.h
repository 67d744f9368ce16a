#pragma once

#include <QString>

#include <vector>

class QWidget;

/// What a widget is to a caption pass.
enum class ControlKind { CommandButton, Label, CheckBox, Frame, OptionButton, ComboBox, ListBox, TextBox, Other };

ControlKind kindOf(const QWidget& control);

/// The named widgets of a window in their order of creation. What has no name, and the inner parts of Qt's own widgets,
/// are no controls of the window.
std::vector<QWidget*> controlsOf(const QWidget& window);

/// Reads and writes what a control of the first five kinds shows. Errors: throw for another kind.
QString captionOf(const QWidget& control);
void setCaption(QWidget& control, const QString& caption);

/// Units: twips, 15 to a pixel at 96 dpi.
int widthInTwips(const QWidget& control);

/// How many characters a width counts for, rounded to the nearest number with halves to the even neighbour.
/// Units: `width` in twips.
int charactersIn(int width);
