#pragma once

#include "ui/wizard/SteppingPage.h"

class DropDownList;

/// Asks whether character spacing is kept: intCharSpac (0 keeps it) and the text that the summary shows for it.
class frmCharSpacing : public SteppingPage {
    Q_OBJECT

public:
    frmCharSpacing(FormRegistry& registry, PagePorts ports);

protected:
    void Form_Load() override;
    void Form_Activate() override;

private:
    void connectHandlers();
    void optCharSpaceYes_Click();
    void optCharSpaceNo_Click();
    void cboCharSpacingType_Click(int position);
    void cmdBack_Click() override;
    void cmdNext_Click() override;
    void cmdLast_Click() override;

    void selectStoredSpacing();
    void store();

    Picture* imgcharcterSpacing;
    OptionButton* optCharSpaceYes;
    OptionButton* optCharSpaceNo;
    DropDownList* cboCharSpacingType; ///< never shown; acts only when code selects an item
};
