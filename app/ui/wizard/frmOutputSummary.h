#pragma once

#include "ui/wizard/WizardPage.h"

/// Shows what the conversion wizard has gathered. Finish is the one point where the wizard saves the settings and hands
/// over to the run.
class frmOutputSummary : public WizardPage {
    Q_OBJECT

public:
    frmOutputSummary(FormRegistry& registry, PagePorts ports);

protected:
    void Form_Load() override;
    void Form_Activate() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addLines();
    void connectHandlers();
    void cmdBack_Click();
    void cmdFinish_Click();

    void showPaths();
    void showAllPages();

    QLineEdit* txtSourcePath = nullptr;
    QLineEdit* txtOutputPath = nullptr;
    QLabel* lblOutFormat = nullptr;
    QLabel* lblAllPages = nullptr;
    QLabel* lblFrom = nullptr;
    QLineEdit* lblFromVal = nullptr;
    QLabel* lblTo = nullptr;
    QLabel* lblToVal = nullptr;
    QLabel* lblLayoutSel = nullptr;
    QLabel* lblCharacterSpacing = nullptr;
    QLabel* lblCharSpacing = nullptr;
    Picture* Image9 = nullptr;
    QLabel* cmdYes = nullptr;
    QLabel* cmdNo = nullptr;
    QPushButton* cmdBack;
    QPushButton* cmdFinish;
};
