#include "ui/wizard/frmLayout.h"

#include "ui/form/OptionButton.h"
#include "ui/form/Picture.h"
#include "ui/wizard/frmImageRecovery.h"
#include "ui/wizard/frmOutputSummary.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

namespace {

struct LayoutDesign {
    const char* option;
    const char* description;
    const char* picture;
};
// The position is intReconstMode. The names are keys into the language files, misspelling included.
constexpr std::array<LayoutDesign, 5> kDesigns{{
    {"lblTruePage", "lblTruePage1", "as_is.gif"},
    {"lblContinuous", "lblContinous1", "formatted.gif"},
    {"lblPlainText", "lblPlainText1", "plain_text.gif"},
    {"lblFlowingText", "lblFlowingText1", "Flowing_text.gif"},
    {"lblTableText", "lblTableText1", "Flowing_text.gif"},
}};

constexpr int kWordSize = 32; ///< pixels, of the picture of a document

} // namespace

frmLayout::frmLayout(FormRegistry& registry, PagePorts ports)
    : SteppingPage(registry, std::move(ports), "frmLayout", "picMain", Closing::AsksAndLeavesEnding)
    , imgPDF(frame().picture("imgPDF")) {
    QLabel* title = frame().label("lblLayoutOptions");
    title->setProperty("role", "title");
    Picture* imgWord = frame().icon("imgWord", kWordSize);
    loadPicture(*imgWord, "tavrelion.svg");
    frame().row({title, imgWord}, PageFrame::Stretch::First);
    auto* fra1 = new QGroupBox(this);
    fra1->setObjectName("fra1");
    fra1->setProperty("role", "group");
    frame().putOptionsInto(fra1);
    for (std::size_t mode = 0; mode < kDesigns.size(); ++mode) {
        OptionButton* option = frame().option(kDesigns[mode].option);
        m_choices[mode] = {option, frame().description(kDesigns[mode].description, *option), kDesigns[mode].picture};
    }
    frame().stretch();
    addSteps();
    connectHandlers();
}

void frmLayout::connectHandlers() {
    for (const Choice& choice : m_choices)
        connect(choice.option, &OptionButton::turnedTrue, this, [this, &choice] { option_Click(choice); });
}

void frmLayout::Form_Load() {
    applyLanguage();
    selectStoredMode();
}

void frmLayout::Form_Activate() {
    applyLanguage();
    selectStoredMode();
}

/// A mode that no option stands for leaves the choice as it is.
void frmLayout::selectStoredMode() {
    const std::int16_t mode = settings().intReconstMode;
    if (mode < 0 || static_cast<std::size_t>(mode) >= m_choices.size())
        return;
    const Choice& choice = m_choices[static_cast<std::size_t>(mode)];
    choice.option->setValue(true);
    option_Click(choice);
}

void frmLayout::option_Click(const Choice& choice) {
    imgPDF->show();
    loadPicture(*imgPDF, choice.picture);
}

void frmLayout::store() {
    for (std::size_t mode = 0; mode < m_choices.size(); ++mode) {
        if (!m_choices[mode].option->value())
            continue;
        settings().intReconstMode = static_cast<std::int16_t>(mode);
        job().strLayoutCaption = m_choices[mode].description->text();
        return;
    }
}

void frmLayout::cmdBack_Click() {
    // Back leads out of the wizard, also when frmOutputOptions led here, so it counts as leaving it.
    markCancelled();
    store();
    goToMain();
}

void frmLayout::cmdNext_Click() {
    store();
    goTo<frmImageRecovery>();
}

void frmLayout::cmdLast_Click() {
    store();
    goTo<frmOutputSummary>();
}
