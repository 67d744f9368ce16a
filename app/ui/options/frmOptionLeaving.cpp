#include "core/OutputDerivation.h"
#include "i18n/Captions.h"
#include "services/ErrorTrap.h"
#include "settings/FactorySettings.h"
#include "settings/SettingsFile.h"
#include "ui/options/frmOption.h"

#include <QDir>

// The three buttons that lead back to the main window.

namespace {

/// A list without a selection, as one that could not be filled, keeps the field.
void take(std::int16_t& field, const DropDownList& list) {
    if (list.listIndex() >= 0)
        field = static_cast<std::int16_t>(list.listIndex());
}

} // namespace

void frmOption::cmdOK_Click() {
    const auto alive = held();
    const ErrorTrap trap(objectName(), "cmdOK_Click");
    trap([this] {
        const std::int16_t before = settings().intLanguageID;
        take(settings().intLanguageID, *m_fields.cboUserInterfaceLang);
        SelectLanguageOptions(m_ports.languages, settings().intLanguageID);
        SelectLanguage(m_ports.languages, settings().intLanguageID);
        if (CheckXMLExists(m_ports.languages, settings().intLanguageID) == LanguageFiles::Missing) {
            settings().intLanguageID = before;
            return;
        }
        takeLists();
        takePageChoice();
        job().strOutputFile = withFormat(job().strOutputFile, settings().intOutputFormat);
        // The destination goes into the folder where the source dialog opens: people fetch the next file where they
        // keep the last one.
        settings().strRecentFolder = m_fields.txtShow->text();
        UpdateSettings(m_ports.records);
        m_ports.mainWindow.setTxtfilepathOutput(job().strOutputFile);
        m_strSavedOutputText = settings().strRecentOutputFolder;
        m_strSavedLogPath = settings().strLogPath;
        leave();
    });
}

void frmOption::takeLists() {
    take(settings().intLauchMs, *m_fields.cboLaunchMSWord);
    job().intOpenDocEditing = settings().intLauchMs != 0 ? 1 : 0;
    if (m_ports.IsMSWordInstalled() == 0)
        settings().intOutputFormat = output_format::kRtf;
    else
        take(settings().intOutputFormat, *m_fields.cboOutputFileformat);
    take(settings().intUseWiz, *m_fields.cboUseWizard);
    take(settings().intReconstMode, *m_fields.cboReconstructionMode);
    take(settings().intCharSpac, *m_fields.cboCharSpacingType);
    job().strCharSpacing = settings().intCharSpac != 0 ? "no" : "yes";
    take(settings().intRecoverImg, *m_fields.cboRecoverImages);
    if (m_fields.cboConversionMethod->listIndex() >= 0)
        settings().strConversionMethod = QString::number(m_fields.cboConversionMethod->listIndex());
}

void frmOption::takePageChoice() {
    if (m_fields.cboConvertAllPages->listIndex() == 0) {
        settings().intPromptPageRange = 0;
        settings().intConvertFrom = 0;
    } else {
        settings().intConvertFrom = 1;
    }
}

void frmOption::cmdCancel_Click() {
    const auto alive = held();
    const ErrorTrap trap(objectName(), "cmdCancel_Click");
    trap([this] {
        // A browse for the destination takes effect at once and stays so; only the paths come back.
        job().strOutputFile = m_ports.mainWindow.txtfilepathOutput();
        if (!m_strSavedLogPath.trimmed().isEmpty()) {
            settings().strLogPath = m_strSavedLogPath;
            m_fields.txtLogPath->setText(m_strSavedLogPath);
        }
        leave();
    });
}

void frmOption::btnRestoreDefault_Click() {
    const auto alive = held();
    const ErrorTrap trap(objectName(), "btnRestoreDefault_Click");
    trap([this] {
        const QChar separator = QDir::separator();
        RestoreDefaultSettings(m_ports.records, {m_ports.languages.applicationFolder + separator + "XML" + separator +
                                                     "DefaultSettings.xml",
                                                 m_fields.txtShow->text(), [this](const QString& path) {
                                                     m_ports.languages.tellLoadFailure(loadFailureText(path));
                                                 }});
        if (m_ports.IsMSWordInstalled() == 0) {
            settings().intOutputFormat = output_format::kRtf;
            job().strOutputFile = withFormat(job().strOutputFile, output_format::kRtf);
        }
        leave();
    });
}

void frmOption::leave() {
    m_ports.mainWindow.show();
    hide();
}
