#include "app/support/AccessKeys.h"
#include "app/support/MainFixture.h"
#include "i18n/Controls.h"
#include "ui/application/LanguageStatusTexts.h"
#include "ui/dialogs/MessageSelection.h"
#include "ui/dialogs/frmErrorOkOnly.h"
#include "ui/dialogs/frmErrorYesNoOnly.h"
#include "ui/dialogs/frmmsgbox.h"
#include "ui/form/Style.h"
#include "ui/password/frmPassword.h"
#include "ui/progress/frmProgress.h"

#include <QApplication>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTreeWidget>

#include <iostream>
#include <limits>
#include <set>

namespace tavrelion::tests {
namespace {

/// The widest message that fits a small screen; a text beyond it would want a break.
constexpr int kWidestMessage = 640;

/// The real windows with the product's style, in every language.
class LanguageFit : public MainFixture {
protected:
    LanguageFit() { applyStyle(*qApp); }
    ~LanguageFit() override {
        registry.dispose();
        qApp->setPalette(m_paletteBefore);
        qApp->setStyleSheet({});
    }

    std::shared_ptr<frmMain> mainForm() {
        auto form = registry.obtain<frmMain>(mainPorts());
        form->showForm();
        return form;
    }
    std::shared_ptr<frmProgress> progressForm() {
        const RunPorts runPorts{records,   mainWindow, messageBox, yesNoDialog, passwordPrompt, statusTexts,
                                eventLoop, clock,      files,      engines,     followUp,       registry};
        auto form = registry.obtain<frmProgress>(runPorts, languages);
        records.flags.blnCloseRequested = false;
        form->showForm();
        EXPECT_TRUE(form->isVisible());
        using Button = ProgressView::Button;
        for (const Button button : {Button::cmdCancel, Button::cmdClose, Button::cmdViewLog})
            form->showButton(button);
        return form;
    }
    /// Every text that the status line of the progress window shows.
    QStringList statusLines(const frmProgress& form) {
        QStringList lines = LanguageStatusTexts(languages).lblProgressStatus();
        lines[3] += lines[4];
        lines.removeAt(4);
        lines.replaceInStrings("%ld", "99999");
        for (const char* stage : {"lblInitConversion", "lblParsePDF", "lblScanPDF", "lblExtractText", "lblExtractImage",
                                  "lblGenerateDoc", "lblGenerateDocComplete", "lblExtractImageComplete"})
            lines << form.stageCaption(stage);
        return lines;
    }

    /// Notes how much room a text leaves in its control. Units: pixels, negative for a text that is cut.
    void note(int room, const QString& where) {
        EXPECT_GE(room, 0) << where.toStdString();
        if (room >= m_leastRoom)
            return;
        m_leastRoom = room;
        m_tightest = where;
    }
    void measureLines(const QLabel& label, const QString& where) {
        note(label.height() - label.heightForWidth(label.width()), where + " (lines)");
        for (const QString& word : label.text().split(' '))
            note(label.contentsRect().width() - label.fontMetrics().size(Qt::TextShowMnemonic, word).width(),
                 where + " (word)");
    }
    /// Measures what the visible labels and buttons of a window show.
    void measure(const QWidget& window, const QString& language) {
        for (int nesting = 0; nesting < 4; ++nesting)
            QApplication::processEvents(); // lays the new texts out, from the inner layouts to the outer ones
        for (QWidget* control : controlsOf(window)) {
            if (!control->isVisibleTo(&window))
                continue;
            const QString where = language + ' ' + window.objectName() + '.' + control->objectName();
            if (const auto* label = qobject_cast<QLabel*>(control); label && !label->wordWrap())
                note(label->contentsRect().width() -
                         label->fontMetrics().size(Qt::TextShowMnemonic, label->text()).width(),
                     where);
            else if (label)
                measureLines(*label, where);
            else if (qobject_cast<QPushButton*>(control) || qobject_cast<QPlainTextEdit*>(control))
                note(control->width() - control->sizeHint().width(), where);
        }
    }
    void measureMessages(Form& form, const QString& language) {
        form.load();
        for (QWidget* text : controlsOf(form)) {
            const ControlKind kind = kindOf(*text);
            if (kind != ControlKind::TextBox && kind != ControlKind::Label)
                continue;
            showOnlyText(form, text->objectName());
            form.adjustSize();
            form.show();
            measure(form, language);
            note(kWidestMessage - form.width(), language + ' ' + text->objectName() + " (width of the message)");
        }
        form.unload();
    }
    void inEveryLanguage(const std::function<void(const QString& language)>& step) {
        for (std::int16_t i = 0; i < kLanguageCount; ++i) {
            records.settings.intLanguageID = i;
            step(languageFileNames(i).main);
        }
        std::cout << "least room: " << m_leastRoom << " px, " << m_tightest.toStdString() << '\n';
    }

