#include "layout/structure/CommentFinder.h"

#include "engine/layout/DraftSupport.h"

#include <gmock/gmock.h>

namespace orvane::layout {
namespace {

using testing::SizeIs;
using tests::draftOfLines;

pdf::Annotation noteAt(const Rect& box, std::string contents) {
    pdf::Annotation note;
    note.kind = pdf::AnnotationKind::Text;
    note.box = box;
    note.author = "Ada";
    note.date = "2024-05-01T10:00:00Z";
    note.contents = std::move(contents);
    return note;
}

TEST(CommentFinder, TiesANoteToTheWordsBesideIt) {
    DocumentDraft draft = draftOfLines({{"First line", 100}, {"Second line", 120}});
    draft.pages[0].annotations.push_back(noteAt({540, 110, 560, 126}, "Check\nthis"));
    Diagnostics diagnostics;
    findComments(draft, diagnostics);
    ASSERT_THAT(draft.comments, SizeIs(1));
    const document::Document document = tests::documentOf(draft);
    ASSERT_THAT(document.comments, SizeIs(1));
    EXPECT_EQ(document.comments[0].author, "Ada");
    EXPECT_EQ(document.comments[0].date, "2024-05-01T10:00:00Z");
    EXPECT_THAT(document.comments[0].blocks, SizeIs(2)) << "a paragraph for each line";
    EXPECT_EQ(tests::textOfParagraph(draft, 0), "p Normal \"First line\"");
    EXPECT_EQ(tests::textOfParagraph(draft, 1), "p Normal \"Second line\" comment(0)");
}

TEST(CommentFinder, PutsWhatIsSaidAboutMarkedWordsBehindThem) {
    DocumentDraft draft = draftOfLines({{"Alpha beta gamma", 100}});
    pdf::Annotation mark = noteAt({72, 90, 130, 103}, "why beta?");
    mark.kind = pdf::AnnotationKind::Highlight;
    mark.quads = {draft.blocks[0].paragraph()->firstLine().words[1].box};
    draft.pages[0].annotations.push_back(mark);
    Diagnostics diagnostics;
    findComments(draft, diagnostics);
    EXPECT_EQ(tests::textOfParagraph(draft, 0), "p Normal \"Alpha beta\" comment(0) \" gamma\"");
}

TEST(CommentFinder, LeavesMarksThatSayNothing) {
    DocumentDraft draft = draftOfLines({{"Alpha beta gamma", 100}});
    draft.pages[0].annotations.push_back(noteAt({72, 90, 130, 103}, " "));
    draft.pages[0].annotations.push_back(noteAt({72, 90, 130, 103}, "typed on the page"));
    draft.pages[0].annotations.back().kind = pdf::AnnotationKind::FreeText;
    Diagnostics diagnostics;
    findComments(draft, diagnostics);
    EXPECT_THAT(draft.comments, SizeIs(0));
}

TEST(CommentFinder, TellsOfANoteOnAPageWithoutText) {
    DocumentDraft draft = tests::makeDraft(1);
    draft.pages[0].annotations.push_back(noteAt({72, 90, 130, 103}, "lonely"));
    Diagnostics diagnostics;
    findComments(draft, diagnostics);
    EXPECT_THAT(draft.comments, SizeIs(0));
    EXPECT_THAT(diagnostics.entries(), SizeIs(1));
}

} // namespace
} // namespace orvane::layout
