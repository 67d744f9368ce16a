#pragma once

#include "core/RunViews.h"
#include "ui/dialogs/MessagePorts.h"
#include "ui/dialogs/Refusals.h"
#include "ui/form/Form.h"

class OptionButton;
class QLabel;
class QLineEdit;
class QPushButton;

/// What the page prompt reaches.
struct PromptPagesPorts {
    SharedRecords& records;
    LanguageTable& languages;
    Refusals& refusals;
    UserMessages& messageBox;
};

/// Asks for the pages of a conversion as a first and a last page: intUseFromTo, intPageFrom and intPageTo. No command
/// opens it today. Whoever does shows it modally and reads the three fields afterwards.
class frmPromptPages : public Form {
    Q_OBJECT

public:
    frmPromptPages(FormRegistry& registry, PromptPagesPorts ports);

    void disablePageBoxes();
    void enablePageBoxes();

protected:
    void Form_Load() override;

private:
    void layOut();
    void connectHandlers();
    void chkAllPages_Click();
    void chkFromTo_Click();
    void cmdOK_Click();

    void takePages();

    PromptPagesPorts m_ports;
    QLabel* lblConvertPages;
    OptionButton* chkAllPages;
    QLabel* lblAllPages;
    OptionButton* chkFromTo;
    QLabel* lblFrom;
    QLineEdit* txtFrom;
    QLabel* lblTo;
    QLineEdit* txtTo;
    QPushButton* cmdOK;
};
