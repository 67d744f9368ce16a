#include "i18n/Captions.h"
#include "app/support/ErrorLogFolder.h"
#include "app/support/LanguageFolder.h"
#include "i18n/CaptionWidths.h"
#include "i18n/Controls.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTextEdit>
#include <QToolButton>

#include <gmock/gmock.h>

namespace tavrelion::tests {
namespace {

/// A window with a control of every kind, its texts those of the design.
class Captions : public testing::Test {
protected:
    Captions() { window.setObjectName("frmLayout"); }

    template<typename Control>
    Control& add(const QString& name, QWidget* parent = nullptr) {
        auto* control = new Control(parent ? parent : &window);
        control->setObjectName(name);
        return *control;
    }
    template<typename Control>
    Control& addCaptioned(const QString& name) {
        auto& control = add<Control>(name);
        setCaption(control, "design");
        return control;
    }

    ErrorLogFolder log;
    AppSettings settings;
    LanguageFolder folder{settings};
    LanguageTable& table = folder.table;
    QWidget window;
};

TEST_F(Captions, EachKindTakesItsTextByName) {
    auto& button = addCaptioned<QPushButton>("cmdA");
    auto& tool = addCaptioned<QToolButton>("cmdB");
    auto& label = addCaptioned<QLabel>("lblA");
    auto& check = addCaptioned<QCheckBox>("chkA");
    auto& frame = addCaptioned<QGroupBox>("fraA");
    auto& option = addCaptioned<QRadioButton>("optA");
    auto& line = add<QLineEdit>("txtA", &frame);
    auto& lines = add<QPlainTextEdit>("txtB");
    auto& combo = add<QComboBox>("cboA");
    auto& list = add<QListWidget>("lstA");
    combo.addItem("design");
    list.addItem("design");
    folder.write("english.xml", {"cmdA=&amp;A", "cmdB=B", "lblA=C", "chkA=D", "fraA=E", "optA=F", "txtA=G",
                                 "txtB=H&#10;I", "cboA=1", "cboA=2", "lstA=3"});
    SelectLanguage(table, 0);
    GetControlCaptions(table, window);
    EXPECT_EQ(button.text(), "&A");
    EXPECT_EQ(tool.text(), "B");
    EXPECT_EQ(label.text(), "C");
    EXPECT_EQ(check.text(), "D");
    EXPECT_EQ(frame.title(), "E");
    EXPECT_EQ(option.text(), "F");
    EXPECT_EQ(line.text(), "G");
    EXPECT_EQ(lines.toPlainText(), "H\nI");
    ASSERT_EQ(combo.count(), 2);
    EXPECT_EQ(combo.itemText(0) + combo.itemText(1), "12");
    ASSERT_EQ(list.count(), 1);
    EXPECT_EQ(list.item(0)->text(), "3");
    EXPECT_EQ(table.docLanguage, nullptr) << "the document is released";
    EXPECT_EQ(log.text(), "");
}

TEST_F(Captions, AControlWithoutAnEntryEndsEmpty) {
    auto& label = addCaptioned<QLabel>("lblA");
    auto& combo = add<QComboBox>("cboA");
    auto& line = add<QLineEdit>("txtA");
    combo.addItem("design");
    line.setText("design");
    folder.write("english.xml", {"lblB=B"});
    SelectLanguage(table, 0);
    GetControlCaptions(table, window);
    EXPECT_EQ(label.text(), "");
    EXPECT_EQ(combo.count(), 0);
    EXPECT_EQ(line.text(), "");
}

TEST_F(Captions, OtherKindsAndNamelessWidgetsAreLeftAlone) {
    auto& rich = add<QTextEdit>("RichTextBox1");
    rich.setPlainText("design");
    auto& bar = add<QProgressBar>("ProgressBar1");
    bar.setFormat("design");
    QLabel nameless("design", &window);
    auto& spin = add<QSpinBox>("spinA");
    spin.setValue(7);
    folder.write("english.xml", {"RichTextBox1=x", "ProgressBar1=x", "spinA=x", "=x", "qt_spinbox_lineedit=x"});
    SelectLanguage(table, 0);
    GetControlCaptions(table, window);
    EXPECT_EQ(rich.toPlainText(), "design");
    EXPECT_EQ(bar.format(), "design");
    EXPECT_EQ(nameless.text(), "design");
    EXPECT_EQ(spin.value(), 7);
}

TEST_F(Captions, AMissingFileIsToldOncePerPassAndEveryDesignCaptionStays) {
    auto& label = addCaptioned<QLabel>("lblA");
    auto& button = addCaptioned<QPushButton>("cmdA");
    auto& combo = add<QComboBox>("cboA");
    combo.addItem("design");
    SelectLanguage(table, 0);
    GetControlCaptions(table, window);
    EXPECT_EQ(label.text() + button.text() + combo.itemText(0), "designdesigndesign");
    EXPECT_EQ(folder.told, QStringList{loadFailureText(folder.path("english.xml"))});
    GetControlCaptions(table, window);
    EXPECT_EQ(folder.told.size(), 2);
    EXPECT_EQ(log.text(), "");
}

TEST_F(Captions, ALabelShowsAShortcutOnlyForAnotherControl) {
    auto& label = addCaptioned<QLabel>("lblA");
    auto& line = add<QLineEdit>("txtA");
    auto& buddy = addCaptioned<QLabel>("lblB");
    buddy.setBuddy(&line);
    folder.write("english.xml", {"lblA=&amp;Find &amp;&amp; go", "lblB=&amp;Path"});
    SelectLanguage(table, 0);
    GetControlCaptions(table, window);
    EXPECT_EQ(label.text(), "Find & go");
    EXPECT_EQ(buddy.text(), "&Path");
}

TEST_F(Captions, ControlsAreWalkedInTheirOrderOfCreation) {
    add<QLabel>("lblA");
    auto& frame = add<QGroupBox>("fraA");
    add<QLabel>("lblB");
    add<QLabel>("lblC", &frame);
    QStringList names;
    for (const QWidget* control : controlsOf(window))
        names << control->objectName();
    EXPECT_EQ(names, (QStringList{"lblA", "fraA", "lblC", "lblB"})) << "what stands in a frame comes with the frame";
}

TEST_F(Captions, TheOptionsPassLeavesOptionButtonsAndTextBoxesAlone) {
    auto& label = addCaptioned<QLabel>("lblA");
    auto& check = addCaptioned<QCheckBox>("chkA");
    auto& option = addCaptioned<QRadioButton>("optA");
    auto& empty = addCaptioned<QPushButton>("cmdNoEntry");
    auto& line = add<QLineEdit>("txtShow");
    auto& combo = add<QComboBox>("cboA");
    line.setText("/out");
    combo.addItem("design");
    folder.write("englishoptions.xml", {"lblA=A|t", "chkA=B|t", "optA=x|t", "txtShow=x|t", "cboA=1|t", "cboA=2|t"});
    SelectLanguageOptions(table, 0);
    GetOptionCaptions(table, window);
    EXPECT_EQ(label.text(), "A");
    EXPECT_EQ(check.text(), "B");
    EXPECT_EQ(option.text(), "design");
    EXPECT_EQ(empty.text(), "");
    EXPECT_EQ(line.text(), "/out");
    EXPECT_EQ(combo.count(), 2);
    EXPECT_EQ(table.docOptions, nullptr) << "the document is released";
}

TEST_F(Captions, TheOptionsPassIsSilentAboutAMissingFileAndABrokenItem) {
    auto& label = addCaptioned<QLabel>("lblA");
    auto& second = addCaptioned<QLabel>("lblB");
    SelectLanguageOptions(table, 0);
    GetOptionCaptions(table, window);
    EXPECT_EQ(label.text(), "design");
    folder.writeRaw("englishoptions.xml", "<Root><LANGUAGEOPTIONS><CONVERTERITEM NAME='lblA'/>"
                                          "<CONVERTERITEM NAME='lblB' VALUE='B'/></LANGUAGEOPTIONS></Root>");
    GetOptionCaptions(table, window);
    EXPECT_EQ(second.text(), "B");
    EXPECT_TRUE(folder.told.isEmpty());
    EXPECT_EQ(log.text(), "");
}

TEST_F(Captions, WithoutAWordProcessorTheFirstFormatGoes) {
    auto& formats = add<QComboBox>("cboOutputFileformat");
    folder.write("germanoptions.xml", {"cboOutputFileformat=DOC|t", "cboOutputFileformat=RTF|t"});
    settings.intLanguageID = 3;
    LoadOptionCaptions(table, window, [] { return 0; });
    ASSERT_EQ(formats.count(), 1);
    EXPECT_EQ(formats.itemText(0), "RTF");
    LoadOptionCaptions(table, window, [] { return 1; });
    EXPECT_EQ(formats.count(), 2);
}

/// Widths are given in twips, 15 to a pixel.
class ShortCaptions : public Captions {
protected:
    ShortCaptions() { window.setObjectName("frmProgress"); }

