#pragma once

#include "ui/dialogs/MessagePorts.h"
#include "ui/form/Form.h"

#include <memory>

namespace Ui {
class frmmsgbox;
}

/// The window of the two messages about page ranges. It is unloaded after each use, so that no text stays visible.
class frmmsgbox : public Form {
    Q_OBJECT

public:
    frmmsgbox(FormRegistry& registry, MessagePorts ports);
    ~frmmsgbox() override;

protected:
    void Form_Load() override;

private:
    void connectHandlers();
    void cmdOK_Click();

    std::unique_ptr<Ui::frmmsgbox> m_ui;
    MessagePorts m_ports;
};
