#include "ui/application/Application.h"

#include "core/CommandLine.h"
#include "platform/Environment.h"
#include "services/SystemProbes.h"
#include "services/WordProcessorSearch.h"
#include "settings/SettingsFile.h"
#include "ui/main/frmMain.h"
#include "ui/progress/frmProgress.h"

#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QSocketNotifier>
#include <QTimer>

#include <cstdio>
#include <stdexcept>

namespace {

constexpr int kSettingsUnreadable = 1;

} // namespace

Application::Application()
    : m_languages(languagePorts())
    , m_messageWindows(m_forms, {m_records, m_languages}, [this](YesNoDialog::Place place) { return anchorOf(place); })
    , m_engines(platform::programFile().parent_path()) {}

Application::~Application() = default;

int Application::run() {
    if (Main(m_records, SystemFolderSources(), *this) == AfterMain::EndProcess)
        return 0;
    QApplication::setWindowIcon(QIcon(m_languages.applicationFolder + "/images/tavrelion.svg"));
    listenForOtherCopies();
    lookForWordProcessor();
    try {
        StartUp(m_records, *this);
    } catch (const SettingsUnreadable& error) {
        reportUnreadableSettings(QString::fromStdString(error.what()));
        return kSettingsUnreadable;
    }
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, qApp, [this] { m_forms.noteSystemShutdown(); });
    const int exitCode = QCoreApplication::exec();
    m_forms.dispose();
    return exitCode;
}

void Application::reportUnreadableSettings(const QString& reason) {
    const QString text = "The settings file cannot be read:\n" + settingsFile(m_records) + "\n" + reason +
                         "\n\nMend or remove the file, then start the program again.";
    std::fputs((text + '\n').toLocal8Bit().constData(), stderr);
    m_messageBox.tell(UserMessages::Icon::Critical, text, kWindowTitle);
}

LanguagePorts Application::languagePorts() {
    const QString folder = QFile::decodeName(platform::programFile().parent_path().c_str());
    return {m_records.settings, folder,
            [this](const QString& text) { m_messageBox.tell(UserMessages::Icon::Information, text, kWindowTitle); }};
}

const QWidget* Application::anchorOf(YesNoDialog::Place place) const {
    if (place == YesNoDialog::Place::CentreOfMain)
        return m_forms.find<frmMain>().get();
    return m_forms.find<frmProgress>().get();
}

void Application::listenForOtherCopies() {
    if (m_runningCopy.listen() == platform::RunningCopy::Listening::No)
        return;
    auto* notifier = new QSocketNotifier(m_runningCopy.handle(), QSocketNotifier::Read, qApp);
    QObject::connect(notifier, &QSocketNotifier::activated, qApp, [this] {
        m_runningCopy.answerKnock([this](const std::string& token) { m_forms.bringForward(token); });
    });
}

OtherCopies::Search Application::bringForward(const QString&) {
    const auto found = m_runningCopy.askToComeForward();
    return found == platform::RunningCopy::Found::OtherCopy ? Search::BroughtForward : Search::NotFound;
}

void Application::activateApplication(const QString& title) {
    if (bringForward(title) == Search::NotFound)
        throw std::runtime_error("no application of that title is running");
}

void Application::LoadSettings() {
    ::LoadSettings(m_records);
}

int Application::IsMSWordInstalled() {
    return ::IsMSWordInstalled();
}

void Application::runLater(std::chrono::milliseconds delay, std::function<void()> step) {
    QTimer::singleShot(delay, qApp, std::move(step));
}

QString Application::programCommandLine() const {
    return commandLineOf(QCoreApplication::arguments().mid(1));
}

void Application::showMainWindow() {
    mainWindow()->showForm();
}

std::shared_ptr<frmMain> Application::mainWindow() {
    return m_forms.obtain<frmMain>(MainPorts{m_records, m_languages, m_messageBox, m_messageWindows, m_messageWindows,
                                             m_eventLoop, m_fileDialogs, m_files, m_links, m_handOver,
                                             [] { return ::IsMSWordInstalled(); }, [] { return ::CheckMSWord(); }});
}

std::shared_ptr<frmProgress> Application::progressWindow() {
    const RunPorts ports{m_records,   m_mainWindowView, m_messageBox, m_messageWindows, m_passwordWindow, m_statusTexts,
                         m_eventLoop, m_clock,          m_files,      m_engines,        m_followUp,       m_forms};
    auto progress = m_forms.obtain<frmProgress>(ports, m_languages);
    progress->carryLinks(m_links);
    return progress;
}

HandOver::Ports Application::handOverPorts() {
    return {{m_records,
             m_languages,
             m_messageBox,
             m_messageWindows,
             m_eventLoop,
             m_fileDialogs,
             m_folderDialog,
             m_links,
             m_mainWindowView,
             {}},
            {m_records, m_languages, m_messageBox, m_eventLoop, m_folderDialog, m_links, m_mainWindowView,
             [] { return ::IsMSWordInstalled(); }, [] { return ::CheckMSWord(); }},
            [this] { return progressWindow(); }};
}

void Application::unloadProgress() {
    if (const auto progress = m_forms.find<frmProgress>())
        progress->unload();
}
