// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace OrvDescription {

/// One element inside a node of a description, for example `<pVariable Name="X">Width</pVariable>`.
struct DescriptionProperty
{
    std::string tag;
    std::string name;                            ///< the attribute "Name"
    std::string index;                           ///< the attribute "Index"
    std::string offset;                          ///< the attribute "Offset"
    std::string pOffset;                         ///< the attribute "pOffset"
    std::string text;                            ///< without surrounding blanks
    std::vector<DescriptionProperty> properties; ///< of an address formula written in place
};

/// One node of a description: its element, name and properties, in the order of the file.
struct DescriptionNode
{
    std::string tag;
    std::string name;
    bool isStandard = false;
    std::string owner;    ///< of an enumeration's entry: the enumeration's name
    std::string symbolic; ///< of an enumeration's entry
    std::vector<DescriptionProperty> properties;

    /// The first property of that tag, or null.
    const DescriptionProperty *find(const char *wanted) const;

    /// Its text, or the fallback.
    std::string text(const char *wanted, const std::string &fallback = {}) const;
};

/// A GenICam device description as it is written: what it says of each node, nothing computed.
///
/// The engine that evaluates descriptions leaves out some elements and hands out some lists
/// reversed; whatever depends on the order of the file, and the references between nodes, are taken
/// from here.
class Description
{
public:
    /// Throws `RuntimeException` when the text is no device description; the message is one line
    /// and begins with `source` and, where known, the line number.
    Description(const char *xml, std::size_t size, const std::string &source);

    const std::string &modelName() const { return m_modelName; }

    /// Entries of enumerations directly behind their enumeration, entries of structured registers
    /// in place of the structure, with the structure's properties behind their own.
    const std::vector<DescriptionNode> &nodes() const { return m_nodes; }

private:
    std::string m_modelName;
    std::vector<DescriptionNode> m_nodes;
};

} // namespace OrvDescription
