#include "ui/options/frmOption.h"

#include "i18n/Captions.h"
#include "services/ErrorTrap.h"
#include "services/SkippingErrors.h"
#include "settings/FactorySettings.h"
#include "settings/SettingsFile.h"
#include "settings/SettingsRecord.h"
#include "ui/form/AccessKeys.h"
#include "ui/form/ClosePrompt.h"
#include "ui/form/FirstField.h"
#include "ui/form/FormRegistry.h"
#include "ui/options/OutputPath.h"

#include <QDir>
#include <QFocusEvent>

namespace {

constexpr char kName[] = "frmOption";
constexpr std::int16_t kFormatDoc = 0;
constexpr std::int16_t kFormatRtf = 1;
constexpr std::int16_t kFormatDocx = 2;
constexpr std::int16_t kFirstWordWithDocx = 2007;
constexpr char kLogName[] = "tavrelion.log";

/// A list without a selection, as one that could not be filled, keeps the field.
void take(std::int16_t& field, const DropDownList& list) {
    if (list.listIndex() >= 0)
        field = static_cast<std::int16_t>(list.listIndex());
}

} // namespace

frmOption::frmOption(FormRegistry& registry, OptionPorts ports)
    : Form(registry)
    , m_ports(std::move(ports))
    , m_fields(*this) {
    setObjectName(kName);
    const QString images = m_ports.languages.applicationFolder + "/images";
    m_fields.linkBar->connectLinks(m_ports.links, images);
    m_fields.linkBar->followMouse(*m_fields.Picture1);
    m_fields.imgCircleArrow3->load(images + "/circle_arrow.svg");
    connectHandlers();
}

void frmOption::connectHandlers() {
    connect(m_fields.cboReconstructionMode, &DropDownList::itemSelected, this, &frmOption::cboReconstructionMode_Click);
    connect(m_fields.cmdBrwDestiFolder, &QPushButton::clicked, this, &frmOption::cmdBrwDestiFolder_Click);
    connect(m_fields.cmdBrwLogFile, &QPushButton::clicked, this, &frmOption::cmdBrwLogFile_Click);
    connect(m_fields.cmdOK, &QPushButton::clicked, this, &frmOption::cmdOK_Click);
    connect(m_fields.cmdCancel, &QPushButton::clicked, this, &frmOption::cmdCancel_Click);
    connect(m_fields.btnRestoreDefault, &QPushButton::clicked, this, &frmOption::btnRestoreDefault_Click);
    for (QWidget* field : m_fields.fieldsWithHelp())
        field->installEventFilter(this);
}

void frmOption::Form_Load() {
    settings().intLogPath = settings_record::numberOf(settings().strLogPathFlag);
    applyCaptions();
    m_fields.cboOutputFileformat->setListIndex(m_ports.IsMSWordInstalled() == 0 ? 0 : settings().intOutputFormat);
    showConverterLists();
    m_fields.cboConvertAllPages->setListIndex(settings().intPromptPageRange != 0 ? 1 : 0);
    fillEmptyLogPath();
    const bool hasOutput = !m_ports.mainWindow.txtfilepathOutput().trimmed().isEmpty();
    m_fields.txtShow->setText(hasOutput ? job().strOutputFile
                                        : QString(settings().strRecentOutputFolder).remove(QChar::Null));
    m_fields.txtLogPath->setText(settings().strLogPath);
}

void frmOption::Form_Activate() {
    applyCaptions();
    fitFormatListToWord();
    showConverterLists();
    if (m_ports.mainWindow.chkAllPages()) {
        m_fields.cboConvertAllPages->setListIndex(0);
        settings().intConvertFrom = 0;
    } else if (m_ports.mainWindow.chkFromTo()) {
        m_fields.cboConvertAllPages->setListIndex(1);
        settings().intConvertFrom = 1;
    }
    fillEmptyLogPath();
    showDestination();
    m_fields.txtLogPath->setText(settings().strLogPath);
    HideToolTip();
}

/// The texts, and the two lists that follow them at once. The pass empties the browse buttons, which have no entry in
/// the language file.
void frmOption::applyCaptions() {
    LoadOptionCaptions(m_ports.languages, *this, m_ports.IsMSWordInstalled);
    m_fields.cboUserInterfaceLang->setListIndex(settings().intLanguageID);
    m_fields.cboLaunchMSWord->setListIndex(settings().intLauchMs);
    m_fields.cmdBrwLogFile->setText("...");
    m_fields.cmdBrwDestiFolder->setText("...");
    assignAccessKeys(*this);
    m_fields.followLabels();
}

