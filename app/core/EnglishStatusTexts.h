#pragma once

#include "core/RunViews.h"

/// The English status texts, which need no language file.
class EnglishStatusTexts : public StatusTexts {
public:
    QStringList lblProgressStatus() const override;
};
