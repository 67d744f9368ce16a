#include "app/support/AccessKeys.h"
#include "app/support/RunFakes.h"
#include "app/support/ScratchHome.h"
#include "app/support/TextRoom.h"
#include "ui/feedback/frmFeedback.h"
#include "ui/form/FormRegistry.h"
#include "ui/form/Style.h"

#include <gmock/gmock.h>

namespace tavrelion::tests {
namespace {

class NoTransfer : public WebTransfer {
    void OpenURL(const QString&, std::chrono::milliseconds) override {}
};

/// The form with the product's style. Its texts are English whatever the language of the program.
class FeedbackFit : public ScratchHome {
protected:
    ~FeedbackFit() override {
        registry.dispose();
        qApp->setPalette(m_paletteBefore);
        qApp->setStyleSheet({});
        qApp->setFont(m_fontBefore);
    }
    void open(int points) {
        QFont font = m_fontBefore;
        font.setPointSize(points);
        qApp->setFont(font);
        applyStyle(*qApp);
        window = registry.obtain<frmFeedback>(
            FeedbackPorts{messageBox, transfer, [] { return QString(); }, [] { return 0; }});
        window->showForm();
    }
    /// Every label, also those without a name, is as wide as its text.
    void expectEveryQuestionHasRoom() {
        for (const QLabel* label : window->findChildren<QLabel*>()) {
            if (label->wordWrap())
                continue;
            EXPECT_GE(label->contentsRect().width(), label->sizeHint().width()) << label->text().toStdString();
        }
    }

    Journal journal;
    FakeMessageBox messageBox{journal};
    NoTransfer transfer;
    FormRegistry registry;
    std::shared_ptr<frmFeedback> window;

private:
    QPalette m_paletteBefore = qApp->palette();
    QFont m_fontBefore = qApp->font();
};

TEST_F(FeedbackFit, NoTextIsCut) {
    open(10);
    expectNoTextIsCut(*window, {1024, 720}, "10 pt");
    expectNothingOverlaps(*window, "10 pt");
    expectEveryQuestionHasRoom();
}

TEST_F(FeedbackFit, NoTextIsCutWithABigFont) {
    open(13);
    expectNoTextIsCut(*window, {1366, 768}, "13 pt");
    expectNothingOverlaps(*window, "13 pt");
    expectEveryQuestionHasRoom();
}

TEST_F(FeedbackFit, EveryChoiceOfAListFitsIt) {
    open(10);
    QApplication::processEvents();
    for (const QComboBox* list : window->findChildren<QComboBox*>()) {
        EXPECT_GT(list->count(), 1) << list->objectName().toStdString();
        EXPECT_GE(list->width(), list->sizeHint().width()) << list->objectName().toStdString();
    }
}

TEST_F(FeedbackFit, EveryQuestionHasAnAccessKeyOfItsOwn) {
    open(10);
    expectAccessKeys(*window, "english");
}

TEST_F(FeedbackFit, AScreenReaderReadsTheQuestionOfEveryField) {
    open(10);
    for (const char* field : {"txtEmail", "txtPhoneCountry", "txtPhoneArea", "txtPhoneNo", "cmbEasy", "txtEasy",
                              "cmbPerformance", "cmbFunctionality", "cmbExperience", "cmbMoneyValue", "txtLiked",
                              "txtProblem", "txtDOnt", "txtPurchase", "cmbWillingness", "txtComments"}) {
        const QString name = window->findChild<QWidget*>(field)->accessibleName();
        EXPECT_FALSE(name.isEmpty()) << field;
        EXPECT_FALSE(name.contains('&')) << field;
    }
}

} // namespace
} // namespace tavrelion::tests
