#pragma once

#include "ui/wizard/WizardPage.h"

class QCheckBox;

/// The first page of the long road through the conversion wizard: the output file, and a choice of pages by two plain
/// numbers. frmPageRange asks for the pages once more as a list; neither page reads the other's fields.
class frmOutputOptions : public WizardPage {
    Q_OBJECT

public:
    frmOutputOptions(FormRegistry& registry, PagePorts ports);

protected:
    void Form_Load() override;
    void Form_Activate() override;

private:
    void addOutputFields();
    void addPageFields();
    void connectHandlers();
    void txtfilepath_Change();
    void chkAllPages_Click();
    void chkFromTo_Click();
    void cmdBrowse_Click();
    void cmdBack_Click();
    void cmdCancel_Click();
    void cmdNext_Click();
    void cmdLast_Click();

    enum class PageBoxes { Enabled, Disabled };
    void setPageBoxes(PageBoxes state);
    bool pagesPass() const;
    void store();
    void storeOpening();

    Picture* imgPages;
    QLineEdit* txtfilepath = nullptr;
    QPushButton* cmdBrowse = nullptr;
    QLabel* lblOutputFormatDoc = nullptr;
    OptionButton* chkAllPages = nullptr;
    OptionButton* chkFromTo = nullptr;
    QLabel* lblFrom = nullptr;
    QLineEdit* txtFrom = nullptr;
    QLabel* lblTo = nullptr;
    QLineEdit* txtTo = nullptr;
    QCheckBox* chkOpenDocEditing = nullptr;
    QPushButton* cmdBack;
    QPushButton* cmdNext;
    QPushButton* cmdLast;
    QPushButton* cmdCancel;
};
