#pragma once

#include "ui/dialogs/MessagePorts.h"
#include "ui/form/Form.h"

#include <memory>

namespace Ui {
class frmErrorYesNoOnly;
}

/// The window of questions: several texts in one place, of which the caller shows one. The answer stands in
/// intDialogAnswer.
class frmErrorYesNoOnly : public Form {
    Q_OBJECT

public:
    frmErrorYesNoOnly(FormRegistry& registry, MessagePorts ports);
    ~frmErrorYesNoOnly() override;

    /// Shows the text of that name and hides the others. Errors: logged.
    void DisplayMsgYesNo(const QString& ctlName);

protected:
    void Form_Load() override;
    void Form_QueryUnload(bool& cancel, UnloadMode unloadMode) override;

private:
    void connectHandlers();
    void cmdYes_Click();
    void cmdNo_Click();
    void answer(std::int16_t intDialogAnswer);
    void buildAlreadyExistsQuestion();

    std::unique_ptr<Ui::frmErrorYesNoOnly> m_ui;
    MessagePorts m_ports;
};
