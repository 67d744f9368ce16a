#include "ui/main/frmMain.h"

#include "core/CommandLineJob.h"
#include "i18n/Captions.h"
#include "services/UnloadAllForms.h"
#include "ui/form/FormRegistry.h"
#include "ui_frmMain.h"

#include <QDir>

frmMain::frmMain(FormRegistry& registry, MainPorts ports)
    : Form(registry)
    , m_ui(std::make_unique<Ui::frmMain>())
    , m_ports(std::move(ports)) {
    m_ui->setupUi(this);
    connectHandlers();
}

frmMain::~frmMain() = default;

void frmMain::connectHandlers() {
    connect(m_ui->lblExit, &LinkLabel::clicked, this, &frmMain::lblExit_Click);
}

void frmMain::Form_Load() {
    m_ports.records.flags.blnCloseRequested = false;
    applyLanguage();
}

void frmMain::applyLanguage() {
    SelectLanguage(m_ports.languages, m_ports.records.settings.intLanguageID);
    GetControlCaptions(m_ports.languages, *this);
}

void frmMain::Form_Activate() {
    const ConversionJob& job = m_ports.records.job;
    applyLanguage();
    showFinishedDocument();
    actOnCommandLine();
    m_ui->txtFileBrowsePath->setText(QDir::toNativeSeparators(job.strSourcePDF));
    m_ui->txtfilepathOutput->setText(QDir::toNativeSeparators(job.strOutputFile));
}

void frmMain::actOnCommandLine() {
    switch (takeCommandLineJob(m_ports.records)) {
    case CommandLineJob::None:
        return;
    case CommandLineJob::Ready:
        return m_ports.startRun();
    case CommandLineJob::NotAPdf:
        m_ports.messageBox.tell(UserMessages::Icon::Information,
                                "Sorry! Tavrelion does not support the requested file format.", kWindowTitle);
        registry().endProgram();
    }
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
}
