#pragma once

class QWidget;

/// Puts the focus of a window on the first field behind `start` in the order of the Tab key, unless a field has it
/// already. Windows whose strip of links comes first open at their work this way; Tab reaches the links last.
void focusFirstField(QWidget& window, QWidget& start);
