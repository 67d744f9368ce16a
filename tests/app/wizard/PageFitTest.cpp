#include "PageFixture.h"

#include "app/support/AccessKeys.h"
#include "app/support/TextRoom.h"
#include "ui/dialogs/frmPromptPages.h"
#include "ui/form/Style.h"

#include <QTest>

namespace tavrelion::tests {
namespace {

const QStringList kPages{"frmOutputOptions", "frmLayout",        "frmImageRecovery",     "frmCharSpacing",
                         "frmPageRange",     "frmOutputSummary", "frmImageFormatOutput", "frmFinishExtractImages"};
constexpr QSize kPageSize{760, 500};

/// The pages with the product's style.
class PageFit : public PageFixture {
protected:
    PageFit() {
        applyStyle(*qApp);
        records.job.strSourcePDF = "/home/ada/Documents/Annual report.pdf";
        records.job.strOutputFile = "/home/ada/Documents/Annual report.doc";
        records.job.strImageFolder = "/home/ada/Documents";
        records.settings.intConvertFrom = 1;
        records.job.strPageRange = "1-3,7,10-12";
    }
    ~PageFit() override {
        registry.dispose();
        qApp->setPalette(m_paletteBefore);
        qApp->setStyleSheet({});
    }
    void inEveryLanguage(const std::function<void(const QString& language)>& step) {
        for (std::int16_t i = 0; i < kLanguageCount; ++i) {
            records.settings.intLanguageID = i;
            step(languageFileNames(i).main);
        }
    }

private:
    QPalette m_paletteBefore = qApp->palette();
};

TEST_F(PageFit, NoTextOfAPageIsCutInAnyLanguage) {
    inEveryLanguage([this](const QString& language) {
        for (const QString& page : kPages) {
            if (page == "frmOutputSummary" || page == "frmFinishExtractImages") {
                // With the texts that the pages before leave behind.
                records.job.strLayoutCaption = text("frmLayout", "lblFlowingText1");
                records.job.strCharSpacing = text("frmCharSpacing", "optCharSpaceNo");
                records.job.strImageFormat = text("frmImageFormatOutput", "optSameSourceImages");
            }
            expectNoTextIsCut(show(page), kPageSize, language);
            expectNothingOverlaps(*form(page), language);
            hide(page);
        }
    });
}

TEST_F(PageFit, NoTextOfThePagePromptIsCutInAnyLanguage) {
    inEveryLanguage([this](const QString& language) {
        const auto window = registry.obtain<frmPromptPages>(PromptPagesPorts{records, languages, refusals, messageBox});
        window->showForm();
        expectNoTextIsCut(*window, {480, 240}, language);
        expectNothingOverlaps(*window, language);
        window->unload();
    });
}

TEST_F(PageFit, EveryControlHasAnAccessKeyOfItsOwnInEveryLanguage) {
    inEveryLanguage([this](const QString& language) {
        for (const QString& page : kPages) {
            expectAccessKeys(show(page), language);
            hide(page);
        }
        const auto prompt = registry.obtain<frmPromptPages>(PromptPagesPorts{records, languages, refusals, messageBox});
        prompt->showForm();
        expectAccessKeys(*prompt, language);
        prompt->unload();
    });
}

TEST_F(PageFit, TheAccessKeysOfOptionsWithoutACaptionChooseThem) {
    for (const char* page : {"frmPageRange", "frmImageFormatOutput"}) {
        show(page).activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form(page).get()));
        for (const auto& [label, chosen] :
             {std::pair{"lblFrom", "chkFromTo"}, std::pair{"lblAllPages", "chkAllPages"}}) {
            const QChar key = accessKeyIn(captionOf(control(page, label)));
            QTest::keyClick(form(page).get(), key.toLatin1(), Qt::AltModifier);
            EXPECT_TRUE(option(page, chosen).value()) << page << '.' << label;
            EXPECT_EQ(form(page)->focusWidget(), &option(page, chosen)) << page << '.' << label;
        }
        hide(page);
    }
}

TEST_F(PageFit, AScreenReaderCallsControlsWithoutACaptionByTheirLabels) {
    show("frmPageRange");
    EXPECT_EQ(control("frmPageRange", "chkAllPages").accessibleName(), "All Pages");
    EXPECT_EQ(control("frmPageRange", "txtFrom").accessibleName(), "Pages:");
    show("frmImageFormatOutput");
    EXPECT_EQ(control("frmImageFormatOutput", "txtFileBrowsePath").accessibleName(), "Save Images to:");
    show("frmOutputOptions");
    EXPECT_EQ(control("frmOutputOptions", "chkFromTo").accessibleName(), "Pages:");
    EXPECT_EQ(control("frmOutputOptions", "txtTo").accessibleName(), "to");
}

TEST_F(PageFit, TheListOfControlsHasEveryControlOfThePagesAndNoOther) {
    for (const QString& page : kPages)
        EXPECT_EQ(controlsWithText(*form(page)), listedControls(TAVRELION_CONTROLS, page)) << page.toStdString();
    const auto prompt = registry.obtain<frmPromptPages>(PromptPagesPorts{records, languages, refusals, messageBox});
    EXPECT_EQ(controlsWithText(*prompt), listedControls(TAVRELION_CONTROLS, "frmPromptPages"));
}

TEST_F(PageFit, TabReachesEveryControlThatCanBeUsed) {
    for (const QString& page : kPages) {
        Form& window = show(page);
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        std::set<QWidget*> reached;
        for (int i = 0; i < 60; ++i) {
            QTest::keyClick(window.focusWidget() ? window.focusWidget() : &window, Qt::Key_Tab);
            reached.insert(window.focusWidget());
        }
        for (QWidget* control : window.findChildren<QWidget*>()) {
            const auto* option = qobject_cast<OptionButton*>(control);
            // Of a group the chosen option; the arrow keys move between them.
            const bool takesTab = option ? option->value() : (control->focusPolicy() & Qt::TabFocus) != 0;
            if (!control->isVisible() || !control->isEnabled() || !takesTab || control->objectName().isEmpty())
                continue;
            EXPECT_TRUE(reached.count(control)) << page.toStdString() << '.' << control->objectName().toStdString();
        }
        hide(page);
    }
}

} // namespace
} // namespace tavrelion::tests
