#include "core/OutputDerivation.h"
#include "core/Paths.h"
#include "i18n/Captions.h"
#include "services/SkippingErrors.h"
#include "settings/SettingsRecord.h"
#include "ui/form/AccessKeys.h"
#include "ui/options/frmOption.h"

// What the window shows, at its load and at each activation. A step that fails is passed over.

namespace {

constexpr std::int16_t kFirstWordWithDocx = 2007;

} // namespace

void frmOption::Form_Load() {
    skippingErrors([this] { settings().intLogPath = settings_record::numberOf(settings().strLogPathFlag); },
                   [this] { applyCaptions(); },
                   [this] {
                       m_fields.cboOutputFileformat->setListIndex(
                           m_ports.IsMSWordInstalled() == 0 ? 0 : settings().intOutputFormat);
                   },
                   [this] { showConverterLists(); },
                   [this] { m_fields.cboConvertAllPages->setListIndex(settings().intPromptPageRange != 0 ? 1 : 0); },
                   [this] { fillEmptyLogPath(); }, [this] { showFirstDestination(); },
                   [this] { m_fields.txtLogPath->setText(settings().strLogPath); });
}

void frmOption::Form_Activate() {
    skippingErrors([this] { applyCaptions(); }, [this] { fitFormatListToWord(); }, [this] { showConverterLists(); },
                   [this] { takePagesOfMainWindow(); }, [this] { fillEmptyLogPath(); }, [this] { showDestination(); },
                   [this] { m_fields.txtLogPath->setText(settings().strLogPath); }, [this] { HideToolTip(); });
}

/// The texts, and the two lists that follow them at once. The pass empties the browse buttons, which have no entry in
/// the language file.
void frmOption::applyCaptions() {
    LoadOptionCaptions(m_ports.languages, *this, m_ports.IsMSWordInstalled);
    m_fields.cboUserInterfaceLang->setListIndex(settings().intLanguageID);
    m_fields.cboLaunchMSWord->setListIndex(settings().intLauchMs);
    m_fields.cmdBrwLogFile->setText("...");
    m_fields.cmdBrwDestiFolder->setText("...");
    assignAccessKeys(*this);
    m_fields.followLabels();
}

void frmOption::fitFormatListToWord() {
    if (m_ports.IsMSWordInstalled() == 0) {
        // The list has lost its first item, and no format is read from it on OK.
        m_fields.cboOutputFileformat->setListIndex(1);
        return;
    }
    if (m_ports.CheckMSWord() < kFirstWordWithDocx) {
        m_fields.cboOutputFileformat->removeItem(output_format::kDocx);
        if (settings().intOutputFormat == output_format::kDocx)
            settings().intOutputFormat = output_format::kDoc;
    }
    m_fields.cboOutputFileformat->setListIndex(settings().intOutputFormat);
}

void frmOption::showConverterLists() {
    m_fields.cboUseWizard->setListIndex(settings().intUseWiz);
    m_fields.cboReconstructionMode->setListIndex(settings().intReconstMode);
    m_fields.cboCharSpacingType->setListIndex(settings().intCharSpac);
    m_fields.cboRecoverImages->setListIndex(settings().intRecoverImg);
    m_fields.cboConversionMethod->setListIndex(settings_record::numberOf(settings().strConversionMethod));
}

void frmOption::takePagesOfMainWindow() {
    if (m_ports.mainWindow.chkAllPages()) {
        m_fields.cboConvertAllPages->setListIndex(0);
        settings().intConvertFrom = 0;
    } else if (m_ports.mainWindow.chkFromTo()) {
        m_fields.cboConvertAllPages->setListIndex(1);
        settings().intConvertFrom = 1;
    }
}

void frmOption::fillEmptyLogPath() {
    if (settings().strLogPath.trimmed().isEmpty())
        settings().strLogPath = fileIn(m_ports.records.flags.strHomeFolder, kLogName);
}

void frmOption::showFirstDestination() {
    const bool hasOutput = !m_ports.mainWindow.txtfilepathOutput().trimmed().isEmpty();
    m_fields.txtShow->setText(hasOutput ? job().strOutputFile
                                        : QString(settings().strRecentOutputFolder).remove(QChar::Null));
}

/// While the window is open, strOutputFile holds a folder; the main window's box still holds the file.
void frmOption::showDestination() {
    if (m_ports.mainWindow.txtfilepathOutput().trimmed().isEmpty()) {
        m_fields.txtShow->setText(settings().strRecentOutputFolder);
        return;
    }
    if (hasDocumentExtension(job().strOutputFile))
        job().strOutputFile = folderWithSeparator(job().strOutputFile);
    m_fields.txtShow->setText(job().strOutputFile);
}
