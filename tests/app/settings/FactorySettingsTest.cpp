#include "settings/FactorySettings.h"

#include "app/support/ScratchHome.h"
#include "settings/DefaultSettings.h"
#include "settings/SettingsRecord.h"

#include <QFile>

namespace tavrelion::tests {
namespace {

class FactorySettings : public ScratchHome {
protected:
    void restoreFrom(const QByteArray& parameters) {
        const QString file = path("DefaultSettings.xml");
        QFile out(file);
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write("<Root>" + parameters + "</Root>");
        out.close();
        restore(file);
    }
    void restore(const QString& file) {
        RestoreDefaultSettings(records, {file, "/shown", [this](const QString& failed) { failures << failed; }});
    }
    QStringList failures;
};

QByteArray parameter(const QByteArray& name, const QByteArray& value) {
    return "<SETTINGPARAMETER NAME=\"" + name + "\" VALUE=\"" + value + "\"/>";
}

TEST_F(FactorySettings, TheShippedFileGivesTheBuiltInDefaults) {
    SetDefaultSettings(records);
    SharedRecords expected = records;
    expected.settings.intOutputFormat = 0;
    expected.settings.strRecentFolder = "/shown";
    records.settings = {};
    restore(SHIPPED_DEFAULTS);
    EXPECT_EQ(settings_record::make(records), settings_record::make(expected));
    EXPECT_EQ(records.job.strCharSpacing, "no");
    EXPECT_TRUE(failures.isEmpty());
    EXPECT_TRUE(QFile::exists(path("docval.temp"))) << "a restore is saved at once";
}

TEST_F(FactorySettings, AMissingFileIsReportedAndChangesNothing) {
    records.settings.intLanguageID = 4;
    restore(path("nowhere.xml"));
    EXPECT_EQ(failures, QStringList(path("nowhere.xml")));
    EXPECT_EQ(records.settings.intLanguageID, 4);
    EXPECT_FALSE(QFile::exists(path("docval.temp")));
}

TEST_F(FactorySettings, AMalformedFileIsReportedAndChangesNothing) {
    records.settings.intLanguageID = 4;
    restoreFrom("<broken");
    EXPECT_EQ(failures.size(), 1);
    EXPECT_EQ(records.settings.intLanguageID, 4);
}

TEST_F(FactorySettings, AMissingParameterIsZeroAndReachesTheFile) {
    records.settings.intLogPath = 1;
    records.settings.intLauchMs = 2;
    restoreFrom(parameter("intLanguageID", "3"));
    EXPECT_EQ(records.settings.intLanguageID, 3);
    EXPECT_EQ(records.settings.intLauchMs, 0);
    EXPECT_EQ(records.settings.strConversionMethod, "0");
    QFile file(path("docval.temp"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().endsWith("~:~0\"\r\n"));
}

TEST_F(FactorySettings, TheFirstOfTwoParametersCountsAndWhatIsNoNumberIsZero) {
    restoreFrom(parameter("intLanguageID", "3") + parameter("intLanguageID", "5") + parameter("intUseWiz", "two") +
                parameter("intLauchMs", "70000"));
    EXPECT_EQ(records.settings.intLanguageID, 3);
    EXPECT_EQ(records.settings.intUseWiz, 0);
    EXPECT_EQ(records.settings.intLauchMs, 0);
}

TEST_F(FactorySettings, CharacterSpacingIsBroughtToOneOrZero) {
    restoreFrom(parameter("intCharSpac", "5"));
    EXPECT_EQ(records.settings.intCharSpac, 1);
    EXPECT_EQ(records.job.strCharSpacing, "no");
    restoreFrom(parameter("intCharSpac", "0"));
    EXPECT_EQ(records.settings.intCharSpac, 0);
    EXPECT_EQ(records.job.strCharSpacing, "yes");
}

TEST_F(FactorySettings, TheOutputFileFollowsTheFormat) {
    struct Row {
        const char* format;
        QString path, expected;
        const char* why;
    };
    const Row rows[] = {
        {"1", "/a/Report.doc", "/a/Report.rtf", "to RTF"},
        {"1", "/a/Report.DOCX", "/a/Report.rtf", "in any case"},
        {"0", "/a/Report.rtf", "/a/Report.doc", "to DOC"},
        {"0", "/a/Report.docx", "/a/Report.doc", "from DOCX to DOC"},
        {"2", "/a/Report.doc", "/a/Report.doc", "a restore to DOCX leaves the path"},
        {"2", "/a/Report.rtf", "/a/Report.rtf", "of whatever format it is"},
        {"1", "/a.doc/Report.doc", "/a.rtf/Report.rtf", "the text is replaced wherever it stands"},
        {"1", "/a.DOC/Report.doc", "/a.DOC/Report.rtf", "in its own case only"},
        {"1", "/a/Report.txt", "/a/Report.txt", "other extensions stay"},
        {"1", "", "", "no path yet"},
    };
    for (const Row& row : rows) {
        records.job.strOutputFile = row.path;
        restoreFrom(parameter("intOutputFormat", row.format));
        EXPECT_EQ(records.job.strOutputFile, row.expected) << row.why;
    }
}

TEST_F(FactorySettings, TheFoldersAreSet) {
    records.settings.strRecentOutputFolder = "/elsewhere";
    restoreFrom("");
    EXPECT_EQ(records.settings.strRecentOutputFolder, home());
    EXPECT_EQ(records.settings.strLogPath, path("Tavrelion.log"));
    EXPECT_EQ(records.settings.strRecentFolder, "/shown");
}

} // namespace
} // namespace tavrelion::tests
