#include "ui/dialogs/MessageWindows.h"
#include "app/support/ErrorLogFolder.h"
#include "app/support/ShippedLanguages.h"
#include "ui/dialogs/AlreadyExistsQuestion.h"
#include "ui/dialogs/MessageSelection.h"
#include "ui/dialogs/MessageText.h"
#include "ui/dialogs/frmErrorOkOnly.h"
#include "ui/dialogs/frmErrorYesNoOnly.h"
#include "ui/dialogs/frmmsgbox.h"
#include "ui/form/FormRegistry.h"
#include "ui/form/Picture.h"

#include <QApplication>
#include <QImageReader>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace tavrelion::tests {
namespace {

using Place = YesNoDialog::Place;

class MessageDialogs : public testing::Test {
protected:
    MessageDialogs() {
        // A test before this one may have ended the program, and only a new start of the event loop takes that back.
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        QApplication::exec();
        anchor.setGeometry(100, 100, 400, 300);
        records.flags.intDialogAnswer = 7;
    }
    ~MessageDialogs() override { registry.dispose(); }

    /// Does something with the modal window that the next call opens, then closes what is still open of it.
    template<typename Window, typename Action>
    void whenOpen(Action action) {
        QTimer::singleShot(0, qApp, [this, action] {
            const auto window = registry.find<Window>();
            ASSERT_NE(window, nullptr);
            ASSERT_EQ(QApplication::activeModalWidget(), window.get());
            ++windowsSeen;
            action(*window);
            window->unload();
        });
    }
    template<typename Window>
    std::shared_ptr<Window> loaded() {
        const auto window = registry.obtain<Window>(ports);
        window->load();
        return window;
    }
    static QPushButton& button(const QWidget& window, const char* name) {
        return *window.findChild<QPushButton*>(name);
    }
    static QStringList shownTexts(const QWidget& window) {
        QStringList names;
        for (const QWidget* text : window.findChildren<QWidget*>())
            if ((qobject_cast<const MessageText*>(text) || qobject_cast<const QLabel*>(text)) &&
                text->isVisibleTo(&window))
                names << text->objectName();
        return names;
    }
    QString alreadyExists(int labelWidth, const QString& path) {
        records.job.strOutputFile = path;
        const auto window = registry.obtain<frmErrorYesNoOnly>(ports);
        auto& label = *window->findChild<QLabel*>("lblAlreadyExists");
        label.setFixedWidth(labelWidth);
        window->load();
        const QString text = label.text();
        window->unload();
        return text;
    }

