#pragma once

#include <QString>

/// The one parser of page ranges as the user types them: "1-3,7,10-12". It only accepts or refuses; the engine takes
/// the text apart. Three windows have a box for it, and their rules differ on purpose: see PageRangeRules.

/// Whose box is checked. The users of each window are used to what it takes, so the differences stay.
///   MainWindow: every number is at least 1, and no single number has more than five characters.
///   ConversionWizard: only the first number is tested for being at least 1, in the text with its blanks; only the
///   numbers of the last item are tested for their length.
///   ExtractionWizard: as ConversionWizard, but its buttons test the first number (startsWithPageNumber()).
/// With all three, the numbers of an item like 100000-100001 are only tested for their length in the last item.
enum class PageRangeRules { MainWindow, ConversionWizard, ExtractionWizard };

/// What is wrong with a page range.
enum class PageRangeFault { None, BelowOne, Format, TooLong };

/// What becomes of the box after the message about the fault.
enum class PageRangeBox { Untouched, Enabled, EnabledWithFocus };

struct PageRangeVerdict {
    PageRangeFault fault = PageRangeFault::None;
    PageRangeBox box = PageRangeBox::Untouched;

    bool isAccepted() const { return fault == PageRangeFault::None; }
};

/// Checks the text of the box. Blanks around it count for nothing, and an empty range is accepted: whoever needs one
/// asks for that. The order of the numbers is free, and so are repetitions.
PageRangeVerdict checkPageRange(const QString& text, PageRangeRules rules);

/// Whether the text starts, behind blanks, with a decimal number greater than zero.
bool startsWithPageNumber(const QString& text);

/// A text without the blanks (no other white space) at its ends.
QString withoutOuterBlanks(const QString& text);

/// The key filter of the box: `keyCode` becomes 0 for a character that cannot be typed there. Digits and backspace
/// pass; a comma or hyphen only passes behind another character. Judged by the end of the text, wherever the caret is.
void filterPageRangeKey(int& keyCode, const QString& text);