void frmOption::fitFormatListToWord() {
    if (m_ports.IsMSWordInstalled() == 0) {
        // The list has lost its first item, and no format is read from it on OK.
        m_fields.cboOutputFileformat->setListIndex(1);
        return;
    }
    if (m_ports.CheckMSWord() < kFirstWordWithDocx) {
        m_fields.cboOutputFileformat->removeItem(kFormatDocx);
        if (settings().intOutputFormat == kFormatDocx)
            settings().intOutputFormat = kFormatDoc;
    }
    m_fields.cboOutputFileformat->setListIndex(settings().intOutputFormat);
}

void frmOption::showConverterLists() {
    m_fields.cboUseWizard->setListIndex(settings().intUseWiz);
    m_fields.cboReconstructionMode->setListIndex(settings().intReconstMode);
    m_fields.cboCharSpacingType->setListIndex(settings().intCharSpac);
    m_fields.cboRecoverImages->setListIndex(settings().intRecoverImg);
    m_fields.cboConversionMethod->setListIndex(settings_record::numberOf(settings().strConversionMethod));
}

void frmOption::fillEmptyLogPath() {
    if (settings().strLogPath.trimmed().isEmpty())
        settings().strLogPath = m_ports.records.flags.strHomeFolder + QDir::separator() + kLogName;
}

/// While the window is open, strOutputFile holds a folder; the main window's box still holds the file.
void frmOption::showDestination() {
    if (m_ports.mainWindow.txtfilepathOutput().trimmed().isEmpty()) {
        m_fields.txtShow->setText(settings().strRecentOutputFolder);
        return;
    }
    if (isDocumentPath(job().strOutputFile))
        job().strOutputFile = withItsSeparator(job().strOutputFile);
    m_fields.txtShow->setText(job().strOutputFile);
}

void frmOption::cboReconstructionMode_Click(int position) {
    const bool isTextOnly = position == 1 || position == 2;
    m_fields.cboRecoverImages->setEnabled(!isTextOnly);
    m_fields.cboCharSpacingType->setEnabled(!isTextOnly);
}

void frmOption::cmdBrwDestiFolder_Click() {
    const auto alive = held();
    m_strSavedOutputText = m_ports.mainWindow.txtfilepathOutput();
    const QString folder = m_ports.folderDialog.BrowseFolder(*this, "Browse Folder");
    if (folder.isEmpty())
        return;
    settings().strRecentOutputFolder = folder;
    m_strOutputFileName = job().strOutputFile.mid(job().strOutputFile.lastIndexOf(QDir::separator()) + 1);
    job().strOutputFile = inFolder(folder, m_strOutputFileName);
    m_fields.txtShow->setText(folder);
}

void frmOption::cmdBrwLogFile_Click() {
    const auto alive = held();
    const QString folder = m_ports.folderDialog.BrowseFolder(*this, "Browse for folder");
    m_strSavedLogPath = settings().strLogPath;
    if (!folder.isEmpty())
        settings().strLogPath = inFolder(folder, kLogName);
    m_fields.txtLogPath->setText(settings().strLogPath);
}

void frmOption::cmdOK_Click() {
    const auto alive = held();
    const ErrorTrap trap(kName, "cmdOK_Click");
    trap([this] {
        const std::int16_t before = settings().intLanguageID;
        take(settings().intLanguageID, *m_fields.cboUserInterfaceLang);
        SelectLanguageOptions(m_ports.languages, settings().intLanguageID);
        SelectLanguage(m_ports.languages, settings().intLanguageID);
        if (CheckXMLExists(m_ports.languages, settings().intLanguageID) == LanguageFiles::Missing) {
            settings().intLanguageID = before;
            return;
        }
        takeLists();
        takePageChoice();
        job().strOutputFile = withFormat(job().strOutputFile, settings().intOutputFormat);
        // The destination goes into the folder where the source dialog opens: people fetch the next file where they
        // keep the last one.
        settings().strRecentFolder = m_fields.txtShow->text();
        UpdateSettings(m_ports.records);
        m_ports.mainWindow.setTxtfilepathOutput(job().strOutputFile);
        m_strSavedOutputText = settings().strRecentOutputFolder;
        m_strSavedLogPath = settings().strLogPath;
        leave();
    });
}

