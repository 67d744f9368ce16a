#pragma once

#include "i18n/LanguageDocument.h"
#include "records/SharedRecords.h"

#include <QStringList>

#include <functional>
#include <memory>

class QWidget;

/// What the language table reaches.
struct LanguagePorts {
    const AppSettings& settings; ///< for intLanguageID
    QString applicationFolder;   ///< the folder of the executable; the files lie in its folder XML
    std::function<void(const QString& text)> tellLoadFailure; ///< a box with an information icon and OK, waits
};

/// The two XML documents of the current language and their paths. A document is absent between two uses of it; whoever
/// looks something up brings it back. Nothing is cached: a file is read again for each use, so that a change of
/// language needs no notification. Thread: the user interface's thread.
struct LanguageTable : LanguagePorts {
    explicit LanguageTable(LanguagePorts ports)
        : LanguagePorts(std::move(ports)) {}

    std::unique_ptr<LanguageDocument> docLanguage; ///< of the main language file
    std::unique_ptr<LanguageDocument> docOptions;  ///< of the options language file
    QString strLanguageFile;
    QString strOptionsFile;
};

/// How many languages there are; intLanguageID counts them from 0.
inline constexpr std::int16_t kLanguageCount = 9;

/// How many texts GetControlTextOpt1 has room for.
inline constexpr int kOptionTextCount = 11;

/// Makes a fresh docLanguage and points strLanguageFile to that language's file, without opening it. An index outside
/// the table leaves the path as it was. Errors: logged.
void SelectLanguage(LanguageTable& table, std::int16_t intLanguageID);

/// The same for docOptions and strOptionsFile. Errors: skipped.
void SelectLanguageOptions(LanguageTable& table, std::int16_t intLanguageID);

/// The text of that key in docLanguage, which the caller has loaded; empty without an entry. With a list control
/// (QComboBox, QListWidget) every entry is added to it, nothing is cleared, and the result is empty.
/// Errors: logged; an empty text.
QString GetControlText(LanguageTable& table, const QString& key, QWidget* listControl = nullptr);

/// The text of that key in the main language file; empty when the file cannot be read or has no entry.
/// Errors: logged; an empty text.
QString GetCaption(LanguageTable& table, const QString& key);

/// The texts of that key in the options language file of intLanguageID: TOOLTIPTEXT for the selector "TOOLTIP", VALUE
/// for any other. Always kOptionTextCount texts, empty ones behind the last entry; none at all when the file cannot be
/// read, which is told. Errors: logged, one record for each entry that has no room.
QStringList GetControlTextOpt1(LanguageTable& table, const QString& key, const QString& selector);

/// Whether both files of a language can be read; tells which one cannot. The table keeps pointing to that language, and
/// docLanguage holds the options file after a success: nothing may rely on it before the next SelectLanguage or load.
enum class LanguageFiles { Found, Missing };
LanguageFiles CheckXMLExists(LanguageTable& table, std::int16_t intLanguageID);

/// Names of the two files of a language, as they lie in the folder XML.
struct LanguageFileNames {
    const char* main;
    const char* options;
};
/// Requires: 0 <= intLanguageID < kLanguageCount.
LanguageFileNames languageFileNames(std::int16_t intLanguageID);

/// What the user is told when an XML file cannot be loaded.
QString loadFailureText(const QString& path);

/// Brings back a document that was released.
LanguageDocument& documentIn(std::unique_ptr<LanguageDocument>& document);

/// Adds a text to a QComboBox or QListWidget. Errors: throws for another widget.
void addItem(QWidget& listControl, const QString& text);
