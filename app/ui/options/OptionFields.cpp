#include "ui/options/OptionFields.h"

#include "i18n/Captions.h"

#include <QGridLayout>

#include <algorithm>

namespace {

// Units: pixels.
constexpr QSize kWindowSize{760, 640};
constexpr int kMargin = 24;
constexpr int kCardPadding = 16;
constexpr int kGap = 8;
constexpr int kMarkerSize = 20;
constexpr int kBrowseWidth = 40;
constexpr int kHelpHeight = 40; ///< of two lines, kept free so that nothing moves when the help line appears

QFrame* frameOf(QWidget& parent, const char* role) {
    auto* frame = new QFrame(&parent);
    frame->setProperty("role", role);
    return frame;
}

} // namespace

template<typename Control>
Control* OptionFields::make(const char* name) const {
    auto* control = new Control(Picture1);
    control->setObjectName(name);
    return control;
}

OptionFields::OptionFields(QWidget& window)
    : linkBar(new LinkBar(&window))
    , Picture1(frameOf(window, "page"))
    , m_window(window) {
    window.resize(kWindowSize);
    Picture1->setObjectName("Picture1");
    auto* column = new QVBoxLayout(&window);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(linkBar);
    column->addWidget(Picture1, 1);
    auto* page = new QVBoxLayout(Picture1);
    page->setContentsMargins(kMargin, kCardPadding, kMargin, kGap);
    page->setSpacing(kGap);
    addProgramOptions();
    addConverterOptions();
    addHelpLine();
    page->addStretch();
    addFoot();
}

QGridLayout* OptionFields::addCard() {
    QFrame* card = frameOf(*Picture1, "card");
    auto* grid = new QGridLayout(card);
    grid->setContentsMargins(kCardPadding, kGap, kCardPadding, kGap);
    grid->setHorizontalSpacing(kCardPadding);
    grid->setVerticalSpacing(kGap / 2);
    grid->setColumnStretch(1, 1);
    Picture1->layout()->addWidget(card);
    m_cards << grid;
    return grid;
}

QLabel* OptionFields::addHeading(QGridLayout& card, const char* name, const char* caption) {
    auto* heading = make<QLabel>(name);
    heading->setText(caption);
    heading->setProperty("role", "heading");
    card.addWidget(heading, 0, 0, 1, 3);
    return heading;
}

void OptionFields::addField(QGridLayout& card, const char* label, const char* caption, QWidget* field,
                            QPushButton* browse) {
    auto* title = make<QLabel>(label);
    title->setText(caption);
    title->setBuddy(field);
    const int row = card.rowCount();
    card.addWidget(title, row, 0);
    card.addWidget(field, row, 1, 1, browse ? 1 : 2);
    if (!browse)
        return;
    browse->setText("...");
    browse->setProperty("role", "browse");
    browse->setFixedWidth(kBrowseWidth);
    card.addWidget(browse, row, 2);
}

DropDownList* OptionFields::addList(QGridLayout& card, const char* label, const char* caption, const char* list) {
    auto* field = make<DropDownList>(list);
    addField(card, label, caption, field);
    return field;
}

void OptionFields::addProgramOptions() {
    QGridLayout& card = *addCard();
    lblProgramOptions = addHeading(card, "lblProgramOptions", "Program Options");
    cboUserInterfaceLang = addList(card, "lblInterfaceLang", "User Interface Language", "cboUserInterfaceLang");
    // These stand until the language file has been read.
    cboUserInterfaceLang->addItems({"English", "Dutch", "French", "German", "Italian", "Norwegian", "Portuguese",
                                    "Russian", "Spanish", "Swedish"});
    cboLaunchMSWord = addList(card, "lblLaunchMSWord", "Open document after conversion", "cboLaunchMSWord");
    cboOutputFileformat = addList(card, "lblOutputFileformat", "Document Format", "cboOutputFileformat");
    txtShow = make<QLineEdit>("txtShow");
    cmdBrwDestiFolder = make<QPushButton>("cmdBrwDestiFolder");
    addField(card, "lblOutputPath", "Destination Folder", txtShow, cmdBrwDestiFolder);
    cboUseWizard = addList(card, "lblUseWizard", "Turn on Wizard", "cboUseWizard");
    txtLogPath = make<QLineEdit>("txtLogPath");
    cmdBrwLogFile = make<QPushButton>("cmdBrwLogFile");
    addField(card, "lblLogFileFolder", "Log File Folder", txtLogPath, cmdBrwLogFile);
}

