#include "ui/wizard/frmPageRange.h"

#include "core/ReconstructionMode.h"
#include "ui/form/LinkLabel.h"
#include "ui/form/OptionButton.h"
#include "ui/form/Picture.h"
#include "ui/wizard/frmCharSpacing.h"
#include "ui/wizard/frmImageRecovery.h"
#include "ui/wizard/frmOutputSummary.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

constexpr std::int16_t kAllPages = 0;
constexpr std::int16_t kListOfPages = 1;

} // namespace

frmPageRange::frmPageRange(FormRegistry& registry, PagePorts ports)
    : SteppingPage(registry, std::move(ports), "frmPageRange", "picMain", Closing::AsksFirst)
    , imgPages(frame().picture("imgPages")) {
    frame().title("lblPageRangeImage", "Page Range");
    frame().sentence("lblPageRangeAll", "Which pages of the PDF document");
    m_pages.addTo(frame());
    frame().stretch();
    addSteps();
    connectHandlers();
}

void frmPageRange::connectHandlers() {
    m_pages.connectHandlers([this] { chkAllPages_Click(); }, [this] { chkFromTo_Click(); });
}

void frmPageRange::Form_Load() {
    m_pages.txtFrom->setText(job().strPageRange);
    if (settings().intConvertFrom != kAllPages)
        m_pages.chkFromTo->setValue(true);
    else
        m_pages.chkAllPages->setValue(true);
    applyLanguage();
}

void frmPageRange::Form_Activate() {
    applyLanguage();
    m_pages.txtFrom->setText(job().strPageRange);
    if (settings().intConvertFrom == kAllPages) {
        m_pages.chkAllPages->setValue(true);
        loadPicture(*imgPages, "all_pages.gif");
    } else if (settings().intConvertFrom == kListOfPages) {
        m_pages.chkFromTo->setValue(true); // its picture follows from the click logic
        m_pages.chkAllPages->setEnabled(true);
        m_pages.txtFrom->setEnabled(true);
    }
}

void frmPageRange::chkAllPages_Click() {
    settings().intConvertFrom = kAllPages;
    m_pages.txtFrom->setEnabled(false);
    loadPicture(*imgPages, "all_pages.gif");
}

void frmPageRange::chkFromTo_Click() {
    settings().intConvertFrom = kListOfPages;
    m_pages.lblFrom->setEnabled(true);
    m_pages.txtFrom->setEnabled(true);
    loadPicture(*imgPages, "pages_from_to.gif");
}

/// The list as it was typed, blanks included.
void frmPageRange::store() {
    job().strPageRange = m_pages.txtFrom->text();
    if (m_pages.chkFromTo->value())
        settings().intConvertFrom = kListOfPages;
    else if (m_pages.chkAllPages->value())
        settings().intConvertFrom = kAllPages;
}

void frmPageRange::cmdBack_Click() {
    store(); // whatever the box holds; the next activation shows it again
    if (reconstruction_mode::isTextOnly(settings().intReconstMode))
        goTo<frmImageRecovery>(Errors::Unhandled);
    else
        goTo<frmCharSpacing>(Errors::Unhandled);
}

void frmPageRange::cmdCancel_Click() {
    leaveWizard(Errors::Unhandled);
}

void frmPageRange::cmdNext_Click() {
    if (!m_pages.ValidatePageRange(PageRangeRules::ConversionWizard, ports().refusals))
        return;
    if (m_pages.chkFromTo->value() && m_pages.txtFrom->text().isEmpty())
        return ports().refusals.refuse("txtIncompleteRange");
    store();
    goTo<frmOutputSummary>();
}

void frmPageRange::cmdLast_Click() {
    cmdNext_Click();
}
