#pragma once

#include "ui/wizard/WizardPage.h"

/// A page in the middle of a wizard, with the four buttons that lead through it.
class SteppingPage : public WizardPage {
    Q_OBJECT

protected:
    using WizardPage::WizardPage;

    /// Puts the buttons below what the page shows. To be called once, behind the controls that come before them.
    void addSteps();

    virtual void cmdBack_Click() = 0;
    virtual void cmdNext_Click() = 0;
    virtual void cmdLast_Click() = 0;
    virtual void cmdCancel_Click();

    QPushButton* cmdBack = nullptr;
    QPushButton* cmdNext = nullptr;
    QPushButton* cmdLast = nullptr;
    QPushButton* cmdCancel = nullptr;
};
