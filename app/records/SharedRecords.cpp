#include "records/SharedRecords.h"

SharedRecords& sharedRecords() {
    static SharedRecords records;
    return records;
}
