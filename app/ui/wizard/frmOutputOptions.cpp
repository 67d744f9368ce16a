#include "ui/wizard/frmOutputOptions.h"

#include "core/OutputDerivation.h"
#include "core/PageNumberPair.h"
#include "core/Paths.h"
#include "services/SkippingErrors.h"
#include "ui/form/KeyPress.h"
#include "ui/form/LinkLabel.h"
#include "ui/form/OptionButton.h"
#include "ui/form/Picture.h"
#include "ui/wizard/frmLayout.h"
#include "ui/wizard/frmOutputSummary.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

namespace {

constexpr int kLongestNumber = 4; ///< characters: keeps both numbers within their fields
constexpr int kNumberBoxWidth = 72;

} // namespace

frmOutputOptions::frmOutputOptions(FormRegistry& registry, PagePorts ports)
    : SteppingPage(registry, std::move(ports), "frmOutputOptions", "Picture1", Closing::EndsAtOnce)
    , imgPages(frame().picture("imgPages")) {
    addOutputFields();
    addPageFields();
    chkOpenDocEditing = new QCheckBox("Open document for editing after conversion", &frame().background());
    chkOpenDocEditing->setObjectName("chkOpenDocEditing");
    frame().add(chkOpenDocEditing);
    frame().stretch();
    addSteps();
    cmdNext->setEnabled(false);
    cmdLast->setEnabled(false);
    connectHandlers();
}

void frmOutputOptions::addOutputFields() {
    frame().title("lblOutputOptions", "Output Options");
    QLabel* path = frame().heading("lblOutputfilepath", "Output File Path");
    txtfilepath = frame().textBox("txtfilepath", *path);
    txtfilepath->setReadOnly(true);
    cmdBrowse = new QPushButton("Browse...", &frame().background());
    cmdBrowse->setObjectName("cmdBrowse");
    frame().row({txtfilepath, cmdBrowse}, PageFrame::Stretch::First);
    lblOutputFormatDoc = frame().label("lblOutputFormatDoc");
    frame().row({frame().label("lblOutputformat", "Output format"), lblOutputFormatDoc});
}

void frmOutputOptions::addPageFields() {
    frame().heading("lblConvertPages", "Convert");
    chkAllPages = frame().captionlessOption("chkAllPages");
    frame().row({chkAllPages, frame().optionLabel("lblAllPages", "All Pages", *chkAllPages)});
    chkFromTo = frame().captionlessOption("chkFromTo");
    lblFrom = frame().label("lblFrom");
    txtFrom = frame().textBox("txtFrom", *lblFrom);
    PageFrame::nameBy(*chkFromTo, *lblFrom);
    lblTo = frame().label("lblTo");
    txtTo = frame().textBox("txtTo", *lblTo);
    for (QLineEdit* box : {txtFrom, txtTo}) {
        box->setMaxLength(kLongestNumber);
        box->setFixedWidth(kNumberBoxWidth);
    }
    frame().row({chkFromTo, lblFrom, txtFrom, lblTo, txtTo}, PageFrame::Stretch::None);
}

void frmOutputOptions::connectHandlers() {
    connect(txtfilepath, &QLineEdit::textChanged, this, &frmOutputOptions::txtfilepath_Change);
    for (QLineEdit* box : {txtFrom, txtTo})
        onKeyPress(*box, &filterPageNumberKey);
    connect(chkAllPages, &OptionButton::turnedTrue, this, &frmOutputOptions::chkAllPages_Click);
    connect(chkFromTo, &OptionButton::turnedTrue, this, &frmOutputOptions::chkFromTo_Click);
    // The label stands for its option, as on the other pages; it has no logic of its own here.
    connect(findChild<LinkLabel*>("lblAllPages"), &LinkLabel::clicked, this, [this] { chkAllPages->setValue(true); });
    connect(cmdBrowse, &QPushButton::clicked, this, &frmOutputOptions::cmdBrowse_Click);
}

void frmOutputOptions::Form_Load() {
    applyLanguage();
    if (settings().intPromptPageRange != 0)
        chkAllPages->setValue(true); // its click logic sets the field to 0, so a first showing starts with all pages
    chkFromTo->setValue(false);
    setPageBoxes(PageBoxes::Disabled);
    txtfilepath->setText(job().strOutputFile);
}