    ErrorLogFolder log;
    SharedRecords& records = sharedRecords();
    LanguageTable languages = shippedLanguages(records);
    MessagePorts ports{records, languages};
    FormRegistry registry;
    QWidget anchor;
    MessageWindows windows{registry, ports, [this](Place) { return &anchor; }};
    int windowsSeen = 0;
};

TEST_F(MessageDialogs, ARefusalShowsItsOneTextAndWaitsForOK) {
    whenOpen<frmErrorOkOnly>([](frmErrorOkOnly& window) {
        EXPECT_EQ(shownTexts(window), QStringList{"txtIncorrectRange"});
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(window.windowTitle(), "Tavrelion-PDF to Word Converter");
        EXPECT_FALSE(window.accessibleDescription().isEmpty()) << "a screen reader reads the text";
        QTest::mouseClick(&button(window, "cmdOK"), Qt::LeftButton);
        EXPECT_FALSE(window.isLoaded());
    });
    windows.refuse("txtIncorrectRange");
    EXPECT_EQ(windowsSeen, 1);
    EXPECT_EQ(registry.find<frmErrorOkOnly>(), nullptr) << "made anew at the next use";
}

TEST_F(MessageDialogs, APageRefusalShowsItsOneTextAndWaitsForOK) {
    for (const QString text : {"lblpgformat", "lblpgnumber"}) {
        whenOpen<frmmsgbox>([&](frmmsgbox& window) {
            EXPECT_EQ(shownTexts(window), QStringList{text});
            EXPECT_NE(window.findChild<QLabel*>(text)->text(), "");
            QTest::mouseClick(&button(window, "cmdOK"), Qt::LeftButton);
            EXPECT_FALSE(window.isLoaded());
        });
        windows.refusePages(text);
    }
    EXPECT_EQ(windowsSeen, 2);
}

TEST_F(MessageDialogs, YesAndNoStandInTheRecords) {
    whenOpen<frmErrorYesNoOnly>([](frmErrorYesNoOnly& window) {
        EXPECT_EQ(shownTexts(window), QStringList{"lblCancelConversion"});
        QTest::mouseClick(&button(window, "cmdYes"), Qt::LeftButton);
        EXPECT_FALSE(window.isLoaded());
    });
    windows.ask("lblCancelConversion", Place::CentreOfProgress);
    EXPECT_EQ(records.flags.intDialogAnswer, 1);
    whenOpen<frmErrorYesNoOnly>(
        [](frmErrorYesNoOnly& window) { QTest::mouseClick(&button(window, "cmdNo"), Qt::LeftButton); });
    windows.ask("msgWishToExit", Place::CentreOfMain);
    EXPECT_EQ(records.flags.intDialogAnswer, 0);
    EXPECT_EQ(windowsSeen, 2);
}

TEST_F(MessageDialogs, TheCloseBoxCountsAsNo) {
    whenOpen<frmErrorYesNoOnly>([this](frmErrorYesNoOnly& window) {
        records.flags.intDialogAnswer = 1;
        window.close();
    });
    windows.ask("msgWishToExit", Place::CentreOfMain);
    EXPECT_EQ(records.flags.intDialogAnswer, 0);
}

TEST_F(MessageDialogs, AnUnloadByTheProgramLeavesTheAnswerAlone) {
    whenOpen<frmErrorYesNoOnly>([this](frmErrorYesNoOnly& window) {
        EXPECT_EQ(records.flags.intDialogAnswer, 0) << "no answer of an earlier question passes for one to this";
        records.flags.intDialogAnswer = 5;
        window.unload();
    });
    windows.ask("msgWishToExit", Place::CentreOfMain);
    EXPECT_EQ(records.flags.intDialogAnswer, 5);
}

TEST_F(MessageDialogs, EnterIsTheDefaultButtonAndEscapeIsNo) {
    whenOpen<frmErrorYesNoOnly>([](frmErrorYesNoOnly& window) { QTest::keyClick(&window, Qt::Key_Return); });
    windows.ask("msgWishToExit", Place::CentreOfMain);
    EXPECT_EQ(records.flags.intDialogAnswer, 1);
    whenOpen<frmErrorYesNoOnly>([](frmErrorYesNoOnly& window) { QTest::keyClick(&window, Qt::Key_Escape); });
    windows.ask("msgWishToExit", Place::CentreOfMain);
    EXPECT_EQ(records.flags.intDialogAnswer, 0);
    whenOpen<frmErrorOkOnly>([](frmErrorOkOnly& window) {
        QTest::keyClick(&window, Qt::Key_Escape);
        EXPECT_FALSE(window.isLoaded());
    });
    windows.refuse("txtPageRangeZero");
}

TEST_F(MessageDialogs, AQuestionIsPlacedByItsWindow) {
    const auto centreOf = [&](Place place) {
        QPoint centre;
        whenOpen<frmErrorYesNoOnly>([&](frmErrorYesNoOnly& window) { centre = window.geometry().center(); });
        windows.ask("msgWishToExit", place);
        return centre;
    };
    constexpr int kFrame = 4; // pixels that a window's frame moves its middle by
    const QPoint middle = anchor.geometry().center();
    EXPECT_LE((centreOf(Place::CentreOfProgress) - middle).manhattanLength(), kFrame);
    EXPECT_LE((centreOf(Place::CentreOfMain) - middle).manhattanLength(), kFrame);
    EXPECT_LE((centreOf(Place::BelowCentreOfProgress) - middle - QPoint(0, 80)).manhattanLength(), kFrame);
}

TEST_F(MessageDialogs, AQuestionLeavesTheScreenNeverMind) {
    anchor.move(5000, 5000);
    QRect shown;
    whenOpen<frmErrorYesNoOnly>([&](frmErrorYesNoOnly& window) { shown = window.geometry(); });
    windows.ask("msgWishToExit", Place::CentreOfMain);
    EXPECT_TRUE(anchor.screen()->availableGeometry().contains(shown.topLeft()));
}

TEST_F(MessageDialogs, Nest) {
    QStringList order;
    whenOpen<frmErrorYesNoOnly>([&](frmErrorYesNoOnly& question) {
        whenOpen<frmErrorOkOnly>([&](frmErrorOkOnly& refusal) {
            EXPECT_TRUE(question.isVisible());
            order << "refusal open";
            QTest::mouseClick(&button(refusal, "cmdOK"), Qt::LeftButton);
        });
        windows.refuse("txtPageRangeZero");
        order << "back in the question";
        EXPECT_TRUE(question.isVisible());
        QTest::mouseClick(&button(question, "cmdYes"), Qt::LeftButton);
    });
    windows.ask("msgWishToExit", Place::CentreOfMain);
    order << "answered";
    EXPECT_EQ(order, (QStringList{"refusal open", "back in the question", "answered"}));
    EXPECT_EQ(records.flags.intDialogAnswer, 1);
}

TEST_F(MessageDialogs, AStillOpenQuestionIsClosedForTheNext) {
    whenOpen<frmErrorYesNoOnly>([&](frmErrorYesNoOnly& first) {
        whenOpen<frmErrorYesNoOnly>([&](frmErrorYesNoOnly& second) {
            EXPECT_NE(&first, &second);
            EXPECT_FALSE(first.isLoaded());
            EXPECT_EQ(shownTexts(second), QStringList{"msgDocumentGenerationComplete"});
            QTest::mouseClick(&button(second, "cmdYes"), Qt::LeftButton);
        });
        windows.ask("msgDocumentGenerationComplete", Place::CentreOfProgress);
    });
    windows.ask("lblCancelConversion", Place::CentreOfProgress);
    EXPECT_EQ(windowsSeen, 2);
    EXPECT_EQ(records.flags.intDialogAnswer, 1);
}

TEST_F(MessageDialogs, TheEndOfTheProgramEndsAQuestionWithoutAYes) {
    whenOpen<frmErrorYesNoOnly>([&](frmErrorYesNoOnly&) { UnloadAllForms({}, registry); });
    windows.ask("msgWishToExit", Place::CentreOfMain);
    EXPECT_EQ(records.flags.intDialogAnswer, 0);
}

TEST_F(MessageDialogs, EveryQuestionOfTheRunHasItsText) {
    const auto window = loaded<frmErrorYesNoOnly>();
    for (const QString name :
         {"lblCancelConversion", "msgDocumentGenerationComplete", "msgWishToExit", "lblAlreadyExists"}) {
        window->DisplayMsgYesNo(name);
        EXPECT_EQ(shownTexts(*window), QStringList{name});
        EXPECT_FALSE(window->accessibleDescription().isEmpty());
    }
}

TEST_F(MessageDialogs, AQuestionByANameThatNoTextHasShowsTheButtonsOnly) {
    const auto window = loaded<frmErrorYesNoOnly>();
    window->DisplayMsgYesNo("msgWishToExit");
    window->DisplayMsgYesNo("msgNoSuchText");
    EXPECT_EQ(shownTexts(*window), QStringList{});
    EXPECT_TRUE(button(*window, "cmdYes").isVisibleTo(window.get()));
    EXPECT_TRUE(button(*window, "cmdNo").isVisibleTo(window.get()));
    EXPECT_EQ(log.text(), "");
}

TEST_F(MessageDialogs, ARefusalSelectsFreelyAmongItsEightTexts) {
    const auto window = loaded<frmErrorOkOnly>();
    const QStringList names{"txtError11",           "txtError2",        "txtInvalidFileFormatOutput",
                            "txtInvalidFileFormat", "txtSelectPDFFile", "txtPageRangeZero",
                            "txtIncompleteRange",   "txtIncorrectRange"};
    EXPECT_EQ(shownTexts(*window), QStringList{}) << "none before the caller chose";
    for (const QString& name : names) {
        showOnlyText(*window, name);
        EXPECT_EQ(shownTexts(*window), QStringList{name});
        EXPECT_NE(window->findChild<MessageText*>(name)->toPlainText().trimmed(), "");
    }
}

TEST_F(MessageDialogs, TextsReadAsPlainText) {
    const auto window = loaded<frmErrorOkOnly>();
    const auto texts = window->findChildren<MessageText*>();
    EXPECT_EQ(texts.size(), 8);
    for (const MessageText* text : texts) {
        EXPECT_EQ(text->palette().color(QPalette::Base), window->palette().color(QPalette::Window));
        EXPECT_TRUE(text->isReadOnly());
    }
}

TEST_F(MessageDialogs, TextsPassTheFocusOn) {
    const auto focusAfter = [](QWidget& window, const QString& text) {
        showOnlyText(window, text);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        window.findChild<QWidget*>(text)->setFocus();
        return window.focusWidget()->objectName();
    };
    const auto refusal = loaded<frmErrorOkOnly>();
    for (const QString name : {"txtIncompleteRange", "txtIncorrectRange", "txtInvalidFileFormat",
                               "txtInvalidFileFormatOutput", "txtPageRangeZero", "txtSelectPDFFile"})
        EXPECT_EQ(focusAfter(*refusal, name), "cmdOK") << name.toStdString();
    for (const QString name : {"txtError11", "txtError2"})
        EXPECT_EQ(focusAfter(*refusal, name), name) << "no handler";
    const auto question = loaded<frmErrorYesNoOnly>();
    for (const QString name : {"lblCancelConversion", "msgDocumentGenerationComplete", "msgWishToExit"})
        EXPECT_EQ(focusAfter(*question, name), "cmdYes") << name.toStdString();
}

TEST_F(MessageDialogs, HaveTheirIconsAndDoWithoutThem) {
    EXPECT_FALSE(loaded<frmErrorOkOnly>()->findChild<Picture*>("imgError")->isEmpty());
    EXPECT_FALSE(loaded<frmErrorYesNoOnly>()->findChild<Picture*>("imgError")->isEmpty());
    EXPECT_FALSE(loaded<frmmsgbox>()->findChild<Picture*>("Image1")->isEmpty());
    Picture picture;
    picture.load(TAVRELION_PROGRAM_FOLDER "/images/none.ICO");
    EXPECT_TRUE(picture.isEmpty());
}

TEST_F(MessageDialogs, TheirIconsHaveAPictureForEveryScreen) {
    for (const char* icon : {"W95MBX02.ICO", "W95MBX03.ICO"}) {
        QImageReader reader(QString(TAVRELION_PROGRAM_FOLDER "/images/") + icon);
        std::vector<int> sides;
        do {
            const QImage picture = reader.read();
            sides.push_back(picture.width());
            EXPECT_EQ(picture.width(), picture.height()) << icon;
            EXPECT_EQ(qAlpha(picture.pixel(0, 0)), 0) << icon << ": nothing behind the drawing";
            EXPECT_EQ(qAlpha(picture.pixel(picture.width() / 2, picture.height() / 2)), 255) << icon;
        } while (reader.jumpToNextImage());
        EXPECT_EQ(sides, (std::vector<int>{16, 24, 32, 48, 64})) << icon;
    }
}

TEST_F(MessageDialogs, TheQuestionOfAnExistingFileIsBuiltFromThreeTexts) {
    EXPECT_EQ(alreadyExists(400, "/out/report.docx"), "/out/report.docx already exists.\nDo you want to replace it?");
    EXPECT_EQ(alreadyExists(400, ""), " already exists.\nDo you want to replace it?") << "which starts with a blank";
}

TEST_F(MessageDialogs, APathThatDoesNotFitIsCutBeyondFortyCharactersOnly) {
    // 200 pixels are 3000 twips: 25 characters and 2 more.
    EXPECT_TRUE(alreadyExists(200, QString(27, 'a')).startsWith(QString(27, 'a') + ' '));
    EXPECT_TRUE(alreadyExists(200, QString(28, 'a')).startsWith(' '));
    EXPECT_TRUE(alreadyExists(200, QString(40, 'a')).startsWith(' '));
    const QString path = QString(20, 'a') + "x" + QString(20, 'b');
    EXPECT_TRUE(alreadyExists(200, path).startsWith(QString(20, 'a') + "..." + QString(20, 'b') + ' '));
}

TEST(ShownPath, CountsTheLabelInCharactersWithHalvesToTheEvenNeighbour) {
    EXPECT_EQ(shownPath(QString(4, 'a'), 300), QString(4, 'a')) << "2.5 characters count as 2, and 2 more";
    EXPECT_EQ(shownPath(QString(5, 'a'), 300), "");
    EXPECT_EQ(shownPath(QString(6, 'a'), 420), QString(6, 'a')) << "3.5 count as 4";
}

} // namespace
} // namespace tavrelion::tests
