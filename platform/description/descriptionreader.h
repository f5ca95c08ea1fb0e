// SPDX-License-Identifier: MIT
#pragma once

#include "description.h"

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

struct _xmlParserCtxt;

namespace OrvDescription {

/// Parses the text of a description into a `Description`, in one pass and without an element tree.
class DescriptionReader
{
public:
    DescriptionReader(Description &description, const std::string &source);

    /// Throws what the constructor of `Description` throws.
    void read();

private:
    /// Callbacks of libxml2.
    struct Callbacks;

    enum class Kind {
        Container, ///< of nodes
        Structure, ///< registers at one address
        Node,
        Entry, ///< a node inside an enumeration or a structure
        Property,
        Ignored
    };

    /// An open element.
    struct Element
    {
        Kind kind = Kind::Ignored;
        bool hasElements = false;
        std::string_view tag;
        DescriptionExtras extras; ///< of a property
    };

    using Attributes = const unsigned char **;

    void startElement(std::string_view tag, int count, Attributes attributes);
    void endElement();
    Kind kindOf(std::string_view tag, std::string_view name) const;
    void startDescription(std::string_view tag, int count, Attributes attributes);
    void startNode(std::string_view tag, int count, Attributes attributes);
    void startEntry(std::string_view tag, int count, Attributes attributes);
    void startProperty(Element &element, int count, Attributes attributes);
    void endProperty(const Element &element);
    void endStructure();
    void endNode();
    void append(DescriptionNode &node);

    std::string_view attribute(int count, Attributes attributes, const char *name);
    std::string_view keep(std::string_view text);
    std::string_view keepTrimmed(std::string_view text);
    void requireRoot() const;
    void stop(const std::string &why);

    Description &m_description;
    const std::string &m_source;
    _xmlParserCtxt *m_parser = nullptr;
    std::string m_failure;
    std::vector<Element> m_elements;
    std::string m_text; ///< of the innermost open element
    std::vector<DescriptionNode>
        m_pending; ///< a node and its entries, or the entries of a structure
    std::vector<DescriptionProperty> m_common; ///< of a structure's entries
    std::size_t m_properties = 0;
    std::unordered_set<std::string_view> m_known; ///< common short texts, which are stored once
};

} // namespace OrvDescription
