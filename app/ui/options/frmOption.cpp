#include "ui/options/frmOption.h"

#include "core/Paths.h"
#include "core/ReconstructionMode.h"
#include "services/SkippingErrors.h"
#include "ui/form/ClosePrompt.h"
#include "ui/form/FirstField.h"
#include "ui/form/FormRegistry.h"

#include <QFocusEvent>

frmOption::frmOption(FormRegistry& registry, OptionPorts ports)
    : Form(registry)
    , m_ports(std::move(ports))
    , m_fields(*this) {
    setObjectName("frmOption");
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

void frmOption::cboReconstructionMode_Click(int position) {
    const bool isTextOnly = reconstruction_mode::isTextOnly(static_cast<std::int16_t>(position));
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
    m_strOutputFileName = nameOf(job().strOutputFile);
    job().strOutputFile = fileBelow(folder, m_strOutputFileName);
    m_fields.txtShow->setText(folder);
}

void frmOption::cmdBrwLogFile_Click() {
    const auto alive = held();
    const QString folder = m_ports.folderDialog.BrowseFolder(*this, "Browse for folder");
    m_strSavedLogPath = settings().strLogPath;
    if (!folder.isEmpty())
        settings().strLogPath = fileBelow(folder, kLogName);
    m_fields.txtLogPath->setText(settings().strLogPath);
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
    askBeforeClosing({m_ports.records.flags, m_ports.messageBox, m_ports.eventLoop, registry()}, objectName(), cancel,
                     unloadMode);
}

void frmOption::Form_Unload() {
    m_ports.mainWindow.show();
}
