#include "PageGallery.h"

#include "app/options/OptionFixture.h"
#include "app/wizard/PageFixture.h"
#include "ui/dialogs/frmPromptPages.h"
#include "ui/feedback/frmFeedback.h"

#include <QApplication>
#include <QTest>

#include <cstdio>

namespace {

using namespace tavrelion::tests;

class Album {
public:
    Album(QString folder, std::int16_t language)
        : m_folder(std::move(folder))
        , m_language(QString(languageFileNames(language).main).section('.', 0, 0).toLower()) {}

    void save(QWidget& window) const {
        QApplication::processEvents();
        const QString file = m_folder + '/' + window.objectName() + '-' + m_language + ".png";
        if (!window.grab().save(file))
            std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
    }

private:
    QString m_folder;
    QString m_language;
};

class Pages : public PageFixture {
public:
    explicit Pages(std::int16_t language) {
        records.settings.intLanguageID = language;
        records.settings.intConvertFrom = 1;
        records.settings.intLauchMs = 2;
        records.job.strSourcePDF = "/home/ada/Documents/Annual report.pdf";
        records.job.strOutputFile = "/home/ada/Documents/Annual report.doc";
        records.job.strPageRange = "1-3,7";
        records.job.strImageFolder = "/home/ada/Documents";
    }
    void draw(const Album& album) {
        for (const char* page : {"frmOutputOptions", "frmLayout", "frmImageRecovery", "frmCharSpacing", "frmPageRange",
                                 "frmImageFormatOutput"}) {
            Form& window = show(page);
            album.save(window);
            window.hide();
        }
        records.job.strLayoutCaption = text("frmLayout", "lblFlowingText1");
        records.job.strCharSpacing = text("frmCharSpacing", "optCharSpaceNo");
        records.job.strImageFormat = text("frmImageFormatOutput", "optSameSourceImages");
        album.save(show("frmOutputSummary"));
        album.save(show("frmFinishExtractImages"));
        const auto prompt = registry.obtain<frmPromptPages>(PromptPagesPorts{records, languages, refusals, messageBox});
        prompt->showForm();
        album.save(*prompt);
    }

private:
    void TestBody() override {}
};

class Options : public OptionFixture {
public:
    explicit Options(std::int16_t language) { records.settings.intLanguageID = language; }
    void draw(const Album& album) {
        open();
        window->activateWindow();
        if (QTest::qWaitForWindowActive(window.get()))
            part<QWidget>("cboReconstructionMode").setFocus(Qt::TabFocusReason);
        album.save(*window);
    }

private:
    void TestBody() override {}
};

class NoTransfer : public WebTransfer {
    void OpenURL(const QString&, std::chrono::milliseconds) override {}
};

void drawFeedback(const Album& album) {
    Journal journal;
    FakeMessageBox messageBox(journal);
    NoTransfer transfer;
    FormRegistry registry;
    const auto window =
        registry.obtain<frmFeedback>(FeedbackPorts{messageBox, transfer, [] { return QString(); }, [] { return 0; }});
    window->showForm();
    album.save(*window);
    registry.dispose();
}

} // namespace

void drawPages(const QString& folder, std::int16_t language) {
    const Album album(folder, language);
    Pages(language).draw(album);
    Options(language).draw(album);
    if (language == 0) // its texts are English in every language
        drawFeedback(album);
}
