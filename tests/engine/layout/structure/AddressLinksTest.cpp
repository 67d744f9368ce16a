#include "layout/structure/AddressLinks.h"

#include "engine/layout/DraftSupport.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using tests::makeBlock;
using tests::makeLine;
using tests::makeParagraph;
using tests::textOfParagraph;

/// The paragraph of these lines as text, with the links that were made.
std::string linked(std::vector<Line> lines) {
    DocumentDraft draft = tests::makeDraft(1);
    draft.blocks.push_back(makeBlock(makeParagraph(std::move(lines))));
    linkPrintedAddresses(draft);
    return textOfParagraph(draft, 0);
}

TEST(AddressLinks, LinkExactlyTheAddress) {
    EXPECT_EQ(linked({makeLine("see (www.a.example/b), please", 72, 100)}),
              "p Normal \"see (\" link(http://www.a.example/b)[ \"www.a.example/b\" ] \"), please\"");
}

TEST(AddressLinks, GoOverTheEndsOfLines) {
    EXPECT_EQ(linked({makeLine("see http://a.example/b-", 72, 100), makeLine("c/d.html there", 72, 114)}),
              "p Normal \"see \" link(http://a.example/b-c/d.html)[ \"http://a.example/b-c/d.html\" ] \" there\"");
}

TEST(AddressLinks, LeaveTheLinksOfTheFile) {
    DocumentDraft draft = tests::makeDraft(1);
    draft.pages[0].links.push_back({{}, "http://b.example", {}});
    Line line = makeLine("see www.a.example", 72, 100);
    line.words[1].spans[0].look.link = 0;
    draft.blocks.push_back(makeBlock(makeParagraph({line})));
    linkPrintedAddresses(draft);
    ASSERT_EQ(draft.pages[0].links.size(), 1u);
    EXPECT_EQ(textOfParagraph(draft, 0), "p Normal \"see \" link(http://b.example)[ \"www.a.example\" ]");
}

TEST(AddressLinks, LookLikeLinksWhereTheFileHasSome) {
    const Color blue{0, 0, 255};
    const struct {
        const char* why;
        Color color;
        document::UnderlineKind underline;
        std::size_t links;
    } rows[] = {{"plain text", {}, document::UnderlineKind::None, 1},
                {"underlined", {}, document::UnderlineKind::Single, 2},
                {"of the links' colour", blue, document::UnderlineKind::None, 2},
                {"of another colour", {255, 0, 0}, document::UnderlineKind::None, 1}};
    for (const auto& row : rows) {
        DocumentDraft draft = tests::makeDraft(1);
        draft.pages[0].links.push_back({{}, "http://b.example", {}});
        Line line = makeLine("here and www.a.example", 72, 100);
        line.words[0].spans[0].look.link = 0;
        line.words[0].spans[0].look.color = blue;
        line.words[2].spans[0].look.color = row.color;
        line.words[2].spans[0].look.underline = row.underline;
        draft.blocks.push_back(makeBlock(makeParagraph({line})));
        linkPrintedAddresses(draft);
        EXPECT_EQ(draft.pages[0].links.size(), row.links) << row.why;
    }
}

TEST(AddressLinks, TakeTheSchemeThatTheHostHasElsewhere) {
    DocumentDraft draft =
        tests::draftOfLines({{"www.a.example/c", 100}, {"https://www.a.example/b", 120}, {"www.b.example", 140}});
    linkPrintedAddresses(draft);
    ASSERT_EQ(draft.pages[0].links.size(), 3u);
    EXPECT_EQ(draft.pages[0].links[0].uri, "https://www.a.example/c");
    EXPECT_EQ(draft.pages[0].links[2].uri, "http://www.b.example");
}

TEST(AddressLinks, AreOneOnAPage) {
    DocumentDraft draft = tests::draftOfLines({{"www.a.example", 100}, {"www.b.example", 120}, {"www.a.example", 140}});
    linkPrintedAddresses(draft);
    ASSERT_EQ(draft.pages[0].links.size(), 2u);
    EXPECT_EQ(draft.pages[0].links[0].boxes.size(), 2u);
}

TEST(AddressLinks, StandInNotesAndRunningHeads) {
    DocumentDraft draft = tests::draftOfLines({{"text", 100}});
    const std::vector<DraftBlock> address = tests::draftOfLines({{"www.a.example", 100}}).blocks;
    draft.notes.push_back({document::NoteKind::Footnote, address});
    draft.sections.emplace_back().footer.evenPages = address;
    linkPrintedAddresses(draft);
    for (const auto* blocks : {&draft.notes[0].blocks, &*draft.sections[0].footer.evenPages})
        EXPECT_EQ((*blocks)[0].paragraph()->firstLine().words[0].spans[0].look.link, 0);
}

} // namespace
} // namespace orvane::layout
