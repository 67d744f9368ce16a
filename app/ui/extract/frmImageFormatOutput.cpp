#include "ui/extract/frmImageFormatOutput.h"

#include "services/SkippingErrors.h"
#include "ui/extract/ImageTypeList.h"
#include "ui/extract/frmFinishExtractImages.h"
#include "ui/form/DropDownList.h"
#include "ui/form/LinkLabel.h"
#include "ui/form/OptionButton.h"
#include "ui/form/Picture.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

frmImageFormatOutput::frmImageFormatOutput(FormRegistry& registry, PagePorts ports)
    : SteppingPage(registry, std::move(ports), "frmImageFormatOutput", "Picture1", Closing::AsksFirst) {
    addFormatFields();
    addFolderFields();
    addPageFields();
    frame().stretch();
    addSteps();
    for (QPushButton* button : {cmdBack, cmdNext, cmdLast})
        button->setEnabled(false);
    connectHandlers();
}

void frmImageFormatOutput::addFormatFields() {
    loadPicture(*frame().picture("imgExtract"), "extract_images.svg");
    frame().title("lblImageFormatOutputPath", "Output Format");
    QLabel* choose = frame().sentence("lblChooseFileFormat", "Choose the file formation for extracting the images");
    cboExtImageType = new DropDownList(&frame().background());
    cboExtImageType->setObjectName("cboExtImageType");
    PageFrame::nameBy(*cboExtImageType, *choose);
    frame().row({cboExtImageType}, PageFrame::Stretch::None);
    m_formatCaptions = new QWidget(this);
    m_formatCaptions->hide();
    for (const char* name : {"optSameSourceImages", "optPNG", "optTIFF", "optBMP", "optJPG", "optPCX", "optPBM",
                             "optPNM", "optPPM", "optPSD"})
        (new OptionButton(m_formatCaptions))->setObjectName(name);
}

void frmImageFormatOutput::addFolderFields() {
    QLabel* saveTo = frame().heading("lblSaveImagesTo", "Save Images to:");
    frame().sentence("lblChoosePath", "Choose the path where you want the images to be stored:");
    txtFileBrowsePath = frame().textBox("txtFileBrowsePath", *saveTo);
    cmdBrowse = new QPushButton("Browse...", &frame().background());
    cmdBrowse->setObjectName("cmdBrowse");
    frame().row({txtFileBrowsePath, cmdBrowse}, PageFrame::Stretch::First);
    lblFileBrowsePath = frame().label("lblFileBrowsePath", "C:\\PdfDocument.pdf");
    lblFileBrowsePath->hide(); // the box shows the same
}

void frmImageFormatOutput::addPageFields() {
    frame().heading("lblPageRangeImage", "Page Range");
    frame().sentence("lblPageRangeAll", "Which pages of the PDF document");
    m_pages.addTo(frame());
    frame().sentence("lblPageRangeFromTo", "If you only want to extract images")->setProperty("role", "help");
}

void frmImageFormatOutput::connectHandlers() {
    m_pages.connectHandlers([this] { chkAllPages_Click(); }, [this] { chkFromTo_Click(); });
    connect(txtFileBrowsePath, &QLineEdit::textChanged, this, &frmImageFormatOutput::txtFileBrowsePath_Change);
    connect(cmdBrowse, &QPushButton::clicked, this, &frmImageFormatOutput::cmdBrowse_Click);
}

void frmImageFormatOutput::chooseAllPages() {
    load();
    m_pages.chkAllPages->setValue(true);
}

void frmImageFormatOutput::chooseFromTo() {
    load();
    m_pages.chkFromTo->setValue(true);
}

QString frmImageFormatOutput::captionOfSameSourceImages() {
    load();
    return findChild<OptionButton*>("optSameSourceImages")->text();
}

void frmImageFormatOutput::Form_Load() {
    skippingErrors([this] {
        if (ports().mainWindow.chkAllPages())
            m_pages.chkAllPages->setValue(true);
    });
    if (intExtractFromTo != 0) {
        m_pages.chkFromTo->setValue(true);
        m_pages.lblFrom->setEnabled(true);
    } else {
        m_pages.chkAllPages->setValue(true);
        m_pages.chkFromTo->setValue(false);
        m_pages.txtFrom->setEnabled(false);
    }
    applyLanguage();
    FillImageTypeList();
    cboExtImageType->setListIndex(0);
}

