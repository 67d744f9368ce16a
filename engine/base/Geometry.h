#pragma once

#include <algorithm>
#include <cmath>

namespace orvane {

/// A position in page space. Units: points, origin at the top left of the page as shown, y down.
struct Point {
    double x = 0;
    double y = 0;

    bool operator==(const Point&) const = default;
};

/// A rectangle with upright sides in page space; empty when right <= left or bottom <= top. Units: points.
struct Rect {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;

    bool operator==(const Rect&) const = default;

    double width() const { return right - left; }
    double height() const { return bottom - top; }
    double area() const { return isEmpty() ? 0 : width() * height(); }
    bool isEmpty() const { return right <= left || bottom <= top; }
    double centerX() const { return (left + right) / 2; }
    double centerY() const { return (top + bottom) / 2; }

    bool contains(Point p) const { return p.x >= left && p.x <= right && p.y >= top && p.y <= bottom; }
    bool contains(const Rect& r) const { return r.left >= left && r.right <= right && r.top >= top && r.bottom <= bottom; }
    bool intersects(const Rect& r) const { return r.left < right && left < r.right && r.top < bottom && top < r.bottom; }

    Rect intersected(const Rect& r) const {
        return {std::max(left, r.left), std::max(top, r.top), std::min(right, r.right), std::min(bottom, r.bottom)};
    }
    /// The smallest rectangle around both; an empty side counts as nothing.
    Rect united(const Rect& r) const {
        if (isEmpty())
            return r;
        if (r.isEmpty())
            return *this;
        return {std::min(left, r.left), std::min(top, r.top), std::max(right, r.right), std::max(bottom, r.bottom)};
    }
    Rect inflated(double by) const { return {left - by, top - by, right + by, bottom + by}; }
};

/// Length that two intervals share; 0 when they are apart.
inline double overlap(double a0, double a1, double b0, double b1) {
    return std::max(0.0, std::min(a1, b1) - std::max(a0, b0));
}

/// An affine map x' = a x + c y + e, y' = b x + d y + f. Source: ISO 32000-1, 8.3.3.
struct Matrix {
    double a = 1, b = 0, c = 0, d = 1, e = 0, f = 0;

    bool operator==(const Matrix&) const = default;

    Point apply(Point p) const { return {a * p.x + c * p.y + e, b * p.x + d * p.y + f}; }
    double determinant() const { return a * d - b * c; }

    /// The upright box around the image of `r`.
    Rect applyToBox(const Rect& r) const {
        const Point p[4] = {apply({r.left, r.top}), apply({r.right, r.top}), apply({r.left, r.bottom}), apply({r.right, r.bottom})};
        Rect box{p[0].x, p[0].y, p[0].x, p[0].y};
        for (const Point& q : p)
            box = {std::min(box.left, q.x), std::min(box.top, q.y), std::max(box.right, q.x), std::max(box.bottom, q.y)};
        return box;
    }
};

} // namespace orvane
