#include "ui/progress/frmProgress.h"

#include "core/Leaving.h"
#include "core/Polling.h"
#include "core/ProgressLoading.h"
#include "i18n/CaptionWidths.h"
#include "i18n/Captions.h"
#include "ui/form/AccessKeys.h"
#include "ui/form/FormRegistry.h"
#include "ui_frmProgress.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QHeaderView>
#include <QToolButton>
#include <QWindow>

#include <algorithm>
#include <chrono>
#include <stdexcept>

namespace {

constexpr std::chrono::milliseconds kPollInterval{500};
/// Pixels, of cmdViewLog until its window is laid out: captions are shortened by the width while the window loads, and
/// no language needs more than this.
constexpr int kInitialButtonWidth = 240;
constexpr std::chrono::milliseconds kPatienceForPlace{300};
constexpr int kPlacingStep = 20;  ///< milliseconds
constexpr int kColumnWidth = 140; ///< pixels, at least; the last column takes what is left

enum Tab { General, Details };
enum Column { FileName, Source, Destination, Status };

/// A tab strip brings buttons with names of their own, which a caption pass would take for controls of the window.
void hideFromCaptionPass(const QTabBar& tabs) {
    for (QToolButton* button : tabs.findChildren<QToolButton*>())
        button->setObjectName({});
}

void prepareTabs(QTabBar& tabs) {
    tabs.setDrawBase(false);
    tabs.setExpanding(false);
    tabs.setUsesScrollButtons(false);
    hideFromCaptionPass(tabs);
    tabs.addTab("General");
    tabs.addTab("Details");
}

/// Waits until the desktop has put the window somewhere: a question that is centred on it has to know where.
void waitForPlace(const QWidget& window) {
    QDeadlineTimer deadline(kPatienceForPlace);
    while (window.isVisible() && !window.windowHandle()->isExposed() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, kPlacingStep);
}

std::vector<QIcon> listIcons(const QDir& pictures) {
    std::vector<QIcon> icons;
    for (const char* file : {"list-working.svg", "list-completed.svg", "list-cancelled.svg"})
        icons.emplace_back(pictures.filePath(file));
    return icons;
}

bool hasKey(const QTreeWidget& list, const QString& key) {
    return !list.findItems(key, Qt::MatchExactly | Qt::MatchCaseSensitive, FileName).isEmpty();
}

} // namespace

frmProgress::frmProgress(FormRegistry& registry, const RunPorts& ports, LanguageTable& languages)
    : Form(registry)
    , m_ui(std::make_unique<Ui::frmProgress>())
    , m_run(ports, *this)
    , m_languages(languages) {
    m_ui->setupUi(this);
    prepareTabs(*m_ui->tabProgress);
    m_imlGeneral = listIcons(QDir(m_languages.applicationFolder).filePath("images"));
    m_ui->cmdViewLog->resize(kInitialButtonWidth, m_ui->cmdViewLog->height());
    m_timer1.setInterval(kPollInterval);
    connectHandlers();
}

frmProgress::~frmProgress() = default;

void frmProgress::carryLinks(LinkActions& actions) {
    m_ui->band->connectLinks(actions, m_languages.applicationFolder + "/images");
}

void frmProgress::connectHandlers() {
    connect(m_ui->tabProgress, &QTabBar::currentChanged, this, &frmProgress::tabProgress_Click);
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
    assignAccessKeys(*this);
    m_ui->fraGeneral->setTitle({});
    m_ui->fraDetails->setTitle({});
    captionTabsAndList();
    showJob();
    m_ui->cmdCancel->setFocus();
    run::Form_Load(m_run);
}

void frmProgress::captionTabsAndList() {
    m_ui->tabProgress->setTabText(General, GetCaption(m_languages, "tabGeneral"));
    m_ui->tabProgress->setTabText(Details, GetCaption(m_languages, "tabDetails"));
    QTreeWidget& list = *m_ui->lvwGeneral;
    list.setHeaderLabels({GetCaption(m_languages, "flName"), GetCaption(m_languages, "source"),
                          GetCaption(m_languages, "detination"), GetCaption(m_languages, "status")});
    for (int column = FileName; column < Status; ++column)
        list.setColumnWidth(column, std::max(kColumnWidth, list.header()->sectionSizeHint(column)));
}

void frmProgress::showJob() {
    const ConversionJob& job = m_run.records.job;
    const bool isImageRun = m_run.records.flags.intRunKind == run_kind::kExtractImages;
    m_ui->txtSourcePath->setText(QDir::toNativeSeparators(job.strSourcePDF));
    m_ui->txtOutputPath->setText(QDir::toNativeSeparators(isImageRun ? job.strImageFolder : job.strOutputFile));
}

void frmProgress::tabProgress_Click(int tab) {
    m_ui->fraGeneral->setVisible(tab == General);
    m_ui->fraDetails->setVisible(tab == Details);
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
    waitForPlace(*this);
}

void frmProgress::minimise() {
    setWindowState(windowState() | Qt::WindowMinimized);
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
    // Whoever works with the keyboard goes on where the button that had the focus stood.
    widgetOf(button).setFocus();
}

void frmProgress::hideButton(Button button) {
    widgetOf(button).hide();
}

void frmProgress::addListRow(int index, const ListRow& row, int icon) {
    QTreeWidget& list = *m_ui->lvwGeneral;
    if (index < 1 || index > list.topLevelItemCount() + 1)
        throw std::out_of_range("Index out of bounds");
    if (hasKey(list, row.flName))
        throw std::invalid_argument("Key is not unique in collection");
    auto* item = new QTreeWidgetItem({row.flName, row.source, row.detination, row.status});
    item->setIcon(FileName, m_imlGeneral.at(static_cast<std::size_t>(icon - 1)));
    list.insertTopLevelItem(index - 1, item);
}

void frmProgress::setListRow(int index, const QString& status, int icon) {
    QTreeWidgetItem* item = m_ui->lvwGeneral->topLevelItem(index - 1);
    if (!item)
        throw std::out_of_range("Index out of bounds");
    item->setText(Status, status);
    item->setIcon(FileName, m_imlGeneral.at(static_cast<std::size_t>(icon - 1)));
}

void frmProgress::showLog(const QString& text) {
    m_ui->tabPlace->hide();
    m_ui->RichTextBox1->setPlainText(text);
    m_ui->RichTextBox1->show();
}

void frmProgress::setDefaultPointer() {
    unsetCursor();
}
