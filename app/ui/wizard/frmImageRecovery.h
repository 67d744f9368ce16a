#pragma once

#include "ui/wizard/WizardPage.h"

/// Asks what happens to the images of the PDF: intRecoverImg. In the modes without images the answer is forced.
class frmImageRecovery : public WizardPage {
    Q_OBJECT

public:
    frmImageRecovery(FormRegistry& registry, PagePorts ports);

protected:
    void Form_Load() override;
    void Form_Activate() override;

private:
    void connectHandlers();
    void optAutoAnchor_Click();
    void optRemImg_Click();
    void cmdBack_Click();
    void cmdCancel_Click();
    void cmdNext_Click();
    void cmdLast_Click();

    void selectStoredTreatment();
    void store();

    /// intRecoverImg as it was when the page last became active, before the page itself changed it.
    std::int16_t m_intRecoverImgEntry = 0;
    bool m_isEntryOfLoad = false; ///< taken by the load, whose activation is still to come
    Picture* Image1;
    OptionButton* optAutoAnchor;
    OptionButton* optRemImg;
    QPushButton* cmdBack;
    QPushButton* cmdNext;
    QPushButton* cmdLast;
    QPushButton* cmdCancel;
};
