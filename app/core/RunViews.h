#pragma once

#include <QString>
#include <QStringList>

/// The progress window as the run sees it. Everything is harmless on a window that was unloaded.
class ProgressView {
public:
    virtual ~ProgressView() = default;

    virtual void show() = 0;
    virtual void minimise() = 0;
    /// Unloads the window by the program: its Form_QueryUnload and Form_Unload run before this returns.
    virtual void unload() = 0;

    virtual void setStatus(const QString& caption) = 0; ///< lblStatus
    virtual void setBar(int value) = 0;                 ///< ProgressBar1, 0 to 10
    virtual void startTimer() = 0;                      ///< Timer1
    virtual void stopTimer() = 0;

    /// The caption of one of the eight stage labels.
    virtual QString stageCaption(const QString& label) const = 0;
    virtual void hideStageLabels() = 0;

    enum class Button { cmdCancel, cmdClose, cmdViewLog };
    virtual void showButton(Button button) = 0; ///< shown and enabled
    virtual void hideButton(Button button) = 0;

    /// One row of lvwGeneral but for its icon; the file name is its key too.
    struct ListRow {
        QString flName;
        QString source;
        QString detination;
        QString status;
    };
    /// Puts a row in at `index`, counted from 1. `icon`: one of list_icon. Errors: throws for an index beyond the end
    /// and for a key that the list has already.
    virtual void addListRow(int index, const ListRow& row, int icon) = 0;
    /// Sets status word and icon of a row. Errors: throws when there is no such row.
    virtual void setListRow(int index, const QString& status, int icon) = 0;

    virtual void showLog(const QString& text) = 0; ///< RichTextBox1
    virtual void setDefaultPointer() = 0;
};

/// Icons of imlGeneral, counted from 1.
namespace list_icon {
inline constexpr int kWorking = 1;
inline constexpr int kCompleted = 2;
inline constexpr int kCancelled = 3;
} // namespace list_icon

/// The main window as the run sees it.
class MainView {
public:
    virtual ~MainView() = default;

    virtual void show() = 0; ///< loads it when needed
    virtual void hide() = 0;
    virtual bool isMinimised() const = 0;
    virtual void setNormal() = 0;
    virtual void minimise() = 0; ///< a hidden window stays hidden and is minimised once it is shown
    virtual void enable() = 0;   ///< takes input again

    /// The controls that the run writes to.
    enum class Text { txtfilepath, txtFileBrowsePath, txtFileSize, txtfilepathOutput, lblOutputFormatDoc };
    virtual void setText(Text control, const QString& text) = 0;
    virtual QString text(Text control) const = 0;
    virtual void setSourceToolTip(const QString& text) = 0; ///< of txtFileBrowsePath

    enum class Button { cmdBrowse, cmdBrowseOutput };
    virtual void enableButton(Button button) = 0;
    virtual void disableButton(Button button) = 0;

    /// Two texts in one place: what to do next, or that a batch is in hand.
    enum class Banner { lblPlzBrowse, lblBatchInProcess };
    virtual void showBanner(Banner banner) = 0; ///< and hides the other

    /// Says where a finished document lies.
    virtual void showFinishedDocument(const QString& path) = 0;
};

/// Messages and questions to the user in the system's message box.
class UserMessages {
public:
    virtual ~UserMessages() = default;

    enum class Icon { Critical, Information, Exclamation };
    virtual void tell(Icon icon, const QString& text, const QString& title) = 0;

    enum class Answer { Yes, No };
    virtual Answer ask(const QString& question, const QString& title) = 0;
};

/// The window frmErrorYesNoOnly: a question chosen by the name of the control that holds it.
class YesNoDialog {
public:
    virtual ~YesNoDialog() = default;

    enum class Place { CentreOfProgress, BelowCentreOfProgress, CentreOfMain };
    /// Shows the question and waits. The answer stands in intDialogAnswer: 1 yes, 0 no or closed.
    virtual void ask(const QString& controlName, Place place) = 0;
};

/// The window frmPassword.
class PasswordPrompt {
public:
    virtual ~PasswordPrompt() = default;

    enum class Password { User, Owner };
    /// Shows the prompt and waits. OK leaves the entered text in strPdfPassword and 1 in intDialogAnswer; Cancel gives
    /// up this file: it unloads the progress window, sets blnCloseRequested and brings the main window in order.
    virtual void ask(Password wanted) = 0;
};

/// Texts of a run in the current language.
class StatusTexts {
public:
    virtual ~StatusTexts() = default;
    /// The ten status texts, in index order.
    virtual QStringList lblProgressStatus() const = 0;
    /// The text under that key.
    virtual QString caption(const QString& key) const = 0;
};
