#pragma once

#include "ui/wizard/PageListChoice.h"
#include "ui/wizard/SteppingPage.h"

class DropDownList;

/// The first page of the extraction wizard: image format, folder and pages. Format and folder go to the run by the
/// shared records. The pages stay in this window: the run takes those that the main window set before, and what is
/// entered here is only shown again on the finish page. It is not to be wired to the run.
class frmImageFormatOutput : public SteppingPage {
    Q_OBJECT

public:
    frmImageFormatOutput(FormRegistry& registry, PagePorts ports);

    /// The pages as last stored, for the finish page; the main window sets both before it shows the page.
    QString strExtractPages;
    std::int16_t intExtractFromTo = 0; ///< 1: a list of pages, 0: all pages

    // What the main window does with controls of this page; each loads the page when needed.
    void chooseAllPages();
    void chooseFromTo();
    QString captionOfSameSourceImages();

protected:
    void Form_Load() override;
    void Form_Activate() override;

private:
    void addFormatFields();
    void addFolderFields();
    void addPageFields();
    void connectHandlers();
    void chkAllPages_Click();
    void chkFromTo_Click();
    void txtFileBrowsePath_Change();
    void lblFileBrowsePath_Change();
    void cmdBrowse_Click();
    void cmdBack_Click() override {} ///< disabled: nothing stands before this page
    void cmdCancel_Click() override;
    void cmdNext_Click() override;
    void cmdLast_Click() override;

    void FillImageTypeList();
    void enableForward(const QString& path);
    enum class Blanks { Count, DoNotCount };
    void store(Blanks blanks);

    DropDownList* cboExtImageType = nullptr;
    QWidget* m_formatCaptions = nullptr; ///< hidden; holds option buttons for their texts
    QLineEdit* txtFileBrowsePath = nullptr;
    QLabel* lblFileBrowsePath = nullptr;
    QPushButton* cmdBrowse = nullptr;
    PageListChoice m_pages;
};
