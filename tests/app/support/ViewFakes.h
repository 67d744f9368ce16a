#pragma once

#include "app/support/Journal.h"
#include "core/Leaving.h"
#include "core/ProgressRun.h"

#include <map>
#include <set>
#include <stdexcept>
#include <vector>

namespace tavrelion::tests {

/// The progress window: unloads as the real one does, with Form_QueryUnload and Form_Unload.
class FakeProgressView : public ProgressView {
public:
    explicit FakeProgressView(Journal& journal)
        : m_journal(journal) {}

    ProgressRun* run = nullptr;
    QString status;
    QStringList statuses;
    int bar = 0;
    bool isTimerOn = false;
    bool isShown = false;
    bool isMinimised = false;
    bool isUnloaded = false;
    bool areStageLabelsHidden = false;
    bool failsToSetBar = false;
    bool failsToSetStatus = false;
    bool failsToStopTimer = false;
    std::map<Button, bool> buttons;
    QString log;
    struct Row {
        ListRow cells;
        int icon;
    };
    std::vector<Row> rows; ///< of lvwGeneral

    void show() override {
        isShown = true;
        m_journal << "progress.show";
    }
    void minimise() override {
        isMinimised = true;
        m_journal << "progress.minimise";
    }
    void unload() override {
        if (isUnloaded)
            return;
        bool cancel = false;
        run::Form_QueryUnload(*run, cancel, UnloadMode::Code);
        isUnloaded = true;
        isShown = false;
        m_journal << "progress.unload";
        run::Form_Unload(*run);
    }
    void setStatus(const QString& caption) override {
        if (failsToSetStatus)
            throw std::runtime_error("the status line is broken");
        status = caption;
        statuses << caption;
        m_journal << "status " + caption;
    }
    void setBar(int value) override {
        if (failsToSetBar)
            throw std::runtime_error("the bar is broken");
        bar = value;
        m_journal << "bar " + QString::number(value);
    }
    void startTimer() override {
        isTimerOn = true;
        m_journal << "timer on";
    }
    void stopTimer() override {
        if (failsToStopTimer)
            throw std::runtime_error("the timer is broken");
        isTimerOn = false;
        m_journal << "timer off";
    }
    QString stageCaption(const QString& label) const override { return "<" + label + ">"; }
    void hideStageLabels() override { areStageLabelsHidden = true; }
    void showButton(Button button) override { buttons[button] = true; }
    void hideButton(Button button) override { buttons[button] = false; }
    void addListRow(int index, const ListRow& row, int icon) override {
        if (index < 1 || index > static_cast<int>(rows.size()) + 1)
            throw std::out_of_range("Index out of bounds");
        rows.insert(rows.begin() + index - 1, {row, icon});
    }
    void setListRow(int index, const QString& text, int icon) override {
        Row& row = rows.at(static_cast<std::size_t>(index - 1));
        row.cells.status = text;
        row.icon = icon;
    }
    void showLog(const QString& text) override { log = text; }
    void setDefaultPointer() override { m_journal << "default pointer"; }

private:
    Journal& m_journal;
};

class FakeMainView : public MainView {
public:
    explicit FakeMainView(Journal& journal)
        : m_journal(journal) {}

    bool isShown = true;
    bool isMinimisedNow = false;
    bool isEnabled = true;
    bool failsToSetTexts = false;
    bool failsToShow = false;
    std::map<Text, QString> texts;
    QString sourceToolTip = "design";
    std::map<Button, bool> buttons;
    Banner banner = Banner::lblPlzBrowse;
    QString finishedDocument;

    void show() override {
        if (failsToShow)
            throw std::runtime_error("the main window is broken");
        isShown = true;
        m_journal << "main.show";
    }
    void hide() override {
        isShown = false;
        m_journal << "main.hide";
    }
    bool isMinimised() const override { return isMinimisedNow; }
    void setNormal() override { m_journal << "main.normal"; }
    void minimise() override {
        isMinimisedNow = true;
        m_journal << "main.minimise";
    }
    void enable() override { isEnabled = true; }
    void setText(Text control, const QString& value) override {
        if (failsToSetTexts)
            throw std::runtime_error("the box is broken");
        texts[control] = value;
    }
    QString text(Text control) const override {
        const auto found = texts.find(control);
        return found == texts.end() ? QString() : found->second;
    }
    void setSourceToolTip(const QString& value) override { sourceToolTip = value; }
    void enableButton(Button button) override { buttons[button] = true; }
    void disableButton(Button button) override { buttons[button] = false; }
    void showBanner(Banner shown) override { banner = shown; }
    void showFinishedDocument(const QString& path) override { finishedDocument = path; }

private:
    Journal& m_journal;
};

} // namespace tavrelion::tests
