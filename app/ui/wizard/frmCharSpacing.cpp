#include "ui/wizard/frmCharSpacing.h"

#include "i18n/Captions.h"
#include "ui/form/DropDownList.h"
#include "ui/form/OptionButton.h"
#include "ui/form/Picture.h"
#include "ui/wizard/frmImageRecovery.h"
#include "ui/wizard/frmOutputSummary.h"
#include "ui/wizard/frmPageRange.h"

#include <QPushButton>

namespace {

// Mind the sense: 0 is the Yes option.
constexpr std::int16_t kKeep = 0;
constexpr std::int16_t kDoNotKeep = 1;
constexpr char kKeepPicture[] = "keep_char_spacing.gif";
constexpr char kDoNotKeepPicture[] = "no_char_spacing.gif";

} // namespace

frmCharSpacing::frmCharSpacing(FormRegistry& registry, PagePorts ports)
    : SteppingPage(registry, std::move(ports), "frmCharSpacing", "picMain", Closing::AsksFirst)
    , imgcharcterSpacing(frame().picture("imgcharcterSpacing")) {
    frame().title("lblCharacterSpacing", "Character Spacing");
    frame().sentence("lblInfo1");
    optCharSpaceYes = frame().option("optCharSpaceYes");
    optCharSpaceNo = frame().option("optCharSpaceNo");
    cboCharSpacingType = new DropDownList(this);
    cboCharSpacingType->setObjectName("cboCharSpacingType");
    cboCharSpacingType->hide();
    frame().stretch();
    addSteps();
    connectHandlers();
}

void frmCharSpacing::connectHandlers() {
    connect(optCharSpaceYes, &OptionButton::turnedTrue, this, &frmCharSpacing::optCharSpaceYes_Click);
    connect(optCharSpaceNo, &OptionButton::turnedTrue, this, &frmCharSpacing::optCharSpaceNo_Click);
    connect(cboCharSpacingType, &DropDownList::itemSelected, this, &frmCharSpacing::cboCharSpacingType_Click);
}

void frmCharSpacing::Form_Load() {
    applyLanguage();
    selectStoredSpacing();
}

void frmCharSpacing::Form_Activate() {
    applyLanguage();
    selectStoredSpacing();
}

void frmCharSpacing::selectStoredSpacing() {
    if (settings().intCharSpac == kKeep) {
        optCharSpaceYes->setValue(true);
        optCharSpaceNo->setValue(false);
        loadPicture(*imgcharcterSpacing, kKeepPicture);
    } else if (settings().intCharSpac == kDoNotKeep) {
        optCharSpaceYes->setValue(false);
        optCharSpaceNo->setValue(true);
        loadPicture(*imgcharcterSpacing, kDoNotKeepPicture);
    }
}

void frmCharSpacing::optCharSpaceYes_Click() {
    optCharSpaceNo->setValue(false);
    loadPicture(*imgcharcterSpacing, kKeepPicture);
}

void frmCharSpacing::optCharSpaceNo_Click() {
    optCharSpaceYes->setValue(false);
    loadPicture(*imgcharcterSpacing, kDoNotKeepPicture);
}

void frmCharSpacing::cboCharSpacingType_Click(int position) {
    settings().intCharSpac = position == 0 ? kKeep : kDoNotKeep;
    loadPicture(*imgcharcterSpacing, position == 0 ? kKeepPicture : kDoNotKeepPicture);
}

void frmCharSpacing::store() {
    // From here on the summary shows the option's own caption, no longer the "yes" or "no" of the settings.
    if (optCharSpaceYes->value()) {
        settings().intCharSpac = kKeep;
        job().strCharSpacing = withoutMnemonic(optCharSpaceYes->text());
    }
    if (optCharSpaceNo->value()) {
        settings().intCharSpac = kDoNotKeep;
        job().strCharSpacing = withoutMnemonic(optCharSpaceNo->text());
    }
}

void frmCharSpacing::cmdBack_Click() {
    goTo<frmImageRecovery>();
}

void frmCharSpacing::cmdNext_Click() {
    store();
    goTo<frmPageRange>();
}

void frmCharSpacing::cmdLast_Click() {
    store();
    goTo<frmOutputSummary>();
}
