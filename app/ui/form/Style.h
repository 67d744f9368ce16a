#pragma once

class QApplication;

/// Gives all windows the product's look: the light palette on a light desktop, the desktop's own on a dark or
/// high-contrast one, and one style sheet whose colours come from the palette except for the band.
void applyStyle(QApplication& application);
