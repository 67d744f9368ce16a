#include "core/BoundedList.h"

#include <stdexcept>

namespace {

void checkBounds(const QStringList& list, int index) {
    if (index < 0 || index > upperBound(list))
        throw std::out_of_range("Subscript out of range: " + std::to_string(index) + " of " +
                                std::to_string(list.size()));
}

} // namespace

void storeAt(QStringList& list, int index, const QString& text) {
    checkBounds(list, index);
    list[index] = text;
}

const QString& textAt(const QStringList& list, int index) {
    checkBounds(list, index);
    return list[index];
}
