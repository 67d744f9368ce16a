#pragma once

#include "write/docx/Deflater.h"
#include "write/docx/Relationships.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::write::docx {

/// The zip file that a document is: its parts, their content types and what leads to what.
/// Source: ECMA-376 part 2, 9 and 10.
class Package {
public:
    /// Adds an XML part. `name` is its path in the package without a slash in front.
    void addPart(std::string name, std::string_view contentType, DeflatedBytes bytes);
    /// Adds a file as it is; it is read when the package is saved.
    void addFile(std::string name, std::filesystem::path file);
    /// Adds the relationships of the part `partName`.
    void addRelationships(std::string_view partName, const Relationships& relationships);

    /// What the package itself leads to.
    Relationships& relationships() { return m_relationships; }

    /// Writes the package; the same parts give the same bytes. `target` is written where it stands, and only there:
    /// whoever wants to keep an older file until the new one is whole names another place.
    /// Errors: Failure(TargetUnwritable).
    void save(const std::filesystem::path& target);

private:
    struct Part {
        std::string name;
        std::string contentType; ///< empty: known by the name's extension
        DeflatedBytes bytes;
        std::filesystem::path file; ///< instead of bytes
    };

    DeflatedBytes contentTypes() const;

    std::vector<Part> m_parts;
    Relationships m_relationships;
};

} // namespace orvane::write::docx
