#pragma once

class QWidget;

/// Gives every control of the window that the keyboard reaches an access key of its own, after a caption pass: the
/// buttons, the check boxes and options, the links, and the labels that stand for a control without a caption. A key
/// that a caption asks for with "&" is kept where possible; any other control gets the first letter of a word, or any
/// letter or digit, and one with an accent only where nothing else is left. Only a caption for which no letter at all
/// is left has none. Controls that are hidden now get theirs too, for the time when they are shown, but not what lies
/// in a hidden container: that is there for its texts alone.
void assignAccessKeys(QWidget& window);
