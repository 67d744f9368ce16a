#pragma once

/// Every threshold of the layout stages. A field says its unit, its meaning and what taught its value.
namespace orvane::layout {

struct LayoutParameters {
    struct Words {
    } words;
};

} // namespace orvane::layout
