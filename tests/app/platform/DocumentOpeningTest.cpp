#include "platform/DocumentOpening.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <thread>

namespace fs = std::filesystem;

namespace tavrelion::tests {
namespace {

using platform::Launch;

/// Programs of the test's own that note what they were started with.
class DocumentOpening : public testing::Test {
protected:
    DocumentOpening() {
        program("word processor");
        program("xdg-open");
        setenv("PATH", (folder.path().string() + ":" + m_pathBefore).c_str(), 1);
    }
    ~DocumentOpening() override { setenv("PATH", m_pathBefore.c_str(), 1); }

    fs::path in(const std::string& name) const { return folder.path() / name; }

    /// A script that writes its name, the number of its arguments, the first one and its folder.
    void program(const std::string& name) const {
        std::ofstream(in(name)) << "#!/bin/sh\n"
                                << "{ basename \"$0\"; echo $#; printf '%s\\n' \"$1\"; pwd; } > '"
                                << in("note.part").string() << "'\nmv '" << in("note.part").string() << "' '"
                                << in("note").string() << "'\n";
        fs::permissions(in(name), fs::perms::owner_all);
    }
    /// What the program noted; waits for it, since nobody else does.
    std::string note() const {
        for (int i = 0; i < 1000 && !fs::exists(in("note")); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        std::ifstream file(in("note"));
        return {std::istreambuf_iterator<char>(file), {}};
    }
    std::string expected(const std::string& name, const fs::path& document) const {
        return name + "\n1\n" + document.string() + "\n" + fs::canonical(folder.path()).string() + "\n";
    }

    orvane::tests::TemporaryFolder folder;

private:
    std::string m_pathBefore = getenv("PATH");
};

struct NameRow {
    const char* name;
    const char* why;
};

class DocumentName : public DocumentOpening, public testing::WithParamInterface<NameRow> {};

TEST_P(DocumentName, ReachesTheWordProcessorAsOneArgument) {
    SCOPED_TRACE(GetParam().why);
    const fs::path document = in(GetParam().name);
    EXPECT_EQ(platform::openWith(in("word processor"), document, folder.path()), Launch::Started);
    EXPECT_EQ(note(), expected("word processor", document));
}

TEST_P(DocumentName, ReachesTheDesktopsOpenerAsOneArgument) {
    SCOPED_TRACE(GetParam().why);
    const fs::path document = in(GetParam().name);
    EXPECT_EQ(platform::openByAssociation(document, folder.path()), Launch::Started);
    EXPECT_EQ(note(), expected("xdg-open", document));
}

TEST_P(DocumentName, OfARelativeDocumentIsOneOfTheFolder) {
    SCOPED_TRACE(GetParam().why);
    EXPECT_EQ(platform::openWith("xdg-open", GetParam().name, folder.path()), Launch::Started);
    EXPECT_EQ(note(), expected("xdg-open", in(GetParam().name)));
}

INSTANTIATE_TEST_SUITE_P(Names, DocumentName,
                         testing::Values(NameRow{"report.docx", "plain"}, NameRow{"my  report (1).docx", "blanks"},
                                         NameRow{"the \"new\" Ada's report.docx", "quotes of both kinds"},
                                         NameRow{"-o report.docx", "a leading dash"},
                                         NameRow{"--help.docx", "what looks like an option"},
                                         NameRow{"отчёт 報告 تقرير.docx", "non-Latin letters"},
                                         NameRow{"$(touch x); `touch y` & |.docx", "what a shell would act on"},
                                         NameRow{"50%20off\\n.docx", "what a printer of texts would act on"}));

TEST_F(DocumentOpening, OfAProgramThatIsNotThereFails) {
    EXPECT_EQ(platform::openWith(in("no such program"), in("a.docx"), folder.path()), Launch::Failed);
    EXPECT_EQ(platform::openWith("no-such-program-anywhere", in("a.docx"), folder.path()), Launch::Failed);
    EXPECT_EQ(platform::openWith("", in("a.docx"), folder.path()), Launch::Failed);
    EXPECT_EQ(platform::openWith(in("word processor"), "", folder.path()), Launch::Failed);
}

TEST_F(DocumentOpening, DoesNotWaitForTheProgramsEnd) {
    std::ofstream(in("slow")) << "#!/bin/sh\nsleep 3\n";
    fs::permissions(in("slow"), fs::perms::owner_all);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(platform::openWith(in("slow"), in("a.docx"), folder.path()), Launch::Started);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
}

TEST_F(DocumentOpening, InAFolderThatIsGoneStartsAllTheSame) {
    EXPECT_EQ(platform::openWith(in("word processor"), in("a.docx"), in("gone")), Launch::Started);
    EXPECT_THAT(note(), testing::StartsWith("word processor\n1\n" + in("a.docx").string() + "\n"));
}

} // namespace
} // namespace tavrelion::tests
