#pragma once

#include "ui/form/Form.h"
#include "ui/form/FormRegistry.h"
#include "ui/wizard/PageFrame.h"
#include "ui/wizard/PagePorts.h"

/// A page of a wizard: a window of its own. A page hands over by showing the next one and hiding itself, stays loaded,
/// and is brought in line with the shared records at each activation; what it asks for goes straight into them.
class WizardPage : public Form {
    Q_OBJECT

protected:
    /// What becomes of the program when the user closes a page.
    enum class Closing {
        AsksFirst,           ///< and the process ends with the page
        AsksAndLeavesEnding, ///< to the other windows, which are unloaded with the page
        EndsAtOnce           ///< without any question
    };

    /// `name`: the window's name, also in the error log.
    WizardPage(FormRegistry& registry, PagePorts ports, const char* name, const char* backgroundName, Closing closing);

    /// The texts of the language of the moment. Rewrites every text box and empties every list.
    void applyLanguage();

    /// Tells the main window that a wizard was left while a command line was pending, so that its activation does not
    /// start that job once more.
    void markCancelled();

    /// The page of that kind, made when it is first used.
    template<typename Page>
    std::shared_ptr<Page> page() {
        return registry().template obtain<Page>(m_ports);
    }
    /// What becomes of an error of the window that comes up. The handlers of some pages pass over what fails and go on;
    /// where there is no such protection, the error is the platform's to end the program by.
    enum class Errors { PassedOver, Unhandled };

    /// Shows the page of that kind, then hides this one.
    template<typename Page>
    void goTo(Errors errors = Errors::PassedOver) {
        handOver([this] { page<Page>()->showForm(); }, errors);
    }
    void goToMain(Errors errors = Errors::PassedOver);
    /// What Cancel does on most pages: marks the wizard as cancelled and goes to the main window.
    void leaveWizard(Errors errors = Errors::PassedOver);
    /// Hides this page and shows the progress window, unless the program is asked to close.
    void goToProgress();

    /// Shows a picture from the folder of pictures; one that is missing leaves the old one.
    void loadPicture(Picture& picture, const QString& name) const;

    void Form_QueryUnload(bool& cancel, UnloadMode unloadMode) override;
    void Form_Unload() override;
    void showEvent(QShowEvent* event) override;

    PageFrame& frame() { return m_frame; }
    const PagePorts& ports() const { return m_ports; }
    SharedRecords& records() const { return m_ports.records; }
    ConversionJob& job() const { return m_ports.records.job; }
    AppSettings& settings() const { return m_ports.records.settings; }

private:
    void handOver(const std::function<void()>& showNext, Errors errors);

    PagePorts m_ports;
    PageFrame m_frame;
    Closing m_closing;
};
