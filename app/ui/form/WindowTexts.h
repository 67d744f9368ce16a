#pragma once

struct LanguageTable;
class QWidget;

/// Puts a window's texts into the language of the settings and gives its controls their access keys. As with every
/// caption pass, text boxes and lists are to be filled afterwards.
void captionWindow(LanguageTable& languages, QWidget& window);
