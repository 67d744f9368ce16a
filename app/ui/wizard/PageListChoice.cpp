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

void PageListChoice::connectHandlers(std::function<void()> chkAllPages_Click, std::function<void()> chkFromTo_Click) {
    m_chkAllPages_Click = std::move(chkAllPages_Click);
    m_chkFromTo_Click = std::move(chkFromTo_Click);
    QObject::connect(chkAllPages, &OptionButton::turnedTrue, chkAllPages, [this] { m_chkAllPages_Click(); });
    QObject::connect(chkFromTo, &OptionButton::turnedTrue, chkFromTo, [this] { m_chkFromTo_Click(); });
    QObject::connect(lblAllPages, &LinkLabel::clicked, lblAllPages, [this] { lblAllPages_Click(); });
    QObject::connect(lblFrom, &LinkLabel::clicked, lblFrom, [this] { lblFrom_Click(); });
}

void PageListChoice::lblAllPages_Click() const {
    chkAllPages->setValue(true);
    m_chkAllPages_Click();
}

void PageListChoice::lblFrom_Click() const {
    chkFromTo->setValue(true);
    m_chkFromTo_Click();
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