    /// The caption of that control after a pass, from this caption at this width.
    template<typename Control>
    QString wrapped(const QString& name, int twips, const QString& caption) {
        auto& control = addCaptioned<Control>(name);
        setCaption(control, caption);
        control.resize(twips / 15, 20);
        WrapButtonCaptions(window);
        const QString result = captionOf(control);
        delete &control;
        return result;
    }
};

TEST_F(ShortCaptions, ALabelOf600TwipsTakesEightCharacters) {
    EXPECT_EQ(wrapped<QLabel>("lblHelp", 600, "12345678"), "12345678");
    EXPECT_EQ(wrapped<QLabel>("lblHelp", 600, "123456789"), "12345678..");
}

TEST_F(ShortCaptions, HalvesGoToTheEvenNeighbour) {
    EXPECT_EQ(wrapped<QLabel>("lblHelp", 660, "1234567890"), "123456789..");
    EXPECT_EQ(wrapped<QLabel>("lblHelp", 780, "1234567890"), "123456789..");
    EXPECT_EQ(wrapped<QLabel>("lblHelp", 840, "1234567890"), "1234567890");
}

TEST_F(ShortCaptions, TheLogButtonOf1200TwipsTakesEightCharacters) {
    EXPECT_EQ(wrapped<QPushButton>("cmdViewLog", 1200, "12345678"), "12345678");
    EXPECT_EQ(wrapped<QPushButton>("cmdViewLog", 1200, "123456789"), "12345678..");
    EXPECT_EQ(wrapped<QLabel>("CMDVIEWLOG", 1200, "123456789"), "12345678..") << "whatever its kind and its case";
}

TEST_F(ShortCaptions, OnlyTheListedNamesAreShortened) {
    for (const QString name : {"lblHelp", "lblOtherProducts", "lblOnline", "lblQuickTour", "LBLHELP"})
        EXPECT_EQ(wrapped<QLabel>(name, 120, "123456789"), "1234..") << name.toStdString();
    EXPECT_EQ(wrapped<QLabel>("lblWebsite", 120, "123456789"), "123456789");
    EXPECT_EQ(wrapped<QPushButton>("lblHelp", 120, "123456789"), "123456789") << "which is no label";
}

TEST_F(ShortCaptions, OnlyThreeWindowsByExactName) {
    for (const QString name : {"frmProgress", "frmMain", "frmOption"}) {
        window.setObjectName(name);
        EXPECT_EQ(wrapped<QLabel>("lblHelp", 120, "123456789"), "1234..") << name.toStdString();
    }
    const QString before = log.text();
    for (const QString name : {"frmLayout", "frmprogress", "frmOptions"}) {
        window.setObjectName(name);
        EXPECT_EQ(wrapped<QLabel>("lblHelp", 120, "123456789"), "123456789") << name.toStdString();
    }
    EXPECT_EQ(log.text(), before) << "and the others leave no record";
}

TEST_F(ShortCaptions, EachPassLeavesARecordForEveryControl) {
    add<QLabel>("lblHelp");
    add<QPushButton>("cmdCancel");
    add<QProgressBar>("ProgressBar1");
    WrapButtonCaptions(window);
    EXPECT_EQ(log.records("modXML", "WrapButtonCaptions"), 3);
    WrapButtonCaptions(window);
    EXPECT_EQ(log.records("modXML", "WrapButtonCaptions"), 6);
}

} // namespace
} // namespace tavrelion::tests
