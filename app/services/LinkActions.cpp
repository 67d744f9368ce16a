#include "services/LinkActions.h"

#include "services/InstallLog.h"
#include "services/SkippingErrors.h"

namespace {

QString knownPageWord(const QString& pageWord) {
    const QString word = pageWord.toLower();
    for (const char* known : {"quicktour2", "support", "feedback"})
        if (word == known)
            return word;
    return "homepage";
}

} // namespace

QString webHost() {
    return TAVRELION_WEB_HOST;
}

QString GetRedirectUrl(const QString& pageWord, const QString& host) {
    const QString channel = GetInstallChannel();
    const QString query =
        "?utm_source=" + channel + "&utm_medium=PPD&utm_campaign=" + channel + "&gotopg=" + knownPageWord(pageWord);
    return "http://" + host + "/appdirect.asp" + query;
}

LinkActions::LinkActions(SystemOpener& opener, QString programFolder)
    : m_opener(opener)
    , m_programFolder(std::move(programFolder)) {}

void LinkActions::OpenHelp() {
    skippingErrors([this] {
        const QString book = m_programFolder + "/Tavrelion.chm";
        m_opener.open(m_opener.canShow(book) ? book : m_programFolder + "/help/index.html");
    });
}

void LinkActions::OpenOnlineSupport() {
    openPage("support");
}

void LinkActions::OpenOtherProducts() {
    openPage("homepage");
}

void LinkActions::OpenQuickTour() {
    openPage("quicktour2");
}

void LinkActions::OpenWebsite() {
    openPage("homepage");
}

void LinkActions::openPage(const QString& pageWord) {
    skippingErrors([&] { m_opener.open(GetRedirectUrl(pageWord)); });
}
