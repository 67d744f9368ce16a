#pragma once

#include <QString>

/// Opens files and addresses outside the program.
class SystemOpener {
public:
    virtual ~SystemOpener() = default;

    /// Whether the file is there and the system has a program that shows files of its kind.
    virtual bool canShow(const QString& file) const = 0;
    /// Opens a file or an address with the system's default program. Nobody hears whether that worked.
    virtual void open(const QString& target) = 0;
};

/// Host of the maker's web site, a setting of the build (TAVRELION_WEB_HOST).
QString webHost();

/// The address on the maker's site that leads on to a page, with the channel by which the program was installed:
/// "quicktour2", "support" or "feedback" in any letter case; every other word leads to "homepage".
QString GetRedirectUrl(const QString& pageWord, const QString& host = webHost());

/// What the five links of the windows do. Errors: skipped; a link that cannot be opened is not reported.
class LinkActions {
public:
    /// `programFolder`: where the help lies.
    LinkActions(SystemOpener& opener, QString programFolder);

    /// The help file; the same pages as HTML where nothing shows such a file.
    void OpenHelp();
    void OpenOnlineSupport();
    void OpenOtherProducts();
    void OpenQuickTour();
    void OpenWebsite();

private:
    void openPage(const QString& pageWord);

    SystemOpener& m_opener;
    QString m_programFolder;
};
