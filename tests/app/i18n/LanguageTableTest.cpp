#include "i18n/LanguageTable.h"
#include "app/support/ErrorLogFolder.h"
#include "app/support/LanguageFolder.h"

#include <QComboBox>
#include <QLabel>
#include <QListWidget>

#include <gmock/gmock.h>

namespace tavrelion::tests {
namespace {

const QString kEnglishFailure = ">.\n\nPlease make sure that the file exist in application folder.";

QStringList items(const QString& name, int count) {
    QStringList lines;
    for (int i = 0; i < count; ++i)
        lines << QString("%1=v%2|t%2").arg(name).arg(i);
    return lines;
}

class Lookup : public testing::Test {
protected:
    /// Makes docLanguage hold these items, as a caption pass does before its lookups.
    void loadLanguage(const QStringList& lines) {
        folder.write("english.xml", lines);
        SelectLanguage(table, 0);
        ASSERT_EQ(documentIn(table.docLanguage).load(table.strLanguageFile), LanguageDocument::Loading::Done);
    }

    ErrorLogFolder log;
    AppSettings settings;
    LanguageFolder folder{settings};
    LanguageTable& table = folder.table;
};

TEST_F(Lookup, ALanguageIsItsTwoFilesByExactName) {
    const QStringList main{"english.xml",   "Dutch.xml",      "french.xml",  "german.xml", "Italian.xml",
                           "Norwegian.xml", "portuguese.xml", "spanish.xml", "swedish.xml"};
    const QStringList options{"englishoptions.xml",    "Dutchoptions.xml",   "frenchoptions.xml",
                              "germanoptions.xml",     "Italianoptions.xml", "Norwegianoptions.xml",
                              "portugueseoptions.xml", "spanishoptions.xml", "swedishoptions.xml"};
    for (std::int16_t i = 0; i < kLanguageCount; ++i) {
        SelectLanguage(table, i);
        SelectLanguageOptions(table, i);
        EXPECT_EQ(table.strLanguageFile, folder.path(main[i]));
        EXPECT_EQ(table.strOptionsFile, folder.path(options[i]));
    }
    EXPECT_TRUE(folder.told.isEmpty()) << "and no file is opened";
}

TEST_F(Lookup, AnIndexOutsideTheTableKeepsTheEarlierPath) {
    SelectLanguage(table, 3);
    SelectLanguageOptions(table, 3);
    for (const std::int16_t index : {std::int16_t{9}, std::int16_t{-1}, std::int16_t{32767}}) {
        SelectLanguage(table, index);
        SelectLanguageOptions(table, index);
        EXPECT_EQ(table.strLanguageFile, folder.path("german.xml"));
        EXPECT_EQ(table.strOptionsFile, folder.path("germanoptions.xml"));
    }
    EXPECT_EQ(log.text(), "");
}

TEST_F(Lookup, SelectingALanguageMakesAFreshDocument) {
    loadLanguage({"lblHelp=Help"});
    EXPECT_EQ(GetControlText(table, "lblHelp"), "Help");
    SelectLanguage(table, 0);
    EXPECT_EQ(GetControlText(table, "lblHelp"), "");
}

TEST_F(Lookup, AKeyGivesItsFirstTextAndAnAbsentKeyNone) {
    loadLanguage({"lblHelp=Hilfe", "lblHelp=Second"});
    EXPECT_EQ(GetControlText(table, "lblHelp"), "Hilfe");
    EXPECT_EQ(GetControlText(table, "lblhelp"), "") << "names are exact";
    EXPECT_EQ(GetControlText(table, "lblExit"), "");
    EXPECT_EQ(GetCaption(table, "lblHelp"), "Hilfe");
    EXPECT_EQ(GetCaption(table, "lblExit"), "");
    EXPECT_EQ(log.text(), "");
}

TEST_F(Lookup, AListControlGetsEveryTextInOrderAndKeepsWhatItHad) {
    loadLanguage({"cboA=one", "lblHelp=Help", "cboA=two"});
    QComboBox combo;
    combo.addItem("zero");
    EXPECT_EQ(GetControlText(table, "cboA", &combo), "");
    ASSERT_EQ(combo.count(), 3);
    EXPECT_EQ(combo.itemText(1) + combo.itemText(2), "onetwo");
    QListWidget list;
    EXPECT_EQ(GetControlText(table, "cboA", &list), "");
    EXPECT_EQ(list.count(), 2);
    EXPECT_EQ(GetControlText(table, "cboB", &list), "");
    EXPECT_EQ(list.count(), 2) << "an absent key leaves the control as it was";
}

TEST_F(Lookup, GetCaptionReadsTheFileAtEachCall) {
    folder.write("english.xml", {"lblHelp=Help"});
    SelectLanguage(table, 0);
    EXPECT_EQ(GetCaption(table, "lblHelp"), "Help");
    folder.write("english.xml", {"lblHelp=Aid"});
    table.docLanguage.reset();
    EXPECT_EQ(GetCaption(table, "lblHelp"), "Aid");
}

TEST_F(Lookup, GetCaptionIsSilentAboutAFileThatCannotBeRead) {
    SelectLanguage(table, 0);
    EXPECT_EQ(GetCaption(table, "lblHelp"), "");
    folder.writeRaw("english.xml", "<Root><LANGUAGEOPTIONS>");
    EXPECT_EQ(GetCaption(table, "lblHelp"), "");
    EXPECT_TRUE(folder.told.isEmpty());
    EXPECT_EQ(log.text(), "");
}

TEST_F(Lookup, LineBreaksAndForeignLettersComeThrough) {
    loadLanguage({"lblA=Größe&#10;&amp;Datei"});
    EXPECT_EQ(GetControlText(table, "lblA"), "Größe\n&Datei");
}

TEST_F(Lookup, TheOptionTextsAreElevenWhateverTheFileHas) {
    folder.write("englishoptions.xml", items("three", 3) + items("eleven", 11));
    const QStringList three = GetControlTextOpt1(table, "three", "VALUE");
    EXPECT_EQ(three, (QStringList{"v0", "v1", "v2", "", "", "", "", "", "", "", ""}));
    const QStringList eleven = GetControlTextOpt1(table, "eleven", "VALUE");
    EXPECT_EQ(eleven.size(), 11);
    EXPECT_EQ(eleven.last(), "v10");
    EXPECT_EQ(GetControlTextOpt1(table, "none", "VALUE"), QStringList(11, QString("")));
    EXPECT_EQ(log.text(), "");
}

TEST_F(Lookup, ATwelfthOptionTextIsALoggedFailure) {
    folder.write("englishoptions.xml", items("twelve", 12));
    const QStringList texts = GetControlTextOpt1(table, "twelve", "VALUE");
    EXPECT_EQ(texts.size(), 11);
    EXPECT_EQ(texts.last(), "v10");
    EXPECT_EQ(log.records("modXML", "GetControlTextOpt1"), 1);
}

TEST_F(Lookup, OnlyTheSelectorTOOLTIPReadsTheToolTips) {
    folder.write("englishoptions.xml", items("a", 1));
    EXPECT_EQ(GetControlTextOpt1(table, "a", "TOOLTIP").first(), "t0");
    for (const QString selector : {"VALUE", "tooltip", "TOOLTIPTEXT", ""})
        EXPECT_EQ(GetControlTextOpt1(table, "a", selector).first(), "v0") << selector.toStdString();
}

TEST_F(Lookup, TheOptionTextsNeedNoEarlierCallAndFollowTheLanguageInForce) {
    folder.write("swedishoptions.xml", items("a", 1));
    settings.intLanguageID = 8;
    EXPECT_EQ(GetControlTextOpt1(table, "a", "VALUE").first(), "v0");
    EXPECT_EQ(table.strOptionsFile, folder.path("swedishoptions.xml"));
}

TEST_F(Lookup, AnOptionsFileThatCannotBeReadIsToldAndGivesNoTextAtAll) {
    EXPECT_TRUE(GetControlTextOpt1(table, "a", "VALUE").isEmpty());
    EXPECT_EQ(folder.told, QStringList{"Failed to load <" + folder.path("englishoptions.xml") + kEnglishFailure});
    EXPECT_EQ(log.text(), "");
}

TEST_F(Lookup, AnItemWithoutTheAttributeIsALoggedFailure) {
    const QString xml = "<Root><LANGUAGEOPTIONS><CONVERTERITEM NAME='a'/><CONVERTERITEM NAME='a' VALUE='v'/>"
                        "</LANGUAGEOPTIONS></Root>";
    folder.writeRaw("english.xml", xml);
    folder.writeRaw("englishoptions.xml", xml);
    SelectLanguage(table, 0);
    EXPECT_EQ(GetCaption(table, "a"), "");
    EXPECT_EQ(log.records("modXML", "GetCaption"), 1);
    EXPECT_EQ(GetControlText(table, "a"), "");
    EXPECT_EQ(log.records("modXML", "GetControlText"), 1);
    EXPECT_EQ(GetControlTextOpt1(table, "a", "VALUE").mid(0, 2), (QStringList{"", "v"})) << "and it goes on";
    EXPECT_EQ(log.records("modXML", "GetControlTextOpt1"), 1);
}

TEST_F(Lookup, AListControlThatIsNoneIsALoggedFailure) {
    loadLanguage({"a=v"});
    QLabel label;
    EXPECT_EQ(GetControlText(table, "a", &label), "");
    EXPECT_EQ(log.records("modXML", "GetControlText"), 1);
}

TEST_F(Lookup, BothFilesThereIsFoundAndLeavesTheOptionsFileInTheDocument) {
    folder.write("french.xml", {"lblHelp=Aide"});
    folder.write("frenchoptions.xml", {"lblProgramOptions=Options"});
    EXPECT_EQ(CheckXMLExists(table, 2), LanguageFiles::Found);
    EXPECT_EQ(GetControlText(table, "lblProgramOptions"), "Options");
    EXPECT_EQ(GetControlText(table, "lblHelp"), "");
    EXPECT_TRUE(folder.told.isEmpty());
}

TEST_F(Lookup, AMissingOptionsFileIsNamedAndThePathsStayWithThatLanguage) {
    folder.write("french.xml", {});
    EXPECT_EQ(CheckXMLExists(table, 2), LanguageFiles::Missing);
    EXPECT_EQ(folder.told, QStringList{"Failed to load <" + folder.path("frenchoptions.xml") + kEnglishFailure});
    EXPECT_EQ(table.strLanguageFile, folder.path("french.xml"));
    EXPECT_EQ(table.strOptionsFile, folder.path("frenchoptions.xml"));
}

TEST_F(Lookup, AMissingMainFileIsNamedAlone) {
    EXPECT_EQ(CheckXMLExists(table, 2), LanguageFiles::Missing);
    EXPECT_EQ(folder.told, QStringList{"Failed to load <" + folder.path("french.xml") + kEnglishFailure});
}

} // namespace
} // namespace tavrelion::tests
