#pragma once

#include "ui/wizard/PageListChoice.h"
#include "ui/wizard/SteppingPage.h"

/// The last question of the conversion wizard: all pages, or a list of pages. Fills strPageRange and intConvertFrom.
class frmPageRange : public SteppingPage {
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
    void cmdBack_Click() override;
    void cmdCancel_Click() override;
    void cmdNext_Click() override;
    void cmdLast_Click() override;

    void store();

    Picture* imgPages;
    PageListChoice m_pages;
};
