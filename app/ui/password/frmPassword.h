#pragma once

#include "core/RunViews.h"
#include "ui/form/Form.h"
#include "ui/password/PasswordPorts.h"

#include <memory>

namespace Ui {
class frmPassword;
}

/// The prompt for a locked PDF: gives the run the password, which it does not judge, or gives the file up.
class frmPassword : public Form {
    Q_OBJECT

public:
    frmPassword(FormRegistry& registry, PasswordPorts ports);
    ~frmPassword() override;

    /// Shows which password is wanted: lblUserPass or lblOwnerPass.
    void showWanted(PasswordPrompt::Password wanted);

protected:
    void Form_Load() override;
    void Form_QueryUnload(bool& cancel, UnloadMode unloadMode) override;
    void Form_Unload() override;

private:
    void connectHandlers();
    void cmdOK_Click();
    void cmdCancel_Click();
    void giveUp();

    std::unique_ptr<Ui::frmPassword> m_ui;
    PasswordPorts m_ports;
    bool m_isGivenUp = false; ///< the run goes with this window
};
