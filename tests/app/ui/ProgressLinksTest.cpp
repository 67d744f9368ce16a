#include "app/support/LinkFakes.h"
#include "app/support/RunFixture.h"
#include "app/support/ShippedLanguages.h"
#include "ui/form/FormRegistry.h"
#include "ui/form/LinkLabel.h"
#include "ui/progress/frmProgress.h"

#include <QTest>

namespace tavrelion::tests {
namespace {

class ProgressLinks : public RunFixture {
protected:
    ProgressLinks() {
        const RunPorts ports{records,   mainWindow, messageBox, yesNoDialog, passwordPrompt, statusTexts,
                             eventLoop, clock,      files,      engines,     followUp,       registry};
        window = registry.obtain<frmProgress>(ports, languages);
        window->carryLinks(links);
        window->carryLinks(links); // each run asks for it anew
        window->showForm();
    }
    ~ProgressLinks() override { registry.dispose(); }
    LinkLabel& label(const char* name) { return *window->findChild<LinkLabel*>(name); }

    LanguageTable languages{shippedLanguages(records)};
    FakeOpener opener;
    LinkActions links{opener, "/opt/tavrelion"};
    FormRegistry registry;
    std::shared_ptr<frmProgress> window;
};

TEST_F(ProgressLinks, OpenOncePerClick) {
    QTest::mouseClick(&label("lblHelp"), Qt::LeftButton);
    QTest::mouseClick(&label("lblOnline"), Qt::LeftButton);
    EXPECT_EQ(opener.opened, (QStringList{"/opt/tavrelion/Tavrelion.chm", GetRedirectUrl("support")}));
}

TEST_F(ProgressLinks, NeverChangeColour) {
    QTest::mouseMove(&label("lblHelp"));
    QMouseEvent move(QEvent::MouseMove, QPointF(3, 3), label("lblHelp").mapToGlobal(QPointF(3, 3)), Qt::NoButton, {},
                     {});
    QCoreApplication::sendEvent(&label("lblHelp"), &move);
    EXPECT_EQ(label("lblHelp").palette().color(QPalette::WindowText), QColor(Qt::black));
}

} // namespace
} // namespace tavrelion::tests
