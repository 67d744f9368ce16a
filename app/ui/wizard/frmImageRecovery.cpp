#include "ui/wizard/frmImageRecovery.h"

#include "core/ReconstructionMode.h"
#include "ui/form/OptionButton.h"
#include "ui/form/Picture.h"
#include "ui/wizard/frmCharSpacing.h"
#include "ui/wizard/frmLayout.h"
#include "ui/wizard/frmOutputSummary.h"
#include "ui/wizard/frmPageRange.h"

#include <QPushButton>

namespace {

constexpr std::int16_t kRemove = 0;
constexpr std::int16_t kAnchor = 1;

} // namespace

frmImageRecovery::frmImageRecovery(FormRegistry& registry, PagePorts ports)
    : SteppingPage(registry, std::move(ports), "frmImageRecovery", "picMain", Closing::AsksFirst)
    , Image1(frame().picture("Image1")) {
    frame().title("lblimageRecovery", "Image Recovery");
    frame().sentence("lblImgRecInfo");
    optAutoAnchor = frame().option("optAutoAnchor", "Automatic Anchoring");
    optRemImg = frame().option("optRemImg", "Remove ");
    frame().stretch();
    addSteps();
    connectHandlers();
}

void frmImageRecovery::connectHandlers() {
    connect(optAutoAnchor, &OptionButton::turnedTrue, this, &frmImageRecovery::optAutoAnchor_Click);
    connect(optRemImg, &OptionButton::turnedTrue, this, &frmImageRecovery::optRemImg_Click);
}

void frmImageRecovery::Form_Load() {
    m_intRecoverImgEntry = settings().intRecoverImg;
    m_isEntryOfLoad = true;
    applyLanguage();
    if (!reconstruction_mode::isTextOnly(settings().intReconstMode))
        return selectStoredTreatment();
    optAutoAnchor->setEnabled(false);
    optRemImg->setValue(true);
    settings().intRecoverImg = kRemove;
}

void frmImageRecovery::Form_Activate() {
    applyLanguage();
    // The load may have forced the field since, and Cancel has to find what stood before that.
    if (!m_isEntryOfLoad)
        m_intRecoverImgEntry = settings().intRecoverImg;
    m_isEntryOfLoad = false;
    if (!reconstruction_mode::isTextOnly(settings().intReconstMode)) {
        optAutoAnchor->setEnabled(true);
        return selectStoredTreatment();
    }
    // The stored treatment stays as it is here, unlike at the load: a later walk in a mode with images finds it again.
    optAutoAnchor->setEnabled(false);
    optRemImg->setValue(true);
    loadPicture(*Image1, "remove_images.gif");
}

/// A treatment that no option stands for leaves the choice as it is.
void frmImageRecovery::selectStoredTreatment() {
    if (settings().intRecoverImg == kAnchor) {
        optAutoAnchor->setValue(true);
        loadPicture(*Image1, "automatic_anchoring.gif");
    } else if (settings().intRecoverImg == kRemove) {
        optRemImg->setValue(true);
        loadPicture(*Image1, "remove_images.gif");
    }
}

void frmImageRecovery::optAutoAnchor_Click() {
    optRemImg->setValue(false);
    loadPicture(*Image1, "automatic_anchoring.gif");
}

void frmImageRecovery::optRemImg_Click() {
    optAutoAnchor->setValue(false);
    loadPicture(*Image1, "remove_images.gif");
}

void frmImageRecovery::store() {
    const std::int16_t mode = settings().intReconstMode;
    // The mode for tables lets the user choose and drops the choice: its documents follow the settings, and the next
    // activation shows what is stored. That must stay.
    if (mode != reconstruction_mode::kTruePage && mode != reconstruction_mode::kFlowingText)
        return;
    if (optRemImg->value())
        settings().intRecoverImg = kRemove;
    if (optAutoAnchor->value())
        settings().intRecoverImg = kAnchor;
}

void frmImageRecovery::cmdBack_Click() {
    store();
    goTo<frmLayout>(Errors::Unhandled);
}

void frmImageRecovery::cmdCancel_Click() {
    markCancelled();
    settings().intRecoverImg = m_intRecoverImgEntry;
    goToMain(Errors::Unhandled);
}

void frmImageRecovery::cmdNext_Click() {
    store();
    if (reconstruction_mode::isTextOnly(settings().intReconstMode))
        goTo<frmPageRange>();
    else
        goTo<frmCharSpacing>();
}

void frmImageRecovery::cmdLast_Click() {
    store();
    goTo<frmOutputSummary>();
}
