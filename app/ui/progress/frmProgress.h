#pragma once

#include "core/ProgressRun.h"
#include "i18n/LanguageTable.h"
#include "ui/form/Form.h"

#include <QIcon>
#include <QTimer>

#include <memory>
#include <vector>

class LinkActions;

namespace Ui {
class frmProgress;
}

/// The window of a run: status line, bar, tabs, log view, and the ways out. It is made anew for each run, and the first
/// attempt runs inside its loading.
class frmProgress : public Form, public ProgressView {
    Q_OBJECT

public:
    frmProgress(FormRegistry& registry, const RunPorts& ports, LanguageTable& languages);
    ~frmProgress() override;

    /// Gives the strip of links its actions. The links of this window never change colour.
    void carryLinks(LinkActions& actions);

    void show() override;
    void minimise() override;
    void unload() override;
    void setStatus(const QString& caption) override;
    void setBar(int value) override;
    void startTimer() override;
    void stopTimer() override;
    QString stageCaption(const QString& label) const override;
    void hideStageLabels() override;
    void showButton(Button button) override;
    void hideButton(Button button) override;
    void addListRow(int index, const ListRow& row, int icon) override;
    void setListRow(int index, const QString& status, int icon) override;
    void showLog(const QString& text) override;
    void setDefaultPointer() override;

protected:
    void Form_Load() override;
    void Form_QueryUnload(bool& cancel, UnloadMode unloadMode) override;
    void Form_Unload() override;

private:
    void connectHandlers();
    void captionTabsAndList();
    void showJob();
    void tabProgress_Click(int tab);
    void cmdViewLog_click();
    void cmdClose_click();
    void cmdCancel_click();
    void Timer1_Timer();

    QWidget& widgetOf(Button button) const;

    std::unique_ptr<Ui::frmProgress> m_ui;
    std::vector<QIcon> m_imlGeneral; ///< icons of the list, in the order of list_icon
    QTimer m_timer1;
    ProgressRun m_run;
    LanguageTable& m_languages;
};
