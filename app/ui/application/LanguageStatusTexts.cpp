#include "ui/application/LanguageStatusTexts.h"

QStringList LanguageStatusTexts::lblProgressStatus() const {
    QStringList texts = GetControlTextOpt1(m_languages, "lblProgressStatus", "VALUE");
    // The lookup fills up with empty texts, and an empty text would pass for a status that has none.
    while (!texts.isEmpty() && texts.last().isEmpty())
        texts.removeLast();
    return texts;
}

QString LanguageStatusTexts::caption(const QString& key) const {
    return GetCaption(m_languages, key);
}
