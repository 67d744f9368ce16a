#include "i18n/LanguageDocument.h"

#include <pugixml.hpp>

#include <QFile>

#include <stdexcept>

namespace {

QString attributeOf(const pugi::xml_node& item, LanguageDocument::Attribute attribute) {
    const bool isValue = attribute == LanguageDocument::Attribute::VALUE;
    const pugi::xml_attribute found = item.attribute(isValue ? "VALUE" : "TOOLTIPTEXT");
    return found ? QString::fromUtf8(found.value()) : QString();
}

} // namespace

LanguageDocument::LanguageDocument()
    : m_document(std::make_unique<pugi::xml_document>()) {}

LanguageDocument::~LanguageDocument() = default;

LanguageDocument::Loading LanguageDocument::load(const QString& path) {
    m_document->reset();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Loading::Failed;
    const QByteArray text = file.readAll();
    if (m_document->load_buffer(text.constData(), static_cast<std::size_t>(text.size())))
        return Loading::Done;
    m_document->reset();
    return Loading::Failed;
}

std::vector<QString> LanguageDocument::select(const QString& name, Attribute attribute) const {
    // Names are control names and never hold a quote, so they go into the query as they are.
    const QString query = "//Root/LANGUAGEOPTIONS/CONVERTERITEM[@NAME='" + name + "']";
    pugi::xpath_node_set items = m_document->select_nodes(query.toUtf8().constData());
    items.sort();
    std::vector<QString> attributes;
    for (const pugi::xpath_node& item : items)
        attributes.push_back(attributeOf(item.node(), attribute));
    return attributes;
}

QString textOf(const QString& attribute) {
    if (attribute.isNull())
        throw std::runtime_error("Invalid use of Null");
    return attribute;
}