void OptionFields::addConverterOptions() {
    QGridLayout& card = *addCard();
    lblConvertConfig = addHeading(card, "lblConvertConfig", "Converter Configration");
    cboReconstructionMode = addList(card, "lblReconstructionMode", "Document Layout", "cboReconstructionMode");
    cboCharSpacingType = addList(card, "lblCharacterSpacing", "Preserve Character Spacing ", "cboCharSpacingType");
    cboRecoverImages = addList(card, "lblRecoverImages", "Image filter", "cboRecoverImages");
    cboConvertAllPages = addList(card, "lblPageRange", "Convert All pages", "cboConvertAllPages");
    cboConversionMethod =
        addList(card, "lblConversionMethod", "Prompt before converting a page", "cboConversionMethod");
}

void OptionFields::addHelpLine() {
    auto* place = new QWidget(Picture1);
    place->setMinimumHeight(kHelpHeight);
    auto* row = new QHBoxLayout(place);
    row->setContentsMargins({});
    row->setSpacing(kGap);
    imgCircleArrow3 = make<Picture>("imgCircleArrow3");
    imgCircleArrow3->setFixedSize(kMarkerSize, kMarkerSize);
    lblToolTip = make<QLabel>("lblToolTip");
    lblToolTip->setWordWrap(true);
    lblToolTip->setProperty("role", "help");
    row->addWidget(imgCircleArrow3);
    row->addWidget(lblToolTip, 1);
    Picture1->layout()->addWidget(place);
}

void OptionFields::addFoot() {
    QFrame* foot = frameOf(m_window, "foot");
    auto* row = new QHBoxLayout(foot);
    row->setContentsMargins(kMargin, kGap, kMargin, kGap);
    row->setSpacing(kGap);
    const auto button = [foot](const char* name, const char* caption) {
        auto* made = new QPushButton(caption, foot);
        made->setObjectName(name);
        return made;
    };
    btnRestoreDefault = button("btnRestoreDefault", "Restore Default");
    cmdOK = button("cmdOK", "OK");
    cmdCancel = button("cmdCancel", "Cancel");
    cmdOK->setDefault(true);
    cmdCancel->setProperty("escape", true);
    row->addWidget(btnRestoreDefault);
    row->addStretch();
    row->addWidget(cmdOK);
    row->addWidget(cmdCancel);
    m_window.layout()->addWidget(foot);
}

void OptionFields::followLabels() {
    int width = 0;
    for (QLabel* label : Picture1->findChildren<QLabel*>()) {
        if (!label->buddy())
            continue;
        width = std::max(width, label->sizeHint().width());
        label->buddy()->setAccessibleName(withoutMnemonic(label->text()));
    }
    for (QGridLayout* card : m_cards)
        card->setColumnMinimumWidth(0, width);
    cmdBrwDestiFolder->setAccessibleName(txtShow->accessibleName());
    cmdBrwLogFile->setAccessibleName(txtLogPath->accessibleName());
}

QList<QWidget*> OptionFields::fieldsWithHelp() const {
    return {cboUserInterfaceLang,
            cboLaunchMSWord,
            cboOutputFileformat,
            cboUseWizard,
            cboReconstructionMode,
            cboCharSpacingType,
            cboRecoverImages,
            cboConversionMethod,
            cboConvertAllPages,
            txtShow,
            txtLogPath};
}
