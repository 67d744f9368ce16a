#pragma once

#include "i18n/LanguageTable.h"

#include <gmock/gmock.h>

namespace tavrelion::tests {

/// A language table over the files as they ship. One that cannot be loaded fails the test.
inline LanguageTable shippedLanguages(const SharedRecords& records) {
    return LanguageTable(
        {records.settings, TAVRELION_PROGRAM_FOLDER, [](const QString& text) { ADD_FAILURE() << text.toStdString(); }});
}

} // namespace tavrelion::tests
