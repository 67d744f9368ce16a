#include "ui/progress/frmProgress.h"

#include "core/Leaving.h"
#include "core/Polling.h"
#include "core/ProgressLoading.h"
#include "i18n/CaptionWidths.h"
#include "i18n/Captions.h"
#include "ui/form/FormRegistry.h"
#include "ui_frmProgress.h"

#include <chrono>

namespace {

constexpr std::chrono::milliseconds kPollInterval{500};

} // namespace

frmProgress::frmProgress(FormRegistry& registry, const RunPorts& ports, LanguageTable& languages)
    : Form(registry)
    , m_ui(std::make_unique<Ui::frmProgress>())
    , m_run(ports, *this)
    , m_languages(languages) {
    m_ui->setupUi(this);
    m_timer1.setInterval(kPollInterval);
    connectHandlers();
}

frmProgress::~frmProgress() = default;

void frmProgress::connectHandlers() {
    connect(m_ui->cmdViewLog, &QPushButton::clicked, this, &frmProgress::cmdViewLog_click);
    connect(m_ui->cmdClose, &QPushButton::clicked, this, &frmProgress::cmdClose_click);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &frmProgress::cmdCancel_click);
    connect(&m_timer1, &QTimer::timeout, this, &frmProgress::Timer1_Timer);
}

// The handlers hold the window, since what they do can unload it while they run.

void frmProgress::Form_Load() {
    SelectLanguage(m_languages, m_run.records.settings.intLanguageID);
    GetControlCaptions(m_languages, *this);
    WrapButtonCaptions(*this);
    run::Form_Load(m_run);
}

void frmProgress::Form_QueryUnload(bool& cancel, UnloadMode unloadMode) {
    run::Form_QueryUnload(m_run, cancel, unloadMode);
}

void frmProgress::Form_Unload() {
    run::Form_Unload(m_run);
}

void frmProgress::cmdViewLog_click() {
    const auto alive = held();
    run::cmdViewLog_click(m_run);
}

void frmProgress::cmdClose_click() {
    const auto alive = held();
    run::cmdClose_click(m_run);
}

void frmProgress::cmdCancel_click() {
    const auto alive = held();
    run::cmdCancel_click(m_run);
}

void frmProgress::Timer1_Timer() {
    const auto alive = held();
    run::Timer1_Timer(m_run);
}

void frmProgress::show() {
    showForm();
}

void frmProgress::unload() {
    Form::unload();
}

void frmProgress::setStatus(const QString& caption) {
    m_ui->lblStatus->setText(caption);
}

void frmProgress::setBar(int value) {
    m_ui->ProgressBar1->setValue(value);
}

void frmProgress::startTimer() {
    if (isLoaded())
        m_timer1.start();
}

void frmProgress::stopTimer() {
    m_timer1.stop();
}

QString frmProgress::stageCaption(const QString& label) const {
    const auto* stage = m_ui->stageLabels->findChild<QLabel*>(label);
    return stage ? stage->text() : QString();
}

void frmProgress::hideStageLabels() {
    m_ui->stageLabels->hide();
}

QWidget& frmProgress::widgetOf(Button button) const {
    switch (button) {
    case Button::cmdCancel:
        return *m_ui->cmdCancel;
    case Button::cmdClose:
        return *m_ui->cmdClose;
    case Button::cmdViewLog:
        break;
    }
    return *m_ui->cmdViewLog;
}

void frmProgress::showButton(Button button) {
    widgetOf(button).setEnabled(true);
    widgetOf(button).show();
}

void frmProgress::hideButton(Button button) {
    widgetOf(button).hide();
}

void frmProgress::showLog(const QString& text) {
    m_ui->RichTextBox1->setPlainText(text);
    m_ui->RichTextBox1->show();
}

void frmProgress::setDefaultPointer() {
    unsetCursor();
}
