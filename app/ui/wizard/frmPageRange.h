#pragma once

#include "ui/wizard/PageListChoice.h"
#include "ui/wizard/WizardPage.h"

/// The last question of the conversion wizard: all pages, or a list of pages. Fills strPageRange and intConvertFrom.
class frmPageRange : public WizardPage {
    Q_OBJECT

public:
    frmPageRange(FormRegistry& registry, PagePorts ports);

protected:
    void Form_Load() override;
    void Form_Activate() override;

private:
    void connectHandlers();
    void chkAllPages_Click();
    void chkFromTo_Click();
    void lblAllPages_Click();
    void lblFrom_Click();
    void cmdBack_Click();
    void cmdCancel_Click();
    void cmdNext_Click();
    void cmdLast_Click();

    void store();

    Picture* imgPages;
    PageListChoice m_pages;
    QPushButton* cmdBack;
    QPushButton* cmdNext;
    QPushButton* cmdLast;
    QPushButton* cmdCancel;
};
