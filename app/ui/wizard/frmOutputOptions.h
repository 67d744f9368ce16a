#pragma once

#include "ui/wizard/SteppingPage.h"

class QCheckBox;

/// The first page of the long road through the conversion wizard: the output file, and a choice of pages by two plain
/// numbers. frmPageRange asks for the pages once more as a list; neither page reads the other's fields.
class frmOutputOptions : public SteppingPage {
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
    void cmdBack_Click() override;
    void cmdCancel_Click() override;
    void cmdNext_Click() override;
    void cmdLast_Click() override;

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
};
