#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include <pugixml.hpp>

namespace orvane::tests {

/// What elements may hold: attributes with their values, children and their order. tests/data/docx/elements.rules
/// explains how rules are written.
class XmlRules {
public:
    /// Throws std::runtime_error for a file with a line that is no rule.
    explicit XmlRules(const std::filesystem::path& file);

    /// Appends a line to `faults` for each place below and at `node` that breaks a rule. An element without a rule
    /// breaks one.
    void check(const pugi::xml_node& node, std::vector<std::string>& faults) const;

private:
    struct Attribute {
        std::string name;
        std::vector<std::string> values;
        bool isOptional = false;
    };
    /// A place among the children.
    struct Step {
        std::vector<std::string> names; ///< one of these
        bool isOptional = false;
        bool isRepeatable = false;
    };
    struct Rule {
        std::vector<Attribute> attributes;
        std::vector<Step> steps;
        bool hasText = false;
    };

    void addLine(const std::string& line);
    Attribute parseAttribute(const std::string& word) const;
    static void addSteps(Rule& rule, const std::string& content);
    const Rule* ruleOf(const pugi::xml_node& node) const;
    static void checkAttributes(const pugi::xml_node& node, const Rule& rule, std::vector<std::string>& faults);
    static void checkChildren(const pugi::xml_node& node, const Rule& rule, std::vector<std::string>& faults);

    std::map<std::string, std::string> m_lists;
    std::map<std::string, Rule> m_rules;
};

} // namespace orvane::tests
