#pragma once

#include <QString>

#include <memory>
#include <vector>

namespace pugi {
class xml_document;
}

/// One language file in memory: Root / LANGUAGEOPTIONS / CONVERTERITEM, each item with NAME, VALUE and, in the options
/// files, TOOLTIPTEXT.
class LanguageDocument {
public:
    LanguageDocument();
    ~LanguageDocument();
    LanguageDocument(const LanguageDocument&) = delete;
    LanguageDocument& operator=(const LanguageDocument&) = delete;

    enum class Loading { Done, Failed };

    /// Reads the file, completely when this returns. A file that is missing or is no XML leaves the document empty.
    Loading load(const QString& path);

    enum class Attribute { VALUE, TOOLTIPTEXT };

    /// The attribute of every item of that name, in document order: more than one makes a list.
    /// Errors: throws on a name that cannot stand in a query. An item without the attribute is null in the result.
    std::vector<QString> select(const QString& name, Attribute attribute = Attribute::VALUE) const;

private:
    std::unique_ptr<pugi::xml_document> m_document;
};

/// The text of an attribute that must be there. Errors: throws for one that is not.
QString textOf(const QString& attribute);
