#pragma once

#include <QString>

/// The path of an existing document as its question shows it: whole where it fits the label, else, beyond 40
/// characters, its two ends. A path between the two is not shown. Units: `labelWidth` in twips.
QString shownPath(const QString& strOutputFile, int labelWidth);
