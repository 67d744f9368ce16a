#pragma once

#include "ui/dialogs/MessagePorts.h"
#include "ui/form/Form.h"

#include <memory>

namespace Ui {
class frmErrorOkOnly;
}

/// The window of refusals: eight texts in one place, of which the caller shows one.
class frmErrorOkOnly : public Form {
    Q_OBJECT

public:
    frmErrorOkOnly(FormRegistry& registry, MessagePorts ports);
    ~frmErrorOkOnly() override;

protected:
    void Form_Load() override;

private:
    void connectHandlers();
    void cmdOK_Click();

    std::unique_ptr<Ui::frmErrorOkOnly> m_ui;
    MessagePorts m_ports;
};
