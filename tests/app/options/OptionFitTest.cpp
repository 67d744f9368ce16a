#include "OptionFixture.h"

#include "app/support/AccessKeys.h"
#include "app/support/TextRoom.h"
#include "ui/form/Style.h"

namespace tavrelion::tests {
namespace {

class OptionFit : public OptionFixture {
protected:
    OptionFit() { applyStyle(*qApp); }
    ~OptionFit() override {
        registry.dispose();
        qApp->setPalette(m_paletteBefore);
        qApp->setStyleSheet({});
    }

private:
    QPalette m_paletteBefore = qApp->palette();
};

TEST_F(OptionFit, NoTextIsCutInAnyLanguage) {
    for (std::int16_t i = 0; i < kLanguageCount; ++i) {
        records.settings.intLanguageID = i;
        open();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        for (const char* field : {"cboReconstructionMode", "txtShow", "cboUseWizard"}) { // the longest help lines
            part<QWidget>(field).setFocus(Qt::TabFocusReason);
            expectNoTextIsCut(*window, {760, 640}, languageFileNames(i).options);
        }
        expectNothingOverlaps(*window, languageFileNames(i).options);
        window->hide();
    }
}

TEST_F(OptionFit, EveryControlHasAnAccessKeyOfItsOwnInEveryLanguage) {
    for (std::int16_t i = 0; i < kLanguageCount; ++i) {
        records.settings.intLanguageID = i;
        open();
        expectAccessKeys(*window, languageFileNames(i).options);
        window->hide();
    }
}

TEST_F(OptionFit, TheFieldsOfBothCardsStartAtOneLine) {
    for (std::int16_t i = 0; i < kLanguageCount; ++i) {
        records.settings.intLanguageID = i;
        open();
        QApplication::processEvents();
        const auto left = [this](const char* field) { return part<QWidget>(field).mapTo(window.get(), QPoint()).x(); };
        EXPECT_EQ(left("cboUserInterfaceLang"), left("cboReconstructionMode")) << languageFileNames(i).options;
        window->hide();
    }
}

TEST_F(OptionFit, AScreenReaderCallsEachFieldAndBrowseButtonByItsLabel) {
    open();
    EXPECT_EQ(part<QWidget>("cboUseWizard").accessibleName(), "Turn on Wizard");
    EXPECT_EQ(part<QWidget>("cmdBrwLogFile").accessibleName(), "Log File Folder");
    EXPECT_EQ(part<QWidget>("cmdBrwDestiFolder").accessibleName(), "Destination Folder");
}

TEST_F(OptionFit, TheListOfControlsHasEveryControlAndNoOther) {
    open();
    EXPECT_EQ(controlsWithText(*window), listedControls(TAVRELION_CONTROLS, "frmOption"));
}

} // namespace
} // namespace tavrelion::tests
