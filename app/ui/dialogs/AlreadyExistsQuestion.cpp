#include "ui/dialogs/AlreadyExistsQuestion.h"

#include "i18n/Controls.h"

namespace {

constexpr int kAllowance = 2;     ///< characters that the label takes beyond its width
constexpr int kLongestWhole = 40; ///< characters that are not cut
constexpr int kEnd = 20;          ///< characters that stay at either end of a longer path

} // namespace

QString shownPath(const QString& strOutputFile, int labelWidth) {
    if (strOutputFile.size() <= charactersIn(labelWidth) + kAllowance)
        return strOutputFile;
    if (strOutputFile.size() > kLongestWhole)
        return strOutputFile.left(kEnd) + "..." + strOutputFile.right(kEnd);
    // Too long for the label and too short to be cut: no path is printed, and that stays.
    return {};
}
