#include "ui/password/frmPassword.h"

#include "core/LockedFile.h"
#include "i18n/Captions.h"
#include "ui/form/WindowTexts.h"
#include "ui_frmPassword.h"

#include <QDir>

namespace {

constexpr std::int16_t kAnswerOK = 1;
constexpr std::int16_t kAnswerCancel = 0;

} // namespace

frmPassword::frmPassword(FormRegistry& registry, PasswordPorts ports)
    : Form(registry)
    , m_ui(std::make_unique<Ui::frmPassword>())
    , m_ports(std::move(ports)) {
    setWindowFlag(Qt::Dialog);
    m_ui->setupUi(this);
    m_ui->imgPass->load(QDir(m_ports.languages.applicationFolder).filePath("images/password.svg"));
    connectHandlers();
}

frmPassword::~frmPassword() = default;

void frmPassword::connectHandlers() {
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmPassword::cmdOK_Click);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &frmPassword::cmdCancel_Click);
}

void frmPassword::Form_Load() {
    captionWindow(m_ports.languages, *this);
}

void frmPassword::showWanted(PasswordPrompt::Password wanted) {
    const bool isOwner = wanted == PasswordPrompt::Password::Owner;
    m_ui->lblOwnerPass->setVisible(isOwner);
    m_ui->lblUserPass->setVisible(!isOwner);
    const QLabel& label = isOwner ? *m_ui->lblOwnerPass : *m_ui->lblUserPass;
    m_ui->TxtPassword->setAccessibleName(withoutMnemonic(label.text()));
    m_ui->TxtPassword->setAccessibleDescription(m_ui->lblPasswordAlert->text());
    m_ui->TxtPassword->setFocus();
}

void frmPassword::cmdOK_Click() {
    const auto alive = held();
    m_ports.records.job.strPdfPassword = m_ui->TxtPassword->text();
    m_ports.records.flags.intDialogAnswer = kAnswerOK;
    unload();
}

void frmPassword::cmdCancel_Click() {
    const auto alive = held();
    giveUp();
    unload();
}

void frmPassword::giveUp() {
    m_ports.records.flags.intDialogAnswer = kAnswerCancel;
    m_isGivenUp = true;
}

void frmPassword::Form_QueryUnload(bool&, UnloadMode unloadMode) {
    // The close box counts as Cancel: the engine would only ask again for a password that nobody entered.
    if (unloadMode == UnloadMode::ControlMenu)
        giveUp();
}

void frmPassword::Form_Unload() {
    if (!m_isGivenUp)
        return;
    m_ports.unloadProgress();
    run::giveUpLockedFile(m_ports.records, m_ports.mainWindow);
}
