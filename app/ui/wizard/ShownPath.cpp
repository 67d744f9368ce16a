#include "ui/wizard/ShownPath.h"

namespace {

// Characters. The two ends and the dots between them fill exactly the room of the longest path that is shown whole.
constexpr qsizetype kLongestShown = 56;
constexpr qsizetype kStart = 28;
constexpr qsizetype kEnd = 25;

} // namespace

QString shortenedPath(const QString& path) {
    return path.size() > kLongestShown ? path.left(kStart) + "..." + path.right(kEnd) : path;
}
