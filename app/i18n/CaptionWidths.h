#pragma once

class QWidget;

/// Shortens captions that would not fit: of four labels of the link bar and of cmdViewLog. For the windows frmProgress,
/// frmMain and frmOption only; another window stays as it is. Each pass leaves a record in the error log for every
/// control of the window, which is kept: see the source.
void WrapButtonCaptions(QWidget& window);