    MessagePorts ports{records, languages};

private:
    QPalette m_paletteBefore = qApp->palette();
    int m_leastRoom = std::numeric_limits<int>::max();
    QString m_tightest;
};

TEST_F(LanguageFit, TheMainWindowKeepsItsSize) {
    inEveryLanguage([this](const QString& language) {
        const auto form = mainForm();
        note(860 - form->minimumSizeHint().width(), language + " frmMain (width)");
        note(600 - form->minimumSizeHint().height(), language + " frmMain (height)");
        measure(*form, language);
        form->hide();
    });
}

TEST_F(LanguageFit, TheProgressWindowKeepsItsSizeWithEveryStatus) {
    inEveryLanguage([this](const QString& language) {
        const auto form = progressForm();
        note(680 - form->minimumSizeHint().width(), language + " frmProgress (width)");
        note(380 - form->minimumSizeHint().height(), language + " frmProgress (height)");
        const auto& status = *form->findChild<QLabel*>("lblStatus");
        const auto& tabs = *form->findChild<QTabBar*>("tabProgress");
        for (int tab = 0; tab < tabs.count(); ++tab)
            note(tabs.tabRect(tab).width() - tabs.fontMetrics().horizontalAdvance(tabs.tabText(tab)),
                 language + " tab " + tabs.tabText(tab));
        const auto& list = *form->findChild<QTreeWidget*>("lvwGeneral");
        for (int column = 0; column < list.columnCount(); ++column)
            note(list.columnWidth(column) - list.header()->sectionSizeHint(column),
                 language + " column " + list.headerItem()->text(column));
        for (const QString& line : statusLines(*form))
            note(status.width() - status.fontMetrics().horizontalAdvance(line), language + " status: " + line);
        EXPECT_EQ(form->findChild<QPushButton*>("cmdViewLog")->text(), GetCaption(languages, "cmdViewLog"))
            << "not shortened";
        measure(*form, language);
        form->Form::unload();
    });
}

TEST_F(LanguageFit, EveryMessageShowsItsWholeText) {
    inEveryLanguage([this](const QString& language) {
        measureMessages(*registry.obtain<frmErrorOkOnly>(ports), language);
        measureMessages(*registry.obtain<frmErrorYesNoOnly>(ports), language);
        measureMessages(*registry.obtain<frmmsgbox>(ports), language);
    });
}

TEST_F(LanguageFit, ThePasswordWindowShowsItsWholeText) {
    inEveryLanguage([this](const QString& language) {
        const auto form = registry.obtain<frmPassword>(PasswordPorts{records, languages, mainWindow, [] {}});
        form->load();
        for (const auto wanted : {PasswordPrompt::Password::User, PasswordPrompt::Password::Owner}) {
            form->showWanted(wanted);
            form->show();
            measure(*form, language);
            note(kWidestMessage - form->width(), language + " frmPassword (width)");
        }
        form->unload();
    });
}

TEST_F(LanguageFit, EveryControlHasAnAccessKeyOfItsOwn) {
    const auto check = [](Form& form, const QString& language) {
        form.show();
        expectAccessKeys(form, language);
        form.unload();
    };
    inEveryLanguage([&](const QString& language) {
        expectAccessKeys(*mainForm(), language);
        mainForm()->hide();
        const auto progress = progressForm();
        expectAccessKeys(*progress, language);
        progress->Form::unload();
        const std::vector<std::shared_ptr<Form>> messages{
            registry.obtain<frmErrorOkOnly>(ports), registry.obtain<frmErrorYesNoOnly>(ports),
            registry.obtain<frmmsgbox>(ports),
            registry.obtain<frmPassword>(PasswordPorts{records, languages, mainWindow, [] {}})};
        for (const auto& message : messages) {
            message->load();
            check(*message, language);
        }
    });
}

/// The list of controls that the language files are checked against.
class ControlList : public LanguageFit {
protected:
    ControlList() {
        QFile file(TAVRELION_CONTROLS);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        for (const QString& line : QString::fromUtf8(file.readAll()).split('\n')) {
            const QStringList words = line.split(' ', Qt::SkipEmptyParts);
            if (words.size() >= 3 && !line.startsWith('#'))
                listed.insert(words[0] + ' ' + words[1] + ' ' + words[2]);
        }
    }
    static QString kindName(ControlKind kind) {
        static const std::map<ControlKind, QString> names{
            {ControlKind::CommandButton, "button"}, {ControlKind::Label, "label"},    {ControlKind::CheckBox, "check"},
            {ControlKind::Frame, "frame"},          {ControlKind::ComboBox, "combo"}, {ControlKind::ListBox, "list"},
            {ControlKind::OptionButton, "option"},  {ControlKind::TextBox, "text"}};
        const auto name = names.find(kind);
        return name == names.end() ? QString() : name->second;
    }
    static std::set<QString> controlsWithText(const QWidget& window) {
        std::set<QString> rows;
        for (const QWidget* control : controlsOf(window))
            if (const QString kind = kindName(kindOf(*control)); !kind.isEmpty())
                rows.insert(window.objectName() + ' ' + control->objectName() + ' ' + kind);
        return rows;
    }
    std::set<QString> listedFor(const QString& window) const {
        std::set<QString> rows;
        for (const QString& row : listed)
            if (row.startsWith(window + ' '))
                rows.insert(row);
        return rows;
    }

    std::set<QString> listed;
};

TEST_F(ControlList, HasEveryControlOfTheMessageWindowsAndNoOther) {
    const std::vector<std::shared_ptr<Form>> forms{registry.obtain<frmErrorOkOnly>(ports),
                                                   registry.obtain<frmErrorYesNoOnly>(ports),
                                                   registry.obtain<frmmsgbox>(ports)};
    for (const auto& form : forms)
        EXPECT_EQ(controlsWithText(*form), listedFor(form->objectName()));
}

TEST_F(ControlList, HasEveryControlOfThePasswordWindowAndNoOther) {
    const auto form = registry.obtain<frmPassword>(PasswordPorts{records, languages, mainWindow, [] {}});
    EXPECT_EQ(controlsWithText(*form), listedFor("frmPassword"));
}

TEST_F(ControlList, HasEveryControlOfTheMainAndTheProgressWindow) {
    for (const QString& row : controlsWithText(*mainForm()))
        EXPECT_TRUE(listed.count(row)) << row.toStdString();
    for (const QString& row : controlsWithText(*progressForm()))
        EXPECT_TRUE(listed.count(row)) << row.toStdString();
}

} // namespace
} // namespace tavrelion::tests
