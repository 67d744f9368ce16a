#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>

/// The one set of records through which the windows and the run talk to each other. The field names are the product's vocabulary:
/// they are keys into the language files and the settings, misspellings included.
/// Thread: the user interface's thread only.

/// The run being prepared or executed.
struct ConversionJob {
    QString strSourcePDF;               ///< the PDF of the present run; one blank after the queue ran out through GetNextFile
    QString strOutputFile;              ///< the document to write
    QString strOutputShown;             ///< its extension with the dot, as shown
    QString strWordTarget;              ///< the document as handed to the word processor
    QString strFileSizeText;            ///< kilobytes with two decimals and "  KB"
    QString strPdfPassword;             ///< two passwords are joined by "`````"
    QString strPageRange;               ///< "1-3,7"; persisted with the settings
    std::int16_t intUseFromTo = 0;      ///< non-zero: from/to numbers are not used
    std::int16_t intPageFrom = 0;
    std::int16_t intPageTo = 0;
    std::int16_t intImagePageFrom = 0;  ///< nothing writes the page bounds of an image run, so they stay 0
    std::int16_t intImagePageTo = 0;
    QString strCharSpacing;             ///< "yes" or "no", or a caption, as the summary shows it
    QString strLayoutCaption;
    std::int16_t intOpenDocEditing = 0; ///< 1: open the document after conversion
    QString strImageFormat;             ///< "BMP" and so on
    std::int16_t intImageFormat = 0;    ///< the engine's code of strImageFormat
    QString strImageFolder;
};

/// The selected files and what became of them.
struct BatchQueue {
    QStringList strSelectedFiles;       ///< one file: its full path; several: the folder, then the names
    std::int32_t lngSelectedBound = 0;  ///< the cursor; falls by 1 per file taken; Main sets -1
    QString strCurrentFile;             ///< full path of the file under the cursor
    std::int16_t intFileTaken = 0;      ///< set to 1 whenever the cursor takes a file
    QStringList strOutputFiles;         ///< by order of completion
    QStringList strFileStatus;          ///< by order of completion; "Completed" once done
    std::int16_t intCurrentIndex = 0;   ///< into the two lists above; -1 on a new selection
};

/// The options that outlive a run, in the order of the settings file.
struct AppSettings {
    std::int16_t intLanguageID = 0;
    std::int16_t intLauchMs = 0;        ///< 0 never offer the document, 1 the whole batch at its end, 2 each document
    std::int16_t intOutputPath = 0;
    std::int16_t intOutputFormat = 0;   ///< 0 DOC, 1 RTF, 2 DOCX
    std::int16_t intProgressWind = 0;
    std::int16_t intUseWiz = 0;
    std::int16_t intReconstMode = 0;    ///< 0 true page, 1 continuous, 2 plain text, 3 flowing text, 4 table text
    std::int16_t intRecoverImg = 0;     ///< 1 anchoring, 0 remove images
    std::int16_t intCharSpac = 0;       ///< 0 keep character spacing
    QString strConversionMethod;
    std::int16_t intConvertFrom = 0;    ///< 0 all pages, 1 from and to
    std::int16_t intPromptConversion = 0;
    QString strRecentFolder;
    QString strRecentOutputFolder;
    QString strLogPath;                 ///< of the conversion log
    std::int16_t intLogPath = 0;        ///< written to the settings file
    QString strLogPathFlag;             ///< read from the settings file
    std::int16_t intPromptPageRange = 0;///< not persisted
};

/// Flags of the run and of the process.
struct RunFlags {
    bool blnCloseRequested = false;     ///< the stop flag: every step of a run tests it
    std::int16_t intRunKind = 0;        ///< 1 convert, 2 extract images
    std::int16_t intDialogAnswer = 0;   ///< of the last yes/no dialog: 1 yes, 0 no or closed
    std::int16_t intWordOpened = 0;
    QString strCommandLine;
    std::int16_t intWizardCancelled = 0;
    QString strHomeFolder;              ///< of settings, default log and staging folder
    bool blnHomeFolderKnown = false;    ///< strHomeFolder is the application's own folder
    QString strWordRequirementMsg;
};

/// All of them.
struct SharedRecords {
    ConversionJob job;
    BatchQueue queue;
    AppSettings settings;
    RunFlags flags;
};

/// The process's one set, created at start-up.
SharedRecords& sharedRecords();

/// Caption of the main window, the progress window and the rest; a second copy finds the first by it.
inline constexpr char kWindowTitle[] = "Tavrelion-PDF to Word Converter";
