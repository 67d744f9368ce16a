#include "i18n/LanguageTable.h"

#include "services/ErrorTrap.h"

#include <QComboBox>
#include <QDir>
#include <QListWidget>

#include <array>
#include <stdexcept>

namespace {

constexpr char kFormName[] = "modXML";
using Loading = LanguageDocument::Loading;
using Attribute = LanguageDocument::Attribute;

// The index is intLanguageID and the list position in the options window: settings files rely on the order.
constexpr std::array<LanguageFileNames, kLanguageCount> kFiles{{
    {"english.xml", "englishoptions.xml"},
    {"Dutch.xml", "Dutchoptions.xml"},
    {"french.xml", "frenchoptions.xml"},
    {"german.xml", "germanoptions.xml"},
    {"Italian.xml", "Italianoptions.xml"},
    {"Norwegian.xml", "Norwegianoptions.xml"},
    {"portuguese.xml", "portugueseoptions.xml"},
    {"spanish.xml", "spanishoptions.xml"},
    {"swedish.xml", "swedishoptions.xml"},
}};

bool isLanguage(std::int16_t intLanguageID) {
    return intLanguageID >= 0 && intLanguageID < kLanguageCount;
}

QString pathOf(const LanguageTable& table, const char* fileName) {
    const QChar separator = QDir::separator();
    return table.applicationFolder + separator + "XML" + separator + fileName;
}

/// Loads a file into a document, and tells the user when that fails.
Loading loadOrTell(const LanguageTable& table, LanguageDocument& document, const QString& path) {
    const Loading loading = document.load(path);
    if (loading == Loading::Failed)
        table.tellLoadFailure(loadFailureText(path));
    return loading;
}

} // namespace

LanguageFileNames languageFileNames(std::int16_t intLanguageID) {
    return kFiles.at(static_cast<std::size_t>(intLanguageID));
}

QString loadFailureText(const QString& path) {
    // The grammar stays as support knows it.
    return "Failed to load <" + path + ">.\n\nPlease make sure that the file exist in application folder.";
}

LanguageDocument& documentIn(std::unique_ptr<LanguageDocument>& document) {
    if (!document)
        document = std::make_unique<LanguageDocument>();
    return *document;
}

void addItem(QWidget& listControl, const QString& text) {
    if (auto* combo = qobject_cast<QComboBox*>(&listControl))
        combo->addItem(text);
    else if (auto* list = qobject_cast<QListWidget*>(&listControl))
        list->addItem(text);
    else
        throw std::runtime_error("Object doesn't support this property or method");
}

void SelectLanguage(LanguageTable& table, std::int16_t intLanguageID) {
    const ErrorTrap trap(kFormName, "SelectLanguage");
    trap([&] {
        table.docLanguage = std::make_unique<LanguageDocument>();
        if (isLanguage(intLanguageID))
            table.strLanguageFile = pathOf(table, languageFileNames(intLanguageID).main);
    });
}

void SelectLanguageOptions(LanguageTable& table, std::int16_t intLanguageID) {
    table.docOptions = std::make_unique<LanguageDocument>();
    if (isLanguage(intLanguageID))
        table.strOptionsFile = pathOf(table, languageFileNames(intLanguageID).options);
}

QString GetControlText(LanguageTable& table, const QString& key, QWidget* listControl) {
    const ErrorTrap trap(kFormName, "GetControlText");
    QString text;
    trap([&] {
        if (!table.docLanguage)
            throw std::runtime_error("Object variable or With block variable not set");
        const auto values = table.docLanguage->select(key);
        if (listControl)
            for (const QString& value : values)
                addItem(*listControl, textOf(value));
        else if (!values.empty())
            text = textOf(values.front());
    });
    return text;
}

QString GetCaption(LanguageTable& table, const QString& key) {
    const ErrorTrap trap(kFormName, "GetCaption");
    QString text;
    trap([&] {
        LanguageDocument& document = documentIn(table.docLanguage);
        if (document.load(table.strLanguageFile) == Loading::Failed)
            return;
        const auto values = document.select(key);
        if (!values.empty())
            text = textOf(values.front());
    });
    return text;
}

QStringList GetControlTextOpt1(LanguageTable& table, const QString& key, const QString& selector) {
    const ErrorTrap trap(kFormName, "GetControlTextOpt1");
    SelectLanguageOptions(table, table.settings.intLanguageID);
    LanguageDocument& document = documentIn(table.docOptions);
    Loading loading = Loading::Failed;
    trap([&] { loading = loadOrTell(table, document, table.strOptionsFile); });
    if (loading == Loading::Failed)
        return {};
    std::vector<QString> attributes;
    trap([&] { attributes = document.select(key, selector == "TOOLTIP" ? Attribute::TOOLTIPTEXT : Attribute::VALUE); });
    QStringList texts;
    texts.resize(kOptionTextCount);
    qsizetype index = 0;
    for (const QString& attribute : attributes) {
        trap([&] {
            if (index >= texts.size())
                throw std::out_of_range("Subscript out of range");
            texts[index] = textOf(attribute);
        });
        ++index;
    }
    return texts;
}

LanguageFiles CheckXMLExists(LanguageTable& table, std::int16_t intLanguageID) {
    const ErrorTrap trap(kFormName, "CheckXMLExists");
    LanguageFiles files = LanguageFiles::Missing;
    trap([&] {
        documentIn(table.docLanguage);
        SelectLanguage(table, intLanguageID);
        SelectLanguageOptions(table, intLanguageID);
        LanguageDocument& document = documentIn(table.docLanguage);
        if (loadOrTell(table, document, table.strLanguageFile) == Loading::Done &&
            loadOrTell(table, document, table.strOptionsFile) == Loading::Done)
            files = LanguageFiles::Found;
    });
    return files;
}
