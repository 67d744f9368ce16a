#include "ui/wizard/PageListChoice.h"

#include "ui/dialogs/Refusals.h"
#include "ui/form/KeyPress.h"
#include "ui/form/LinkLabel.h"
#include "ui/form/OptionButton.h"
#include "ui/wizard/PageFrame.h"

#include <QLineEdit>

namespace {

void tell(PageRangeFault fault, Refusals& refusals) {
    switch (fault) {
    case PageRangeFault::None:
        return;
    case PageRangeFault::BelowOne:
        return refusals.refuse("txtPageRangeZero");
    case PageRangeFault::Format:
        return refusals.refusePages("lblpgformat");
    case PageRangeFault::TooLong:
        return refusals.refusePages("lblpgnumber");
    }
}

} // namespace

void PageListChoice::addTo(PageFrame& frame) {
    chkAllPages = frame.captionlessOption("chkAllPages");
    chkFromTo = frame.captionlessOption("chkFromTo");
    lblAllPages = frame.optionLabel("lblAllPages", "All Pages", *chkAllPages);
    lblFrom = frame.optionLabel("lblFrom", "Page Numbers:", *chkFromTo);
    txtFrom = frame.textBox("txtFrom", *lblFrom);
    frame.row({chkAllPages, lblAllPages});
    frame.row({chkFromTo, lblFrom, txtFrom});
    onKeyPress(*txtFrom, [box = txtFrom](int& keyCode) { filterPageRangeKey(keyCode, box->text()); });
}

bool PageListChoice::ValidatePageRange(PageRangeRules rules, Refusals& refusals) const {
    if (chkAllPages->value())
        return true;
    const PageRangeVerdict verdict = checkPageRange(txtFrom->text(), rules);
    tell(verdict.fault, refusals);
    if (verdict.box != PageRangeBox::Untouched)
        txtFrom->setEnabled(true);
    if (verdict.box == PageRangeBox::EnabledWithFocus)
        txtFrom->setFocus();
    return verdict.isAccepted();
}
