#include "ui/dialogs/frmErrorYesNoOnly.h"

#include "i18n/Controls.h"
#include "services/ErrorTrap.h"
#include "ui/dialogs/AlreadyExistsQuestion.h"
#include "ui/dialogs/MessageSelection.h"
#include "ui/form/WindowTexts.h"
#include "ui_frmErrorYesNoOnly.h"

#include <QDir>

namespace {

constexpr std::int16_t kYes = 1;
constexpr std::int16_t kNo = 0;

} // namespace

frmErrorYesNoOnly::frmErrorYesNoOnly(FormRegistry& registry, MessagePorts ports)
    : Form(registry)
    , m_ui(std::make_unique<Ui::frmErrorYesNoOnly>())
    , m_ports(ports) {
    setWindowFlag(Qt::Dialog);
    m_ui->setupUi(this);
    connectHandlers();
}

frmErrorYesNoOnly::~frmErrorYesNoOnly() = default;

void frmErrorYesNoOnly::connectHandlers() {
    connect(m_ui->cmdYes, &QPushButton::clicked, this, &frmErrorYesNoOnly::cmdYes_Click);
    connect(m_ui->cmdNo, &QPushButton::clicked, this, &frmErrorYesNoOnly::cmdNo_Click);
    // The texts cannot be edited because they pass the focus on.
    for (MessageText* text : {m_ui->lblCancelConversion, m_ui->msgDocumentGenerationComplete, m_ui->msgWishToExit})
        connect(text, &MessageText::gotFocus, this, [this] { m_ui->cmdYes->setFocus(); });
}

void frmErrorYesNoOnly::Form_Load() {
    captionWindow(m_ports.languages, *this);
    m_ui->imgError->load(QDir(m_ports.languages.applicationFolder).filePath("images/W95MBX02.ICO"));
    // lblAlreadyExists, a label, has the window's background by nature.
    for (MessageText* text : findChildren<MessageText*>())
        text->takeWindowColour();
    buildAlreadyExistsQuestion();
    update();
}

void frmErrorYesNoOnly::buildAlreadyExistsQuestion() {
    const QString path = shownPath(m_ports.records.job.strOutputFile, widthInTwips(*m_ui->lblAlreadyExists));
    m_ui->lblAlreadyExists->setText(path + ' ' + m_ui->msgAlreadyExists->text() + '\n' + m_ui->msgReplace->text());
}

void frmErrorYesNoOnly::DisplayMsgYesNo(const QString& ctlName) {
    const ErrorTrap trap("frmErrorYesNoOnly", "DisplayMsgYesNo");
    trap([&] { showOnlyText(*this, ctlName); });
}

void frmErrorYesNoOnly::cmdYes_Click() {
    answer(kYes);
}

void frmErrorYesNoOnly::cmdNo_Click() {
    answer(kNo);
}

void frmErrorYesNoOnly::answer(std::int16_t intDialogAnswer) {
    const auto alive = held();
    m_ports.records.flags.intDialogAnswer = intDialogAnswer;
    unload();
}

void frmErrorYesNoOnly::Form_QueryUnload(bool&, UnloadMode unloadMode) {
    if (unloadMode == UnloadMode::ControlMenu)
        m_ports.records.flags.intDialogAnswer = kNo;
}
