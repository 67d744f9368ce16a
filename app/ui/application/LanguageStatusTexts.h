#pragma once

#include "core/RunViews.h"
#include "i18n/LanguageTable.h"

/// The run's texts in the current language. A file with fewer than ten status texts gives fewer, so that a run notices
/// those that are missing; one that cannot be read, which is told, gives none.
class LanguageStatusTexts : public StatusTexts {
public:
    explicit LanguageStatusTexts(LanguageTable& languages)
        : m_languages(languages) {}

    QStringList lblProgressStatus() const override;
    QString caption(const QString& key) const override;

private:
    LanguageTable& m_languages;
};
