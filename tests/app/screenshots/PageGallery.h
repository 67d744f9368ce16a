#pragma once

#include <QString>

#include <cstdint>

/// Draws the pages of the wizards, the options window, the page prompt and the feedback form in a language into a
/// folder, each as a user meets it.
void drawPages(const QString& folder, std::int16_t language);