void frmImageFormatOutput::Form_Activate() {
    applyLanguage();
    FillImageTypeList();
    cboExtImageType->setListIndex(image_type_list::positionOf(job().strImageFormat));
    lblFileBrowsePath->setText(job().strImageFolder);
    lblFileBrowsePath_Change();
    txtFileBrowsePath->setText(job().strImageFolder);
    m_pages.txtFrom->setText(strExtractPages);
    if (intExtractFromTo == 1) {
        m_pages.chkAllPages->setValue(false);
        m_pages.chkFromTo->setEnabled(true);
        m_pages.chkFromTo->setValue(true);
        m_pages.txtFrom->setEnabled(true);
    } else {
        m_pages.chkAllPages->setValue(true);
        m_pages.chkFromTo->setValue(false);
    }
}

/// Clears nothing: the caption pass has done that.
void frmImageFormatOutput::FillImageTypeList() {
    for (const char* row : image_type_list::kRows)
        cboExtImageType->addItem(m_formatCaptions->findChild<OptionButton*>(row)->text());
}

void frmImageFormatOutput::chkAllPages_Click() {
    job().strImageFormat = cboExtImageType->currentText();
    m_pages.txtFrom->setEnabled(false);
}

void frmImageFormatOutput::chkFromTo_Click() {
    m_pages.lblFrom->setEnabled(true);
    m_pages.txtFrom->setEnabled(true);
    intExtractFromTo = 1;
}

void frmImageFormatOutput::enableForward(const QString& path) {
    cmdNext->setEnabled(!path.isEmpty());
    cmdLast->setEnabled(!path.isEmpty());
}

void frmImageFormatOutput::txtFileBrowsePath_Change() {
    enableForward(txtFileBrowsePath->text());
}

void frmImageFormatOutput::lblFileBrowsePath_Change() {
    enableForward(lblFileBrowsePath->text());
}

void frmImageFormatOutput::cmdBrowse_Click() {
    const auto alive = held();
    QString folder; // stays empty when the dialog fails
    skippingErrors([&] { folder = ports().folderDialog.BrowseFolder(*this, "Browse Folder"); });
    // A folder whose name the system could not put into its code page comes back with this mark.
    if (folder.contains('?'))
        folder = records().flags.strHomeFolder;
    if (folder.trimmed().isEmpty())
        return txtFileBrowsePath->setText(job().strImageFolder);
    txtFileBrowsePath->setText(folder);
    job().strImageFolder = txtFileBrowsePath->text();
}

void frmImageFormatOutput::cmdNext_Click() {
    store(Blanks::Count);
}

void frmImageFormatOutput::cmdLast_Click() {
    store(Blanks::DoNotCount);
}

/// Next and Last differ in what blanks in the box are to them: to Next a text without a number, to Last nothing.
void frmImageFormatOutput::store(Blanks blanks) {
    const auto alive = held();
    if (!m_pages.ValidatePageRange(PageRangeRules::ExtractionWizard, ports().refusals))
        return;
    job().strImageFormat = cboExtImageType->currentText();
    job().strImageFolder = txtFileBrowsePath->text();
    QString pages = m_pages.txtFrom->text();
    if (blanks == Blanks::DoNotCount)
        pages = withoutOuterBlanks(pages);
    if (m_pages.chkFromTo->value()) {
        if (pages.isEmpty())
            return ports().refusals.refuse("txtIncompleteRange");
        if (!startsWithPageNumber(pages))
            return ports().refusals.refuse("txtPageRangeZero");
        intExtractFromTo = 1;
    }
    if (m_pages.chkAllPages->value())
        intExtractFromTo = 0;
    strExtractPages = pages;
    goTo<frmFinishExtractImages>();
}

void frmImageFormatOutput::cmdCancel_Click() {
    job().strImageFormat = captionOfSameSourceImages();
    goToMain(); // without the cancel mark of the other pages: no command line leads here
}
