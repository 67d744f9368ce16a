#include "PageGallery.h"
#include "app/support/MainFixture.h"
#include "ui/application/LanguageStatusTexts.h"
#include "ui/dialogs/MessageSelection.h"
#include "ui/dialogs/frmErrorOkOnly.h"
#include "ui/dialogs/frmErrorYesNoOnly.h"
#include "ui/dialogs/frmmsgbox.h"
#include "ui/form/Style.h"
#include "ui/password/frmPassword.h"
#include "ui/progress/frmProgress.h"

#include <QApplication>
#include <QPushButton>
#include <QTabBar>

#include <cstdio>

namespace {

using namespace tavrelion::tests;

/// The real windows over a faked run, each shown as a user meets it and saved as a picture.
class Gallery : public MainFixture {
public:
    Gallery(std::int16_t language, QString target)
        : m_folder(std::move(target))
        , m_language(QString(languageFileNames(language).main).section('.', 0, 0).toLower()) {
        records.settings.intLanguageID = language;
        records.job.strOutputFile = "/home/ada/Documents/Annual report.docx";
        records.job.strSourcePDF = "/home/ada/Documents/Annual report.pdf";
        records.job.strFileSizeText = "214.6  KB";
        records.settings.strRecentOutputFolder = "/home/ada/Documents";
    }
    ~Gallery() override { registry.dispose(); }

    void draw() {
        drawMain();
        drawProgress();
        drawPassword();
        drawMessage<frmErrorOkOnly>("txtIncorrectRange");
        drawMessage<frmErrorYesNoOnly>("lblAlreadyExists");
        drawMessage<frmmsgbox>("lblpgformat");
    }

private:
    void TestBody() override {}

    /// `moment`: what is to be seen, where a window is drawn more than once.
    void save(QWidget& window, const QString& moment = {}) {
        QApplication::processEvents();
        const QString name = moment.isEmpty() ? window.objectName() : window.objectName() + '-' + moment;
        const QString file = m_folder + '/' + name + '-' + m_language + ".png";
        if (!window.grab().save(file))
            std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
    }
    void drawMain() {
        const auto form = registry.obtain<frmMain>(mainPorts());
        form->showForm();
        save(*form);
        form->hide();
    }
    void drawProgress() {
        const LanguageStatusTexts texts(languages);
        const RunPorts ports{records,   mainWindow, messageBox, yesNoDialog, passwordPrompt, texts,
                             eventLoop, clock,      files,      engines,     followUp,       registry};
        files.files.erase(records.job.strOutputFile);
        files.files.insert(records.job.strSourcePDF);
        script.statuses = {{5, 3, 12, 0}};
        const auto form = registry.obtain<frmProgress>(ports, languages);
        form->carryLinks(links);
        form->load();
        QTest::qWait(600); // the window's own timer asks the engine once
        save(*form);
        form->findChild<QTabBar*>("tabProgress")->setCurrentIndex(1);
        save(*form, "details");
        files.files.insert(records.settings.strLogPath);
        files.texts[records.settings.strLogPath] = "page 3: the font Garamond is not in the document\npage 7: damaged";
        form->hideButton(ProgressView::Button::cmdCancel);
        form->showButton(ProgressView::Button::cmdViewLog);
        save(*form, "failed");
        form->findChild<QPushButton*>("cmdViewLog")->click();
        save(*form, "log");
        form->Form::unload();
    }
    void drawPassword() {
        const auto form = registry.obtain<frmPassword>(PasswordPorts{records, languages, mainWindow, [] {}});
        form->load();
        form->showWanted(PasswordPrompt::Password::User);
        form->showForm();
        save(*form);
        form->Form::unload();
    }
    template<typename Window>
    void drawMessage(const QString& text) {
        const auto form = registry.obtain<Window>(MessagePorts{records, languages});
        form->load();
        showOnlyText(*form, text);
        form->showForm();
        save(*form);
        form->hide();
    }

    QString m_folder;
    QString m_language;
};

/// A dark desktop, as the style meets it.
void darken(QApplication& application) {
    QPalette palette(QColor(0x3A, 0x3A, 0x3A), QColor(0x20, 0x20, 0x20));
    palette.setColor(QPalette::Base, QColor(0x18, 0x18, 0x18));
    application.setPalette(palette);
}

} // namespace

/// tavrelion_screenshots FOLDER [dark] [all]: draws every window in English and German, or in all languages.
int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    const QStringList options = QApplication::arguments().mid(2);
    const bool isDark = options.contains("dark");
    const bool inAllLanguages = options.contains("all");
    if (argc < 2) {
        std::fputs("usage: tavrelion_screenshots FOLDER [dark] [all]\n", stderr);
        return 2;
    }
    QApplication::setQuitOnLastWindowClosed(false);
    if (isDark)
        darken(application);
    applyStyle(application);
    constexpr std::int16_t kGerman = 3;
    for (std::int16_t language = 0; language < kLanguageCount; ++language) {
        if (!inAllLanguages && language != 0 && language != kGerman)
            continue;
        Gallery(language, argv[1]).draw();
        drawPages(argv[1], language);
    }
    return 0;
}
