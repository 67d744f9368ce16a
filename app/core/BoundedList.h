#pragma once

#include <QString>
#include <QStringList>

/// The highest index of a list; -1 for a list that was never dimensioned.
inline int upperBound(const QStringList& list) {
    return static_cast<int>(list.size()) - 1;
}

/// Stores a text at an index of a list that keeps its size. Errors: std::out_of_range outside the bounds.
void storeAt(QStringList& list, int index, const QString& text);

/// The text at an index. Errors: std::out_of_range outside the bounds.
const QString& textAt(const QStringList& list, int index);