void frmOutputOptions::Form_Activate() {
    applyLanguage();
    if (settings().intPromptPageRange == 1) {
        chkFromTo->setEnabled(true);
        chkFromTo->setValue(true);
        chkAllPages->setValue(false);
        setPageBoxes(PageBoxes::Enabled);
    } else {
        chkAllPages->setValue(true);
        chkFromTo->setEnabled(true);
        chkFromTo->setValue(false);
        setPageBoxes(PageBoxes::Disabled);
    }
    lblOutputFormatDoc->setText(job().strOutputShown);
    if (chkFromTo->value() && job().intPageFrom != 0 && job().intPageTo != 0) {
        txtFrom->setText(QString::number(job().intPageFrom));
        txtTo->setText(QString::number(job().intPageTo));
    } else {
        chkAllPages->setValue(true);
    }
    chkOpenDocEditing->setChecked(settings().intLauchMs != 0 || job().intOpenDocEditing != 0);
    txtfilepath->setText(job().strOutputFile);
}

void frmOutputOptions::txtfilepath_Change() {
    if (txtfilepath->text().isEmpty())
        return; // once enabled, the buttons stay so
    cmdNext->setEnabled(true);
    cmdLast->setEnabled(true);
}

void frmOutputOptions::setPageBoxes(PageBoxes state) {
    for (QWidget* part : {static_cast<QWidget*>(lblFrom), static_cast<QWidget*>(txtFrom), static_cast<QWidget*>(lblTo),
                          static_cast<QWidget*>(txtTo)})
        part->setEnabled(state == PageBoxes::Enabled);
}

void frmOutputOptions::chkAllPages_Click() {
    txtFrom->clear();
    txtTo->clear();
    job().intPageFrom = 0;
    job().intPageTo = 0;
    setPageBoxes(PageBoxes::Disabled);
    loadPicture(*imgPages, "all_pages.jpg");
    settings().intPromptPageRange = 0;
}

void frmOutputOptions::chkFromTo_Click() {
    if (job().intPageFrom == 0 || job().intPageTo == 0) {
        txtFrom->clear();
        txtTo->clear();
    }
    setPageBoxes(PageBoxes::Enabled);
    loadPicture(*imgPages, "selected_pages.jpg");
    settings().intPromptPageRange = 1;
}

void frmOutputOptions::cmdBrowse_Click() {
    const auto alive = held();
    QString folder; // stays empty for a path without one
    skippingErrors([&] { folder = folderOf(job().strOutputFile); });
    skippingErrors([&] {
        const auto file =
            ports().fileDialogs.save({"Save As", folder, "DOC Files (*.doc)|*.doc|RTF Files (*.rtf)|*.rtf", 0, {}});
        if (!file)
            return;
        const QString extension = file->right(4);
        if (!QStringList{".rtf", ".RTF", ".doc", ".DOC"}.contains(extension))
            return ports().refusals.refuse("txtInvalidFileFormatOutput");
        job().strOutputFile = *file;
        txtfilepath->setText(*file);
        lblOutputFormatDoc->setText(extension);
    });
}

bool frmOutputOptions::pagesPass() const {
    if (!chkFromTo->value())
        return true;
    const PageNumberFault fault = checkPageNumbers(txtFrom->text(), txtTo->text());
    if (fault == PageNumberFault::None)
        return true;
    ports().refusals.refuse(refusalOf(fault));
    return false;
}

void frmOutputOptions::store() {
    job().strOutputFile = txtfilepath->text();
    // The whole path, file name and all: the source dialog opens where the last output lies.
    settings().strRecentFolder = job().strOutputFile;
    job().strOutputShown = lblOutputFormatDoc->text();
    if (chkFromTo->value()) {
        job().intUseFromTo = page_numbers::kGiven;
        job().intPageFrom = pageNumberOf(txtFrom->text());
        job().intPageTo = pageNumberOf(txtTo->text());
    }
    if (chkAllPages->value()) {
        job().intUseFromTo = page_numbers::kNotGiven;
        settings().intPromptPageRange = 0;
    }
}

/// Unticking clears the setting for later jobs too.
void frmOutputOptions::storeOpening() {
    job().intOpenDocEditing = chkOpenDocEditing->isChecked() ? 1 : 0;
    if (!chkOpenDocEditing->isChecked())
        settings().intLauchMs = 0;
}

void frmOutputOptions::cmdBack_Click() {
    goToMain(Errors::Unhandled);
}

void frmOutputOptions::cmdCancel_Click() {
    leaveWizard(Errors::Unhandled);
}

void frmOutputOptions::cmdNext_Click() {
    const auto alive = held();
    if (!pagesPass())
        return;
    store();
    settings().intOutputFormat = lblOutputFormatDoc->text() == ".doc" ? output_format::kDoc : output_format::kRtf;
    storeOpening();
    goTo<frmLayout>(Errors::Unhandled);
}

void frmOutputOptions::cmdLast_Click() {
    const auto alive = held();
    if (!pagesPass())
        return;
    // The format that was chosen in the save dialog reaches the run through Next only: it belongs to the road that
    // goes on to the layout, and the short way keeps the stored one.
    store();
    storeOpening();
    goTo<frmOutputSummary>(Errors::Unhandled);
}
