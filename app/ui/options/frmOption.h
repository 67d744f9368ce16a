#pragma once

#include "ui/form/Form.h"
#include "ui/options/OptionFields.h"
#include "ui/options/OptionPorts.h"

/// The window in which the user edits the settings. It is hidden, not destroyed, when the user leaves it. A list's
/// position is what the settings store.
class frmOption : public Form {
    Q_OBJECT

public:
    frmOption(FormRegistry& registry, OptionPorts ports);

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_QueryUnload(bool& cancel, UnloadMode unloadMode) override;
    void Form_Unload() override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void connectHandlers();
    void cboReconstructionMode_Click(int position);
    void cmdBrwDestiFolder_Click();
    void cmdBrwLogFile_Click();
    void cmdOK_Click();
    void cmdCancel_Click();
    void btnRestoreDefault_Click();

    void ShowToolTip(const QString& controlName);
    void HideToolTip();

    void applyCaptions();
    void fitFormatListToWord();
    void showConverterLists();
    void takePagesOfMainWindow();
    void fillEmptyLogPath();
    void showFirstDestination();
    void showDestination();
    void takeLists();
    void takePageChoice();
    void leave();

    AppSettings& settings() const { return m_ports.records.settings; }
    ConversionJob& job() const { return m_ports.records.job; }

    static constexpr char kLogName[] = "tavrelion.log";

    OptionPorts m_ports;
    OptionFields m_fields;
    QString m_strSavedOutputText; ///< the main window's output box at the last browse, strRecentOutputFolder after OK
    QString m_strSavedLogPath;    ///< strLogPath before the last browse and after OK: what Cancel restores
    QString m_strOutputFileName;  ///< the file name of strOutputFile, for recombining after a browse
};
