#pragma once

#include "ui/wizard/SteppingPage.h"

#include <array>

/// Asks how the document is to be rebuilt: intReconstMode, and the text that the summary shows for it.
class frmLayout : public SteppingPage {
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
    void cmdBack_Click() override;
    void cmdNext_Click() override;
    void cmdLast_Click() override;

    void selectStoredMode();
    void store();

    std::array<Choice, 5> m_choices; ///< by intReconstMode
    Picture* imgPDF;
};
