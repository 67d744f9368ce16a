#pragma once

#include "ui/wizard/SteppingPage.h"

/// Asks what happens to the images of the PDF: intRecoverImg. In the modes without images the answer is forced.
class frmImageRecovery : public SteppingPage {
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
    void cmdBack_Click() override;
    void cmdCancel_Click() override;
    void cmdNext_Click() override;
    void cmdLast_Click() override;

    void selectStoredTreatment();
    void store();

    /// intRecoverImg as it was when the page last became active, before the page itself changed it.
    std::int16_t m_intRecoverImgEntry = 0;
    bool m_isEntryOfLoad = false; ///< taken by the load, whose activation is still to come
    Picture* Image1;
    OptionButton* optAutoAnchor;
    OptionButton* optRemImg;
};
