#pragma once

#include "ui/wizard/WizardPage.h"

/// Shows what the extraction will do and hands over to the run. Unlike the conversion wizard's, its Finish saves no
/// settings. The pages shown are those of the page before, which need not be the ones that the run receives.
class frmFinishExtractImages : public WizardPage {
    Q_OBJECT

public:
    frmFinishExtractImages(FormRegistry& registry, PagePorts ports);

protected:
    void Form_Load() override;
    void Form_Activate() override;

private:
    void connectHandlers();
    void cmdBack_Click();
    void cmdCancel_Click();
    void cmdFinish_click();

    void showPages();

    QLabel* lblImageFor;
    QLineEdit* lblOutPath;
    QLabel* lblAllPages;
    QLabel* lblFrom;
    QLineEdit* lblFromVal;
    QPushButton* cmdBack;
    QPushButton* cmdNext;
    QPushButton* cmdFinish;
    QPushButton* cmdCancel;
};
