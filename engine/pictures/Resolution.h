#pragma once

namespace orvane::pictures {

/// How densely a picture's pixels stand on its page. Units: dots an inch; 0 where it is not known.
struct Resolution {
    double x = 0;
    double y = 0;

    bool isKnown() const { return x > 0 && y > 0; }
};

} // namespace orvane::pictures