void frmOption::takeLists() {
    take(settings().intLauchMs, *m_fields.cboLaunchMSWord);
    job().intOpenDocEditing = settings().intLauchMs != 0 ? 1 : 0;
    if (m_ports.IsMSWordInstalled() == 0)
        settings().intOutputFormat = kFormatRtf;
    else
        take(settings().intOutputFormat, *m_fields.cboOutputFileformat);
    take(settings().intUseWiz, *m_fields.cboUseWizard);
    take(settings().intReconstMode, *m_fields.cboReconstructionMode);
    take(settings().intCharSpac, *m_fields.cboCharSpacingType);
    job().strCharSpacing = settings().intCharSpac != 0 ? "no" : "yes";
    take(settings().intRecoverImg, *m_fields.cboRecoverImages);
    if (m_fields.cboConversionMethod->listIndex() >= 0)
        settings().strConversionMethod = QString::number(m_fields.cboConversionMethod->listIndex());
}

void frmOption::takePageChoice() {
    if (m_fields.cboConvertAllPages->listIndex() == 0) {
        settings().intPromptPageRange = 0;
        settings().intConvertFrom = 0;
    } else {
        settings().intConvertFrom = 1;
    }
}

void frmOption::cmdCancel_Click() {
    const auto alive = held();
    const ErrorTrap trap(kName, "cmdCancel_Click");
    trap([this] {
        // A browse for the destination takes effect at once and stays so; only the paths come back.
        job().strOutputFile = m_ports.mainWindow.txtfilepathOutput();
        if (!m_strSavedLogPath.trimmed().isEmpty()) {
            settings().strLogPath = m_strSavedLogPath;
            m_fields.txtLogPath->setText(m_strSavedLogPath);
        }
        leave();
    });
}

void frmOption::btnRestoreDefault_Click() {
    const auto alive = held();
    const ErrorTrap trap(kName, "btnRestoreDefault_Click");
    trap([this] {
        const QChar separator = QDir::separator();
        RestoreDefaultSettings(m_ports.records, {m_ports.languages.applicationFolder + separator + "XML" + separator +
                                                     "DefaultSettings.xml",
                                                 m_fields.txtShow->text(), [this](const QString& path) {
                                                     m_ports.languages.tellLoadFailure(loadFailureText(path));
                                                 }});
        if (m_ports.IsMSWordInstalled() == 0) {
            settings().intOutputFormat = kFormatRtf;
            job().strOutputFile = withFormat(job().strOutputFile, kFormatRtf);
        }
        leave();
    });
}

void frmOption::leave() {
    m_ports.mainWindow.show();
    hide();
}

void frmOption::showEvent(QShowEvent* event) {
    Form::showEvent(event);
    focusFirstField(*this, *m_fields.Picture1);
}

bool frmOption::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        // A list that drops down, or a message over the window, does not take the user to another field.
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        const bool changesField = reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason;
        if (changesField && event->type() == QEvent::FocusIn)
            ShowToolTip(watched->objectName());
        else if (changesField)
            HideToolTip();
    }
    return Form::eventFilter(watched, event);
}

void frmOption::ShowToolTip(const QString& controlName) {
    LanguageTable& table = m_ports.languages;
    LanguageDocument& document = documentIn(table.docOptions);
    if (document.load(table.strOptionsFile) == LanguageDocument::Loading::Failed)
        return table.tellLoadFailure(loadFailureText(table.strOptionsFile));
    m_fields.lblToolTip->show();
    m_fields.imgCircleArrow3->show();
    // A field without an entry shows the help line of the one before.
    skippingErrors([&] {
        m_fields.lblToolTip->setText(
            textOf(document.select(controlName, LanguageDocument::Attribute::TOOLTIPTEXT).at(0)));
    });
}

void frmOption::HideToolTip() {
    m_fields.imgCircleArrow3->hide();
    m_fields.lblToolTip->hide();
}

void frmOption::Form_QueryUnload(bool& cancel, UnloadMode unloadMode) {
    askBeforeClosing({m_ports.records.flags, m_ports.messageBox, m_ports.eventLoop, registry()}, kName, cancel,
                     unloadMode);
}

void frmOption::Form_Unload() {
    m_ports.mainWindow.show();
}
