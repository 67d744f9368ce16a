#include "ui/dialogs/frmmsgbox.h"

#include "ui/form/WindowTexts.h"
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
    captionWindow(m_ports.languages, *this);
}

void frmmsgbox::cmdOK_Click() {
    const auto alive = held();
    unload();
}
