// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/Types.h>

#include <cstddef>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace OrvDescription {

struct DescriptionProperty;

/// Properties that few elements of a node have.
struct DescriptionExtras
{
    std::string_view name;                       ///< the attribute "Name"
    std::string_view index;                      ///< the attribute "Index"
    std::string_view offset;                     ///< the attribute "Offset"
    std::string_view pOffset;                    ///< the attribute "pOffset"
    std::vector<DescriptionProperty> properties; ///< of an address formula inside the element
};

/// One element inside a node of a description, for example `<pVariable Name="X">Width</pVariable>`.
struct DescriptionProperty
{
    std::string_view tag;
    std::string_view text; ///< without surrounding white space
    const DescriptionExtras *extras = nullptr;

    std::string_view name() const { return extras ? extras->name : std::string_view(); }
    std::string_view index() const { return extras ? extras->index : std::string_view(); }
    std::string_view offset() const { return extras ? extras->offset : std::string_view(); }
    std::string_view pOffset() const { return extras ? extras->pOffset : std::string_view(); }
    const std::vector<DescriptionProperty> &properties() const;
};

/// One node of a description: its element, name and properties, in the order of the file.
struct DescriptionNode
{
    std::string_view tag;
    std::string_view name;
    bool isStandard = false;
    std::string_view owner;    ///< of an enumeration's entry: the enumeration's name
    std::string_view symbolic; ///< of an enumeration's entry
    std::vector<DescriptionProperty> properties;

    /// The first property of that tag, or null.
    const DescriptionProperty *find(std::string_view wanted) const;

    /// The text of that property, or the fallback.
    std::string_view text(std::string_view wanted, std::string_view fallback = {}) const;
};

/// A parsed GenICam device description: the properties of each node, without any evaluation. It is
/// immutable, so that node maps of several cameras and threads can share it. All string views refer
/// to its own memory.
class Description
{
public:
    /// Throws `RuntimeException` when the text is not a device description or exceeds
    /// `OrvCameraIo::Limits`; the message is one line and begins with `source` and, if known, the
    /// line number. A document type definition is refused, so there are only predefined entities,
    /// and nothing outside of the text is read.
    Description(std::string_view xml, const std::string &source);
    Description(const Description &) = delete;
    Description &operator=(const Description &) = delete;

    /// Returns a description in use with the same text, otherwise a new one. Throws as above.
    static std::shared_ptr<const Description> shared(std::string_view xml,
                                                     const std::string &source);

    /// The original text.
    const std::string &xml() const { return m_xml; }

    std::string_view modelName() const { return m_modelName; }
    int schemaMajorVersion() const { return m_schemaMajorVersion; }
    int schemaMinorVersion() const { return m_schemaMinorVersion; }

    /// The entries of an enumeration follow it; the entries of a structured register replace it,
    /// with its properties after their own.
    const std::vector<DescriptionNode> &nodes() const { return m_nodes; }

private:
    friend class DescriptionReader;

    std::string_view keep(std::string_view text);

    const std::string m_xml;
    std::string_view m_modelName;
    int m_schemaMajorVersion = 1;
    int m_schemaMinorVersion = 1;
    std::vector<DescriptionNode> m_nodes;
    std::deque<DescriptionExtras> m_extras;
    std::vector<std::unique_ptr<char[]>> m_blocks; ///< of texts
    std::size_t m_blockUsed = 0;
};

} // namespace OrvDescription
