#include "ui/dialogs/frmPromptPages.h"

#include "core/PageNumberPair.h"
#include "i18n/Captions.h"
#include "ui/form/KeyPress.h"
#include "ui/form/OptionButton.h"
#include "ui/form/WindowTexts.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <stdexcept>

namespace {

constexpr int kMargin = 24;
constexpr int kGap = 8;
constexpr int kNumberBoxWidth = 72;

template<typename Control, typename... Arguments>
Control* named(const char* name, Arguments... arguments) {
    auto* control = new Control(arguments...);
    control->setObjectName(name);
    return control;
}

} // namespace

frmPromptPages::frmPromptPages(FormRegistry& registry, PromptPagesPorts ports)
    : Form(registry)
    , m_ports(ports)
    , lblConvertPages(named<QLabel>("lblConvertPages", "Convert Pages", this))
    , chkAllPages(named<OptionButton>("chkAllPages", this))
    , lblAllPages(named<QLabel>("lblAllPages", "All Pages", this))
    , chkFromTo(named<OptionButton>("chkFromTo", this))
    , lblFrom(named<QLabel>("lblFrom", this))
    , txtFrom(named<QLineEdit>("txtFrom", this))
    , lblTo(named<QLabel>("lblTo", this))
    , txtTo(named<QLineEdit>("txtTo", this))
    , cmdOK(named<QPushButton>("cmdOK", "OK", this)) {
    setObjectName("frmPromptPages");
    setWindowFlag(Qt::Dialog);
    layOut();
    connectHandlers();
}

void frmPromptPages::layOut() {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    grid->setHorizontalSpacing(kGap);
    grid->setVerticalSpacing(kGap);
    lblConvertPages->setProperty("role", "heading");
    grid->addWidget(lblConvertPages, 0, 0, 1, 5);
    grid->addWidget(chkAllPages, 1, 0);
    grid->addWidget(lblAllPages, 1, 1, 1, 4);
    grid->addWidget(chkFromTo, 2, 0);
    grid->addWidget(lblFrom, 2, 1);
    grid->addWidget(txtFrom, 2, 2);
    grid->addWidget(lblTo, 2, 3);
    grid->addWidget(txtTo, 2, 4);
    grid->addWidget(cmdOK, 3, 0, 1, 5, Qt::AlignRight);
    lblAllPages->setBuddy(chkAllPages);
    lblFrom->setBuddy(txtFrom);
    lblTo->setBuddy(txtTo);
    for (QLineEdit* box : {txtFrom, txtTo})
        box->setFixedWidth(kNumberBoxWidth);
    cmdOK->setDefault(true);
}

void frmPromptPages::connectHandlers() {
    connect(chkAllPages, &OptionButton::turnedTrue, this, &frmPromptPages::chkAllPages_Click);
    connect(chkFromTo, &OptionButton::turnedTrue, this, &frmPromptPages::chkFromTo_Click);
    connect(cmdOK, &QPushButton::clicked, this, &frmPromptPages::cmdOK_Click);
    for (QLineEdit* box : {txtFrom, txtTo})
        onKeyPress(*box, &filterPageNumberKey);
}

void frmPromptPages::Form_Load() {
    captionWindow(m_ports.languages, *this);
    chkAllPages->setAccessibleName(withoutMnemonic(lblAllPages->text()));
    chkFromTo->setAccessibleName(withoutMnemonic(lblFrom->text()));
    txtFrom->setAccessibleName(withoutMnemonic(lblFrom->text()));
    txtTo->setAccessibleName(withoutMnemonic(lblTo->text()));
}

void frmPromptPages::disablePageBoxes() {
    txtFrom->setEnabled(false);
    txtTo->setEnabled(false);
}

void frmPromptPages::enablePageBoxes() {
    txtFrom->setEnabled(true);
    txtTo->setEnabled(true);
}

void frmPromptPages::chkAllPages_Click() {
    txtFrom->clear();
    txtTo->clear();
    disablePageBoxes();
}

void frmPromptPages::chkFromTo_Click() {
    enablePageBoxes();
}

void frmPromptPages::cmdOK_Click() {
    const auto alive = held();
    try {
        takePages();
    } catch (const std::overflow_error& error) {
        // The fields of the run hold 16 bits. The boxes stay as they are, for another number.
        m_ports.messageBox.tell(UserMessages::Icon::Critical, QString::fromUtf8(error.what()), kWindowTitle);
    }
}

void frmPromptPages::takePages() {
    ConversionJob& job = m_ports.records.job;
    if (chkFromTo->value()) {
        const PageNumberFault fault = checkPageNumbers(txtFrom->text(), txtTo->text());
        if (fault != PageNumberFault::None)
            return m_ports.refusals.refuse(refusalOf(fault));
        job.intUseFromTo = page_numbers::kGiven;
        job.intPageFrom = pageNumberOf(txtFrom->text());
        job.intPageTo = pageNumberOf(txtTo->text());
    }
    if (chkAllPages->value())
        job.intUseFromTo = page_numbers::kNotGiven;
    unload();
}
