#include "support/docx/XmlRules.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <set>
#include <sstream>
#include <stdexcept>

namespace orvane::tests {
namespace {

std::vector<std::string> split(const std::string& text, char separator) {
    std::vector<std::string> parts;
    std::istringstream in(text);
    for (std::string part; std::getline(in, part, separator);)
        if (!part.empty())
            parts.push_back(part);
    return parts;
}

bool isNumber(const std::string& value, bool maySign) {
    const std::size_t start = maySign && value.starts_with('-') ? 1 : 0;
    return value.size() > start && value.size() <= start + 10 &&
           std::all_of(value.begin() + static_cast<std::ptrdiff_t>(start), value.end(),
                       [](unsigned char c) { return std::isdigit(c) != 0; });
}

bool isHex(const std::string& value) {
    return (value.size() == 4 || value.size() == 6 || value.size() == 8) &&
           std::all_of(value.begin(), value.end(), [](unsigned char c) { return std::isxdigit(c) != 0; });
}

/// Whether the value is of a kind, or the very word.
bool fits(const std::string& value, const std::string& kind) {
    if (kind == "int")
        return isNumber(value, true);
    if (kind == "uint")
        return isNumber(value, false);
    if (kind == "onoff")
        return value == "0" || value == "1";
    if (kind == "hex")
        return isHex(value);
    if (kind == "color")
        return value == "auto" || (isHex(value) && value.size() == 6);
    if (kind == "name")
        return !value.empty() && value.find(' ') == std::string::npos;
    return kind == "text" || value == kind;
}

/// Where a node stands, from the root on, for messages.
std::string placeOf(const pugi::xml_node& node) {
    std::string place;
    for (pugi::xml_node at = node; at.type() == pugi::node_element; at = at.parent())
        place = std::string("/") + at.name() + place;
    return place;
}

} // namespace

XmlRules::XmlRules(const std::filesystem::path& file) {
    std::ifstream in(file);
    if (!in)
        throw std::runtime_error("cannot read " + file.string());
    for (std::string line; std::getline(in, line);)
        if (!line.empty() && line[0] != '#')
            addLine(line);
}

void XmlRules::addLine(const std::string& line) {
    if (line[0] == '$') {
        const std::size_t equals = line.find(" = ");
        m_lists[line.substr(0, equals)] = line.substr(equals + 3);
        return;
    }
    const std::size_t arrow = line.find("->");
    if (arrow == std::string::npos)
        throw std::runtime_error("no rule: " + line);
    const std::vector<std::string> head = split(line.substr(0, arrow), ' ');
    Rule rule;
    for (std::size_t i = 1; i < head.size(); ++i)
        rule.attributes.push_back(parseAttribute(head[i]));
    addSteps(rule, line.substr(arrow + 2));
    if (!m_rules.emplace(head.at(0), rule).second)
        throw std::runtime_error("a second rule for " + head[0]);
}

XmlRules::Attribute XmlRules::parseAttribute(const std::string& word) const {
    const std::size_t equals = word.find('=');
    if (equals == std::string::npos || equals == 0)
        throw std::runtime_error("no attribute: " + word);
    Attribute attribute;
    attribute.isOptional = word[equals - 1] == '?';
    attribute.name = word.substr(0, attribute.isOptional ? equals - 1 : equals);
    std::string values = word.substr(equals + 1);
    if (values.starts_with('$'))
        values = m_lists.at(values);
    attribute.values = split(values, '|');
    return attribute;
}

void XmlRules::addSteps(Rule& rule, const std::string& content) {
    for (std::size_t i = 0; i < content.size();) {
        if (content[i] == ' ') {
            ++i;
            continue;
        }
        const char open = content[i];
        const bool isGroup = open == '{' || open == '(';
        const std::size_t end = isGroup ? content.find(open == '{' ? '}' : ')', i) + 1
                                        : std::min(content.find_first_of(" ?*", i), content.size());
        const std::string names = isGroup ? content.substr(i + 1, end - i - 2) : content.substr(i, end - i);
        const char mark = end < content.size() ? content[end] : ' ';
        Step step{split(names, open == '(' ? '|' : ' '), open == '{' || mark == '?' || mark == '*',
                  open == '{' || mark == '*'};
        if (names == "#text")
            rule.hasText = true;
        else
            rule.steps.push_back(step);
        i = end + (mark == '?' || mark == '*' ? 1 : 0);
    }
}

const XmlRules::Rule* XmlRules::ruleOf(const pugi::xml_node& node) const {
    const auto special = m_rules.find(std::string(node.parent().name()) + "/" + node.name());
    if (special != m_rules.end())
        return &special->second;
    const auto general = m_rules.find(node.name());
    return general == m_rules.end() ? nullptr : &general->second;
}

void XmlRules::check(const pugi::xml_node& node, std::vector<std::string>& faults) const {
    const Rule* rule = ruleOf(node);
    if (!rule) {
        faults.push_back(placeOf(node) + ": no rule knows this element");
        return;
    }
    checkAttributes(node, *rule, faults);
    checkChildren(node, *rule, faults);
    for (const pugi::xml_node& child : node.children())
        if (child.type() == pugi::node_element)
            check(child, faults);
}

void XmlRules::checkAttributes(const pugi::xml_node& node, const Rule& rule, std::vector<std::string>& faults) {
    std::set<std::string> seen;
    for (const pugi::xml_attribute& attribute : node.attributes()) {
        const std::string name = attribute.name();
        const std::string value = attribute.value();
        if (name.starts_with("xmlns"))
            continue;
        if (!seen.insert(name).second)
            faults.push_back(placeOf(node) + ": " + name + " stands twice");
        const auto known = std::find_if(rule.attributes.begin(), rule.attributes.end(),
                                        [&](const Attribute& item) { return item.name == name; });
        if (known == rule.attributes.end())
            faults.push_back(placeOf(node) + ": may not have " + name);
        else if (std::none_of(known->values.begin(), known->values.end(),
                              [&](const std::string& kind) { return fits(value, kind); }))
            faults.push_back(placeOf(node) + ": " + name + " may not be \"" + value + "\"");
    }
    for (const Attribute& attribute : rule.attributes)
        if (!attribute.isOptional && seen.count(attribute.name) == 0)
            faults.push_back(placeOf(node) + ": lacks " + attribute.name);
}

/// Follows all ways through the steps at once.
void XmlRules::checkChildren(const pugi::xml_node& node, const Rule& rule, std::vector<std::string>& faults) {
    const std::size_t end = rule.steps.size();
    // The steps that may come next; with a step all those that its being optional lets follow.
    std::set<std::size_t> next;
    const auto addWithFollowers = [&](std::set<std::size_t>& to, std::size_t step) {
        for (; to.insert(step).second && step < end && rule.steps[step].isOptional; ++step) {
        }
    };
    addWithFollowers(next, 0);
    for (const pugi::xml_node& child : node.children()) {
        const std::string name = child.name();
        if (child.type() == pugi::node_pcdata && !rule.hasText)
            faults.push_back(placeOf(node) + ": may not have text");
        if (child.type() != pugi::node_element)
            continue;
        std::set<std::size_t> after;
        for (const std::size_t step : next)
            if (step < end && std::count(rule.steps[step].names.begin(), rule.steps[step].names.end(), name) > 0)
                addWithFollowers(after, rule.steps[step].isRepeatable ? step : step + 1);
        if (after.empty()) {
            faults.push_back(placeOf(node) + ": may not have " + name + " there");
            return;
        }
        next = std::move(after);
    }
    if (next.count(end) == 0)
        faults.push_back(placeOf(node) + ": lacks " + rule.steps[*next.rbegin()].names.front());
}

} // namespace orvane::tests
