#include "core/EngineRequest.h"
#include "app/support/RunFixture.h"

namespace tavrelion::tests {
namespace {

class EngineRequest : public RunFixture {
protected:
    EngineRequest() {
        records.settings.intConvertFrom = 1;
        records.settings.intOutputFormat = 1;
    }
    const orvane::ConversionRequest& request() {
        attempt();
        return script.requests.back();
    }
};

TEST_F(EngineRequest, HoldsTheTwelveArguments) {
    records.settings.intOutputFormat = 2;
    records.job.strPageRange = "1-3,7";
    records.job.strPdfPassword = "pass";
    const auto& asked = request();
    EXPECT_EQ(asked.sourcePath, (staging() + "/report.pdf").toStdString());
    EXPECT_EQ(asked.password, "pass");
    EXPECT_EQ(asked.pageRange, "1-3,7");
    EXPECT_EQ(asked.flags, 2 + 65536);
    EXPECT_EQ(asked.layoutCode, 0);
    EXPECT_EQ(asked.imageFormat, 1);
    EXPECT_EQ(asked.targetPath, "/out/report.docx");
    EXPECT_EQ(asked.logPath, homePath("Tavrelion.log").toStdString());
    EXPECT_EQ(asked.temporaryFolder, staging().toStdString());
    EXPECT_EQ(asked.applicationName, "Tavrelion");
    EXPECT_FALSE(asked.makerAddress.empty());
    EXPECT_EQ(asked.registryKey, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\qvl");
}

TEST_F(EngineRequest, OfAnImageRunNamesTheFolderAndTheImageFormat) {
    records.flags.intRunKind = run_kind::kExtractImages;
    records.settings.intOutputFormat = 0;
    records.settings.intRecoverImg = 0;
    records.settings.intCharSpac = 0;
    records.job.strImageFolder = "/pictures/";
    records.job.intImageFormat = 8;
    const auto& asked = request();
    EXPECT_EQ(asked.layoutCode, 4);
    EXPECT_EQ(asked.targetPath, "/pictures") << "without the separator at its end";
    EXPECT_EQ(asked.imageFormat, 8);
    EXPECT_EQ(asked.flags & (2 | 4 | 8), 0);
}

TEST_F(EngineRequest, OfADocumentPassesImageFormatOneWhateverWasChosen) {
    records.job.intImageFormat = 8;
    EXPECT_EQ(request().imageFormat, 1);
}

struct FlagRow {
    const char* why;
    void (*arrange)(SharedRecords&, ProgressRun&);
    std::int32_t flags;
};

class ConversionFlags : public EngineRequest, public testing::WithParamInterface<FlagRow> {};

TEST_P(ConversionFlags, AreTheSumOfTheirBits) {
    SCOPED_TRACE(GetParam().why);
    GetParam().arrange(records, run());
    EXPECT_EQ(run::GetConversionFlags(run()), GetParam().flags);
}

// The starting point is an RTF of a page range, flowing, images anchored, spacing left alone: no bit at all.
INSTANTIATE_TEST_SUITE_P(
    Rows, ConversionFlags,
    testing::Values(FlagRow{"nothing asked for", [](SharedRecords&, ProgressRun&) {}, 0},
                    FlagRow{"all pages", [](SharedRecords& r, ProgressRun&) { r.settings.intConvertFrom = 0; }, 1},
                    FlagRow{"DOC", [](SharedRecords& r, ProgressRun&) { r.settings.intOutputFormat = 0; }, 2},
                    FlagRow{"DOCX", [](SharedRecords& r, ProgressRun&) { r.settings.intOutputFormat = 2; }, 2 + 65536},
                    FlagRow{"DOCX does not depend on the kind of run",
                            [](SharedRecords& r, ProgressRun&) {
                                r.settings.intOutputFormat = 2;
                                r.flags.intRunKind = 2;
                            },
                            65536},
                    FlagRow{"flowing without images",
                            [](SharedRecords& r, ProgressRun&) { r.settings.intRecoverImg = 0; }, 4},
                    FlagRow{"true page without images",
                            [](SharedRecords& r, ProgressRun&) {
                                r.settings.intReconstMode = 0;
                                r.settings.intRecoverImg = 0;
                            },
                            4},
                    FlagRow{"continuous has no images to remove",
                            [](SharedRecords& r, ProgressRun&) {
                                r.settings.intReconstMode = 1;
                                r.settings.intRecoverImg = 0;
                            },
                            0},
                    FlagRow{"spacing kept", [](SharedRecords& r, ProgressRun&) { r.settings.intCharSpac = 0; }, 8},
                    FlagRow{"plain text has no spacing to keep",
                            [](SharedRecords& r, ProgressRun&) {
                                r.settings.intReconstMode = 2;
                                r.settings.intCharSpac = 0;
                            },
                            0},
                    FlagRow{"user password", [](SharedRecords&, ProgressRun& run) { run.intUserPassAsked = 1; }, 32},
                    FlagRow{"owner password", [](SharedRecords&, ProgressRun& run) { run.intOwnerPassAsked = 1; }, 64},
                    FlagRow{"both passwords",
                            [](SharedRecords&, ProgressRun& run) {
                                run.intUserPassAsked = 1;
                                run.intOwnerPassAsked = 1;
                            },
                            96},
                    FlagRow{"first file of a selection",
                            [](SharedRecords& r, ProgressRun&) {
                                r.queue.strSelectedFiles = {"/in", "a.pdf", "b.pdf"};
                                r.queue.lngSelectedBound = 2;
                            },
                            0},
                    FlagRow{"later file of a selection",
                            [](SharedRecords& r, ProgressRun&) {
                                r.queue.strSelectedFiles = {"/in", "a.pdf", "b.pdf"};
                                r.queue.lngSelectedBound = 1;
                            },
                            128}));

TEST_F(EngineRequest, LayoutCodesFollowTheMode) {
    const std::map<std::int16_t, std::int16_t> codes{{0, 1}, {1, 2}, {2, 3}, {3, 0}, {4, 0}, {7, 0}, {-1, 0}};
    for (const auto& [mode, code] : codes) {
        records.settings.intReconstMode = mode;
        EXPECT_EQ(run::layoutCode(run()), code) << "mode " << mode;
    }
    records.flags.intRunKind = run_kind::kExtractImages;
    EXPECT_EQ(run::layoutCode(run()), 4);
}

TEST_F(EngineRequest, ImageFormatsHaveTheEnginesCodes) {
    const std::map<QString, std::int16_t> codes{{"BMP", 0}, {"jpg", 1}, {"Pbm", 2}, {"PCX", 3}, {"PNG", 4},
                                                {"PNM", 5}, {"PPM", 6}, {"PSD", 7}, {"tiff", 8}};
    for (const auto& [name, code] : codes) {
        records.job.strImageFormat = name;
        run::takeImageFormat(records.job);
        EXPECT_EQ(records.job.intImageFormat, code) << name.toStdString();
    }
    records.job.strImageFormat = "GIF";
    run::takeImageFormat(records.job);
    EXPECT_EQ(records.job.intImageFormat, 8) << "an unknown name leaves the code as it stood";
}

} // namespace
} // namespace tavrelion::tests
