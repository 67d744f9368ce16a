#pragma once

#include "i18n/LanguageTable.h"
#include "records/SharedRecords.h"

/// What the message windows reach.
struct MessagePorts {
    SharedRecords& records;
    LanguageTable& languages;
};
