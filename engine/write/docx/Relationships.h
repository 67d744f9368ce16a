#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orvane {
class XmlWriter;
}

namespace orvane::write::docx {

enum class TargetMode { Internal, External };

/// What one part (or the package) leads to. Equal targets share one relationship.
/// Source: ECMA-376 part 2, 9.3.
class Relationships {
public:
    /// The id of the relationship, made when there is none yet. `type` is the last step of the type's address, "image"
    /// for instance, or the whole address.
    std::string add(std::string_view type, std::string_view target, TargetMode mode = TargetMode::Internal);

    bool empty() const { return m_items.empty(); }
    void write(XmlWriter& xml) const;

    bool operator==(const Relationships& other) const { return m_items == other.m_items; }

private:
    struct Item {
        std::string type;
        std::string target;
        TargetMode mode = TargetMode::Internal;

        bool operator==(const Item&) const = default;
    };

    std::vector<Item> m_items;
    std::map<std::pair<std::string, std::string>, std::size_t> m_byTarget;
};

} // namespace orvane::write::docx
