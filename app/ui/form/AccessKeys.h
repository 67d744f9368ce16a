#pragma once

class QWidget;

/// Gives every control of the window that the keyboard reaches an access key of its own, after a caption pass: the
/// buttons, the check boxes, the links, and the labels that stand for another control. A key that a caption asks for
/// with "&" is kept where possible; any other control gets the first letter of a word, or any letter or digit. Only a
/// caption for which no letter at all is left has none.
void assignAccessKeys(QWidget& window);
