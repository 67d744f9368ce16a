#include "ui/wizard/WizardPage.h"

#include "services/SkippingErrors.h"
#include "ui/form/ClosePrompt.h"
#include "ui/form/FirstField.h"
#include "ui/form/Picture.h"
#include "ui/form/WindowTexts.h"
#include "ui/links/LinkBar.h"

namespace {

constexpr char kImageFolder[] = "/images";

} // namespace

WizardPage::WizardPage(FormRegistry& registry, PagePorts ports, const char* name, const char* backgroundName,
                       Closing closing)
    : Form(registry)
    , m_ports(std::move(ports))
    , m_frame(*this, backgroundName)
    , m_closing(closing) {
    setObjectName(name);
    LinkBar& links = m_frame.linkBar();
    links.connectLinks(m_ports.links, m_ports.languages.applicationFolder + kImageFolder);
    links.followMouse(m_frame.background());
}

void WizardPage::applyLanguage() {
    captionWindow(m_ports.languages, *this);
    PageFrame::nameControls(*this);
}

void WizardPage::markCancelled() {
    if (!records().flags.strCommandLine.isEmpty())
        records().flags.intWizardCancelled = 1;
}

void WizardPage::handOver(const std::function<void()>& showNext, Errors errors) {
    const auto alive = held();
    if (errors == Errors::PassedOver)
        skippingErrors(showNext);
    else
        showNext();
    hide();
}

void WizardPage::goToMain(Errors errors) {
    handOver([this] { m_ports.mainWindow.show(); }, errors);
}

void WizardPage::leaveWizard(Errors errors) {
    markCancelled();
    goToMain(errors);
}

void WizardPage::goToProgress() {
    if (records().flags.blnCloseRequested)
        return;
    const auto alive = held();
    hide();
    m_ports.startRun();
}

void WizardPage::loadPicture(Picture& picture, const QString& name) const {
    picture.load(m_ports.languages.applicationFolder + kImageFolder + '/' + name);
}

void WizardPage::Form_QueryUnload(bool& cancel, UnloadMode unloadMode) {
    if (m_closing != Closing::EndsAtOnce)
        askBeforeClosing({records().flags, m_ports.messageBox, m_ports.eventLoop, registry()}, objectName(), cancel,
                         unloadMode);
}

void WizardPage::Form_Unload() {
    if (m_closing != Closing::AsksAndLeavesEnding)
        registry().endProgram();
}

void WizardPage::showEvent(QShowEvent* event) {
    Form::showEvent(event);
    focusFirstField(*this, m_frame.background());
}
