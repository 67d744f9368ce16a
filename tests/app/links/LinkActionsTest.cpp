#include "services/LinkActions.h"
#include "app/support/LinkFakes.h"
#include "app/support/ScratchHome.h"

#include <QFile>

#include <gmock/gmock.h>

namespace tavrelion::tests {
namespace {

class Links : public ScratchHome {
protected:
    FakeOpener opener;
    LinkActions actions{opener, "/opt/tavrelion"};
};

TEST_F(Links, LeadToPagesOfTheMakerWithTheChannelTwice) {
    EXPECT_EQ(GetRedirectUrl("support", "www.maker.example"),
              "http://www.maker.example/"
              "appdirect.asp?utm_source=default&utm_medium=PPD&utm_campaign=default&gotopg=support");
}

TEST_F(Links, TakeTheChannelFromTheInstallLog) {
    QFile log(path("install.log"));
    ASSERT_TRUE(log.open(QIODevice::WriteOnly));
    log.write("Source: C:\\setup_shop.exe\r\n");
    log.close();
    EXPECT_EQ(GetRedirectUrl("feedback", "h"),
              "http://h/appdirect.asp?utm_source=shop&utm_medium=PPD&utm_campaign=shop&gotopg=feedback");
}

TEST_F(Links, KnowThreePageWordsInAnyCase) {
    for (const auto& [word, page] :
         {std::pair{"Support", "support"}, std::pair{"QUICKTOUR2", "quicktour2"}, std::pair{"feedback", "feedback"},
          std::pair{"homepage", "homepage"}, std::pair{"shop", "homepage"}, std::pair{"", "homepage"}})
        EXPECT_TRUE(GetRedirectUrl(word).endsWith(QString("&gotopg=") + page)) << word;
}

TEST_F(Links, OfTheFiveOpenTheirTargets) {
    actions.OpenHelp();
    actions.OpenOnlineSupport();
    actions.OpenOtherProducts();
    actions.OpenQuickTour();
    actions.OpenWebsite();
    EXPECT_EQ(opener.opened,
              (QStringList{"/opt/tavrelion/Tavrelion.chm", GetRedirectUrl("support"), GetRedirectUrl("homepage"),
                           GetRedirectUrl("quicktour2"), GetRedirectUrl("homepage")}));
}

TEST_F(Links, OpenTheHelpPagesWhereNothingShowsTheHelpFile) {
    opener.showsHelpBooks = false;
    actions.OpenHelp();
    EXPECT_EQ(opener.opened, QStringList{"/opt/tavrelion/help/index.html"});
}

TEST_F(Links, ThatCannotBeOpenedAreNotReported) {
    opener.failsToOpen = true;
    EXPECT_NO_THROW(actions.OpenHelp());
    EXPECT_NO_THROW(actions.OpenWebsite());
    EXPECT_EQ(opener.opened.size(), 2);
    EXPECT_FALSE(QFile::exists(path("GUILog.tmp")));
}

TEST_F(Links, GoToTheHostThatTheBuildIsSetTo) {
    EXPECT_FALSE(webHost().isEmpty());
    EXPECT_TRUE(GetRedirectUrl("support").startsWith("http://" + webHost() + "/appdirect.asp?"));
}

} // namespace
} // namespace tavrelion::tests
