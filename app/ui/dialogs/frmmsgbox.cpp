#include "ui/dialogs/frmmsgbox.h"

#include "i18n/Captions.h"
#include "ui_frmmsgbox.h"

#include <QDir>

frmmsgbox::frmmsgbox(FormRegistry& registry, MessagePorts ports)
    : Form(registry)
    , m_ui(std::make_unique<Ui::frmmsgbox>())
    , m_ports(ports) {
    setWindowFlag(Qt::Dialog);
    m_ui->setupUi(this);
    m_ui->Image1->load(QDir(m_ports.languages.applicationFolder).filePath("images/W95MBX03.ICO"));
    connectHandlers();
}

frmmsgbox::~frmmsgbox() = default;

void frmmsgbox::connectHandlers() {
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmmsgbox::cmdOK_Click);
}

void frmmsgbox::Form_Load() {
    SelectLanguage(m_ports.languages, m_ports.records.settings.intLanguageID);
    GetControlCaptions(m_ports.languages, *this);
}

void frmmsgbox::cmdOK_Click() {
    const auto alive = held();
    unload();
}
