#include "i18n/CaptionWidths.h"

#include "i18n/Controls.h"
#include "services/ErrorTrap.h"

#include <QStringList>
#include <QWidget>

#include <algorithm>
#include <stdexcept>

namespace {

constexpr int kLabelAllowance = 3;   ///< characters that a label takes beyond its width
constexpr int kButtonAllowance = -2; ///< characters that the button's borders cost

// Names are compared in upper case.
const QStringList kLabels{"LBLHELP", "LBLOTHERPRODUCTS", "LBLONLINE", "LBLQUICKTOUR"};
const QString kViewLog = "CMDVIEWLOG";

void shorten(QWidget& control, int allowance) {
    const int limit = charactersIn(widthInTwips(control)) + allowance;
    const QString caption = captionOf(control);
    // The two dots belong on top of the limit.
    if (limit < caption.size())
        setCaption(control, caption.left(std::max(limit, 0)) + "..");
}

/// The button's rule stood behind a comparison of the control with the text of the command line, which fails for every
/// control. The failure is recorded and the rule runs all the same. It must stay: the records are how readers of these
/// logs tell that a pass was made, and over which controls it went.
void compareWithCommandLine() {
    throw std::runtime_error("Type mismatch");
}

bool isWindowWithShortCaptions(const QString& name) {
    return name == "frmProgress" || name == "frmMain" || name == "frmOption";
}

} // namespace

void WrapButtonCaptions(QWidget& window) {
    if (!isWindowWithShortCaptions(window.objectName()))
        return;
    const ErrorTrap trap("modXML", "WrapButtonCaptions");
    for (QWidget* control : controlsOf(window)) {
        const QString name = control->objectName().toUpper();
        if (kindOf(*control) == ControlKind::Label && kLabels.contains(name))
            trap([&] { shorten(*control, kLabelAllowance); });
        trap([] { compareWithCommandLine(); });
        if (name == kViewLog)
            trap([&] { shorten(*control, kButtonAllowance); });
    }
}
