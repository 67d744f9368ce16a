#include "app/support/RunFixture.h"
#include "app/support/ShippedLanguages.h"
#include "ui/application/LanguageStatusTexts.h"
#include "ui/dialogs/MessageSelection.h"
#include "ui/dialogs/frmErrorOkOnly.h"
#include "ui/dialogs/frmErrorYesNoOnly.h"
#include "ui/dialogs/frmmsgbox.h"
#include "ui/form/FormRegistry.h"
#include "ui/form/Style.h"
#include "ui/main/frmMain.h"
#include "ui/progress/frmProgress.h"

#include <QApplication>
#include <QTest>

#include <cstdio>

namespace {

using namespace tavrelion::tests;

/// The real windows over a faked run, each shown as a user meets it and saved as a picture.
class Gallery : public RunFixture {
public:
    Gallery(std::int16_t language, QString target)
        : m_folder(std::move(target))
        , m_language(QString(languageFileNames(language).main).section('.', 0, 0).toLower()) {
        records.settings.intLanguageID = language;
        records.job.strOutputFile = "/home/ada/Documents/Annual report.docx";
        records.job.strSourcePDF = "/home/ada/Documents/Annual report.pdf";
    }
    ~Gallery() override { m_registry.dispose(); }

    void draw() {
        drawMain();
        drawProgress();
        drawMessage<frmErrorOkOnly>("txtIncorrectRange");
        drawMessage<frmErrorYesNoOnly>("lblAlreadyExists");
        drawMessage<frmmsgbox>("lblpgformat");
    }

private:
    void TestBody() override {}

    void save(QWidget& window) {
        QApplication::processEvents();
        const QString file = m_folder + '/' + window.objectName() + '-' + m_language + ".png";
        if (!window.grab().save(file))
            std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
        window.hide();
    }
    void drawMain() {
        const auto form =
            m_registry.obtain<frmMain>(MainPorts{records, m_languages, messageBox, yesNoDialog, eventLoop, [] {}});
        form->showForm();
        save(*form);
    }
    void drawProgress() {
        const LanguageStatusTexts texts(m_languages);
        const RunPorts ports{records,   mainWindow, messageBox, yesNoDialog, passwordPrompt, texts,
                             eventLoop, clock,      files,      engines,     followUp,       m_registry};
        files.files.erase(records.job.strOutputFile);
        files.files.insert(records.job.strSourcePDF);
        script.statuses = {{5, 3, 12, 0}};
        const auto form = m_registry.obtain<frmProgress>(ports, m_languages);
        form->load();
        QTest::qWait(600); // the window's own timer asks the engine once
        save(*form);
    }
    template<typename Window>
    void drawMessage(const QString& text) {
        const auto form = m_registry.obtain<Window>(MessagePorts{records, m_languages});
        form->load();
        showOnlyText(*form, text);
        form->showForm();
        save(*form);
    }

    QString m_folder;
    QString m_language;
    LanguageTable m_languages{shippedLanguages(records)};
    FormRegistry m_registry;
};

} // namespace

/// tavrelion_screenshots FOLDER: draws every window in English and German.
int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    if (argc != 2) {
        std::fputs("usage: tavrelion_screenshots FOLDER\n", stderr);
        return 2;
    }
    QApplication::setQuitOnLastWindowClosed(false);
    applyStyle(application);
    for (const std::int16_t language : {std::int16_t{0}, std::int16_t{3}})
        Gallery(language, argv[1]).draw();
    return 0;
}
