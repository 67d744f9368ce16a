#pragma once

#include "ui/wizard/WizardPage.h"

#include <array>

/// Asks how the document is to be rebuilt: intReconstMode, and the text that the summary shows for it.
class frmLayout : public WizardPage {
    Q_OBJECT

public:
    frmLayout(FormRegistry& registry, PagePorts ports);

protected:
    void Form_Load() override;
    void Form_Activate() override;

private:
    struct Choice {
        OptionButton* option = nullptr;
        QLabel* description = nullptr;
        const char* picture = nullptr;
    };

    void connectHandlers();
    void option_Click(const Choice& choice);
    void cmdBack_Click();
    void cmdCancel_Click();
    void cmdNext_Click();
    void cmdLast_Click();

    void selectStoredMode();
    void store();

    std::array<Choice, 5> m_choices; ///< by intReconstMode
    Picture* imgPDF;
    QPushButton* cmdBack;
    QPushButton* cmdNext;
    QPushButton* cmdLast;
    QPushButton* cmdCancel;
};
