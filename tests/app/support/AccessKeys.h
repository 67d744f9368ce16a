#pragma once

#include "i18n/Controls.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace tavrelion::tests {

/// The letter that a caption marks with "&"; null without one.
inline QChar accessKeyIn(const QString& caption) {
    for (qsizetype i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != '&')
            continue;
        if (caption[i + 1] != '&')
            return caption[i + 1].toUpper();
        ++i;
    }
    return {};
}

/// Whether a letter takes one press on every keyboard of its alphabet.
inline bool isPlainLetter(QChar letter) {
    return letter.isLetterOrNumber() && letter.decompositionTag() == QChar::NoDecomposition;
}

/// Fails the test for each visible button, option, link, list and free text of a window that no access key leads to,
/// for two that share a key, and for a key with an accent where the text has a plain letter.
inline void expectAccessKeys(const QWidget& window, const QString& language) {
    const std::string where = (language + ' ' + window.objectName() + '.').toStdString();
    std::map<QChar, std::string> owners;
    std::vector<const QWidget*> reached;
    for (const QWidget* control : controlsOf(window)) {
        const auto* label = qobject_cast<const QLabel*>(control);
        const auto* button = qobject_cast<const QAbstractButton*>(control);
        if (!control->isVisible() || (!button && !(label && label->buddy())))
            continue;
        const QChar key = accessKeyIn(captionOf(*control));
        if (key.isNull())
            continue;
        const std::string name = control->objectName().toStdString();
        const auto [owner, isFree] = owners.emplace(key, name);
        EXPECT_TRUE(isFree) << where << name << " has the key of " << owner->second;
        const QString caption = captionOf(*control);
        const bool hasPlainLetter = std::any_of(caption.begin(), caption.end(), &isPlainLetter);
        EXPECT_TRUE(isPlainLetter(key) || !hasPlainLetter) << where << name << " has a key with an accent";
        reached.push_back(control);
        reached.push_back(label ? label->buddy() : control);
    }
    for (const QWidget* control : controlsOf(window)) {
        const auto* button = qobject_cast<const QAbstractButton*>(control);
        const QString caption = button ? button->text() : QString();
        const bool isButton = std::any_of(caption.begin(), caption.end(), &isPlainLetter);
        const auto* label = qobject_cast<const QLabel*>(control);
        const bool isLink = label && label->buddy() == label;
        const auto* text = qobject_cast<const QPlainTextEdit*>(control);
        const bool isField = qobject_cast<const QComboBox*>(control) || (text && !text->isReadOnly());
        if (control->isVisible() && (isButton || isLink || isField)) {
            EXPECT_NE(std::find(reached.begin(), reached.end(), control), reached.end())
                << where << control->objectName().toStdString() << " has no access key";
        }
    }
}

} // namespace tavrelion::tests
