#include "ui/main/frmMain.h"

#include "i18n/Captions.h"
#include "services/LinkActions.h"
#include "services/UnloadAllForms.h"
#include "ui/form/FormRegistry.h"
#include "ui/form/GotFocus.h"
#include "ui/form/KeyPress.h"
#include "ui/main/HotLabels.h"
#include "ui_frmMain.h"

#include <QDir>

namespace {

constexpr std::int16_t kOfferEachDocument = 2; ///< of intLauchMs

} // namespace

frmMain::frmMain(FormRegistry& registry, MainPorts ports)
    : Form(registry)
    , m_ui(std::make_unique<Ui::frmMain>())
    , m_ports(std::move(ports)) {
    m_ui->setupUi(this);
    loadPictures();
    makeMenu();
    connectHandlers();
    connectHotLabels();
    putLinksLast();
}

frmMain::~frmMain() = default;

/// The work comes first for the keyboard, then the links of the strip above it.
void frmMain::putLinksLast() {
    QWidget* before = m_ui->lblExit;
    for (LinkLabel* link : m_ui->band->findChildren<LinkLabel*>()) {
        setTabOrder(before, link);
        before = link;
    }
}

void frmMain::connectHandlers() {
    m_ui->band->connectLinks(m_ports.links, m_ports.languages.applicationFolder + "/images");
    connect(m_ui->imgConvert, &Picture::clicked, this, &frmMain::imgConvert_Click);
    connect(m_ui->lblConvert, &LinkLabel::clicked, this, &frmMain::imgConvert_Click);
    connect(m_ui->imgDropDown, &Picture::clicked, this, &frmMain::imgDropDown_Click);
    connect(m_ui->imgExtractImages, &Picture::clicked, this, &frmMain::imgExtractImages_Click);
    connect(m_ui->lblExtimgWiz, &LinkLabel::clicked, this, &frmMain::imgExtractImages_Click);
    connect(m_ui->imgSettings, &Picture::clicked, this, &frmMain::imgSettings_Click);
    connect(m_ui->lblSettings, &LinkLabel::clicked, this, &frmMain::lblSettings_Click);
    connect(m_ui->imgExit, &Picture::clicked, this, &frmMain::lblExit_Click);
    connect(m_ui->lblExit, &LinkLabel::clicked, this, &frmMain::lblExit_Click);
    connect(m_ui->cmdBrowse, &QPushButton::clicked, this, &frmMain::cmdBrowse_Click);
    onGotFocus(*m_ui->txtFileBrowsePath, [this] { txtFileBrowsePath_GotFocus(); });
    onGotFocus(*m_ui->txtFileSize, [this] { txtFileSize_GotFocus(); });
    connect(m_ui->chkAllPages, &OptionButton::turnedTrue, this, &frmMain::chkAllPages_Click);
    connect(m_ui->lblAllPages, &LinkLabel::clicked, this, &frmMain::lblAllPages_Click);
    connect(m_ui->chkFromTo, &OptionButton::turnedTrue, this, &frmMain::chkFromTo_Click);
    onKeyPress(*m_ui->txtFrom, [this](int& keyCode) { txtFrom_KeyPress(keyCode); });
    connect(m_ui->cmdBrowseOutput, &QPushButton::clicked, this, &frmMain::cmdBrowseOutput_Click);
    connect(m_ui->chkOpenDocEditing, &QCheckBox::toggled, this, &frmMain::chkOpenDocEditing_Click);
}

void frmMain::connectHotLabels() {
    const auto part = [this](const char* name) { return findChild<QWidget*>(name); };
    // The image of the tour has never cooled the extraction label down; what the mouse leaves there stays white.
    m_hotLabels = std::make_unique<HotLabels>(std::array<HotLabels::Item, HotLabels::kCount>{{
                                                  {m_ui->lblConvert},
                                                  {m_ui->lblExit, m_ui->imgExit},
                                                  {part("lblHelp"), part("imgHelp")},
                                                  {part("lblOnline"), part("imgOnline")},
                                                  {m_ui->lblSettings, m_ui->imgSettings},
                                                  {part("lblOtherProducts"), part("imgOtherProducts")},
                                                  {part("lblQuickTour"), part("imgQuickTour"), m_ui->lblExtimgWiz},
                                                  {part("lblWebsite"), part("imgWebsite")},
                                                  {m_ui->lblExtimgWiz},
                                              }},
                                              std::vector<QWidget*>{this, m_ui->picMain, m_ui->band, m_ui->column});
    m_hotLabels->afterImageOrBackground = [this](int number) {
        constexpr int kBackground = 0;
        constexpr int kExit = 2;
        constexpr int kSettings = 5;
        if (number == kBackground || number == kExit || number == kSettings)
            m_ui->imgDropDown->clearFrame();
    };
}

void frmMain::loadPictures() {
    const QString folder = m_ports.languages.applicationFolder + "/images/";
    m_ui->imgConvert->load(folder + "convert.svg");
    m_ui->imgDropDown->load(folder + "dropdown.svg");
    m_ui->imgExtractImages->load(folder + "extract.svg");
    m_ui->imgSettings->load(folder + "settings.svg");
    m_ui->imgExit->load(folder + "exit.svg");
    m_ui->imgCircleArrow->load(folder + "circle_arrow.svg");
    m_ui->imgCircleArrowOutput->load(folder + "circle_arrow.svg");
}

void frmMain::lblSettings_Click() {
    const auto alive = held();
    m_ports.records.job.strPageRange = m_ui->txtFrom->text().trimmed();
    hide();
    m_ports.nextWindows.showOptions();
}

void frmMain::imgSettings_Click() {
    // Other than the label, the image has never stored the page range.
    const auto alive = held();
    m_ports.nextWindows.showOptions();
    hide();
}

void frmMain::chkOpenDocEditing_Click() {
    std::int16_t& intLauchMs = m_ports.records.settings.intLauchMs;
    if (!m_ui->chkOpenDocEditing->isChecked())
        intLauchMs = 0;
    else if (intLauchMs == 0)
        intLauchMs = kOfferEachDocument;
}

void frmMain::lblExit_Click() {
    const auto alive = held();
    m_ports.yesNoDialog.ask("msgWishToExit", YesNoDialog::Place::CentreOfMain);
    if (m_ports.records.flags.intDialogAnswer != 1)
        return;
    m_ports.eventLoop.yield();
    registry().endProgram();
}

void frmMain::Form_QueryUnload(bool& cancel, UnloadMode unloadMode) {
    if (unloadMode == UnloadMode::ControlMenu) {
        const auto answer =
            m_ports.messageBox.ask("Do you want to close Tavrelion-PDF to Word Converter?", kWindowTitle);
        cancel = answer == UserMessages::Answer::No;
        m_ports.records.flags.blnCloseRequested = !cancel;
        if (cancel)
            return;
    }
    UnloadAllForms({}, registry());
    if (unloadMode == UnloadMode::ControlMenu)
        m_ports.eventLoop.yield();
}

void frmMain::Form_Unload() {
    registry().endProgram();
}

void frmMain::showFinishedDocument(const QString& path) {
    m_finishedDocument = path;
    showFinishedDocument();
}

void frmMain::showFinishedDocument() {
    const QString caption = GetCaption(m_ports.languages, m_ui->lblFinishedDocument->objectName());
    const QString path = QDir::toNativeSeparators(m_finishedDocument);
    m_ui->lblFinishedDocument->setText(path.isEmpty() ? QString() : QString(caption + ' ' + path).trimmed());
    m_ui->lblFinishedDocument->setVisible(!path.isEmpty());
}
