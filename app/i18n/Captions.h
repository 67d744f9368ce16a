#pragma once

#include "i18n/LanguageTable.h"

/// Puts the texts of the language files on a window: a walk over its controls, each asked for by object name and kind.
/// A control is a widget with an object name; containers count as controls like everything else.

/// Gives every control of the window its text from the main language file: captions of buttons, labels, check boxes,
/// frames and option buttons, items of combo boxes and lists, texts of text boxes. A control without an entry ends
/// empty. Other kinds are left alone. A file that cannot be read is told once, and the design-time captions stay.
/// Errors: logged; controls not yet reached keep their captions.
void GetControlCaptions(LanguageTable& table, QWidget& window);

/// The same for the options window from the options language file, which has nothing for option buttons and text boxes.
/// Errors: skipped, also a file that cannot be read.
void GetOptionCaptions(LanguageTable& table, QWidget& window);

/// As GetControlText, from docOptions. Errors: skipped; `text` stays as it was.
void GetControlTextOpt(LanguageTable& table, const QString& key, QWidget* listControl, QString& text);

/// Captions of the options window at its load and at each activation. Without a word processor the first format goes
/// from the list cboOutputFileformat. `isWordInstalled`: asked after the pass, 0 for none. Errors: skipped.
void LoadOptionCaptions(LanguageTable& table, QWidget& frmOption, const std::function<int()>& isWordInstalled);

/// A caption as a widget without a shortcut of its own shows it: "&" goes, "&&" becomes "&".
QString withoutMnemonic(const QString& caption);
