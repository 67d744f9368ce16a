#include "ui/dialogs/frmErrorOkOnly.h"

#include "ui/form/WindowTexts.h"
#include "ui_frmErrorOkOnly.h"

#include <QDir>

frmErrorOkOnly::frmErrorOkOnly(FormRegistry& registry, MessagePorts ports)
    : Form(registry)
    , m_ui(std::make_unique<Ui::frmErrorOkOnly>())
    , m_ports(ports) {
    setWindowFlag(Qt::Dialog);
    m_ui->setupUi(this);
    connectHandlers();
}

frmErrorOkOnly::~frmErrorOkOnly() = default;

void frmErrorOkOnly::connectHandlers() {
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmErrorOkOnly::cmdOK_Click);
    // The texts cannot be edited because they pass the focus on. txtError11 and txtError2, which nothing shows, keep
    // it.
    for (MessageText* text : {m_ui->txtIncompleteRange, m_ui->txtIncorrectRange, m_ui->txtInvalidFileFormat,
                              m_ui->txtInvalidFileFormatOutput, m_ui->txtPageRangeZero, m_ui->txtSelectPDFFile})
        connect(text, &MessageText::gotFocus, this, [this] { m_ui->cmdOK->setFocus(); });
}

void frmErrorOkOnly::Form_Load() {
    captionWindow(m_ports.languages, *this);
    m_ui->imgError->load(QDir(m_ports.languages.applicationFolder).filePath("images/W95MBX03.ICO"));
    for (MessageText* text : findChildren<MessageText*>())
        text->takeWindowColour();
}

void frmErrorOkOnly::cmdOK_Click() {
    const auto alive = held();
    unload();
}
