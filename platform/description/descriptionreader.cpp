// SPDX-License-Identifier: MIT
#include "descriptionreader.h"

#include <Base/GCException.h>

#include <cameraio/limits.h>
#include <genapi/nodes/numbers.h>

#include <libxml/parser.h>
#include <libxml/parserInternals.h>

#include <algorithm>
#include <cstring>
#include <mutex>

namespace Limits = OrvCameraIo::Limits;

namespace OrvDescription {

namespace {

std::string_view view(const xmlChar *text)
{
    return text ? std::string_view(reinterpret_cast<const char *>(text)) : std::string_view();
}

std::string oneLine(const std::string &text)
{
    std::string result = OrvGenApi::trimmed(text);
    std::replace(result.begin(), result.end(), '\n', ' ');
    return result;
}

[[noreturn]] void fail(const std::string &source, const std::string &why)
{
    throw GenICam::RuntimeException((source + ": " + why).c_str(), __FILE__, __LINE__);
}

int toVersion(std::string_view text)
{
    const auto value = OrvGenApi::integerFromText(std::string(text));
    return value && *value >= 0 && *value < 1000 ? static_cast<int>(*value) : 1;
}

/// Suppresses messages that libxml2 prints itself when no parser is involved, for instance about
/// encodings.
class Quiet
{
public:
    Quiet() : m_handler(xmlStructuredError), m_context(xmlStructuredErrorContext)
    {
        xmlSetStructuredErrorFunc(nullptr, [](void *, auto *) {});
    }
    ~Quiet() { xmlSetStructuredErrorFunc(m_context, m_handler); }
    Quiet(const Quiet &) = delete;
    Quiet &operator=(const Quiet &) = delete;

private:
    const xmlStructuredErrorFunc m_handler;
    void *const m_context;
};

} // namespace

struct DescriptionReader::Callbacks
{
    static DescriptionReader &reader(void *context)
    {
        return *static_cast<DescriptionReader *>(context);
    }

    static void startElement(void *context, const xmlChar *name, const xmlChar *, const xmlChar *,
                             int, const xmlChar **, int count, int, const xmlChar **attributes)
    {
        reader(context).startElement(view(name), count, attributes);
    }

    static void endElement(void *context, const xmlChar *, const xmlChar *, const xmlChar *)
    {
        reader(context).endElement();
    }

    static void characters(void *context, const xmlChar *text, int length)
    {
        reader(context).m_text.append(reinterpret_cast<const char *>(text),
                                      static_cast<std::size_t>(length));
    }

    static void documentType(void *context, const xmlChar *, const xmlChar *, const xmlChar *)
    {
        reader(context).stop("a document type definition is not allowed");
    }

    static xmlSAXHandler all()
    {
        xmlSAXHandler handler;
        std::memset(&handler, 0, sizeof handler);
        handler.initialized = XML_SAX2_MAGIC;
        handler.startElementNs = startElement;
        handler.endElementNs = endElement;
        handler.characters = characters;
        handler.ignorableWhitespace = characters;
        handler.cdataBlock = characters;
        handler.internalSubset = documentType;
        // Errors are fetched at the end; without a handler libxml2 would print them.
        handler.serror = [](void *, auto *) {};
        return handler;
    }
};

DescriptionReader::DescriptionReader(Description &description, const std::string &source)
    : m_description(description), m_source(source)
{
}

void DescriptionReader::read()
{
    static std::once_flag initialised;
    std::call_once(initialised, [] { xmlInitParser(); });

    const std::string &xml = m_description.m_xml;
    if (xml.empty())
        fail(m_source, "the description is empty");
    if (xml.size() > Limits::descriptionSize)
        fail(m_source, "the description is too large");

    const Quiet quiet;
    const std::unique_ptr<xmlParserCtxt, void (*)(xmlParserCtxt *)> parser(
        xmlCreateMemoryParserCtxt(xml.data(), static_cast<int>(xml.size())), xmlFreeParserCtxt);
    if (!parser)
        fail(m_source, "this is not XML");
    m_parser = parser.get();
    // Only predefined entities, because there are no others.
    xmlCtxtUseOptions(m_parser, XML_PARSE_NONET | XML_PARSE_NOENT);
    *m_parser->sax = Callbacks::all();
    m_parser->userData = this;
    xmlParseDocument(m_parser);
    if (!m_failure.empty())
        fail(m_source, m_failure);
    if (m_parser->wellFormed)
        return requireRoot();
    const xmlError *error = xmlCtxtGetLastError(m_parser);
    if (!error || !error->message)
        fail(m_source, "this is not XML");
    fail(m_source, "line " + std::to_string(error->line) + ": " + oneLine(error->message));
}

void DescriptionReader::requireRoot() const
{
    const auto &nodes = m_description.m_nodes;
    const auto root = std::find_if(nodes.begin(), nodes.end(),
                                   [](const DescriptionNode &node) { return node.name == "Root"; });
    if (root == nodes.end() || root->tag != "Category")
        fail(m_source, "the description has no category 'Root'");
}

void DescriptionReader::stop(const std::string &why)
{
    if (!m_failure.empty())
        return;
    m_failure = "line " + std::to_string(m_parser->input ? m_parser->input->line : 0) + ": " + why;
    xmlStopParser(m_parser);
}

std::string_view DescriptionReader::keep(std::string_view text)
{
    constexpr std::size_t longestCommonText = 48;
    if (text.size() > longestCommonText)
        return m_description.keep(text);
    const auto known = m_known.find(text);
    return known != m_known.end() ? *known : *m_known.insert(m_description.keep(text)).first;
}

std::string_view DescriptionReader::keepTrimmed(std::string_view text)
{
    const char *const blanks = " \t\r\n";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return keep(text.substr(first, text.find_last_not_of(blanks) - first + 1));
}

std::string_view DescriptionReader::attribute(int count, Attributes attributes, const char *name)
{
    // Each attribute has five pointers: name, prefix, namespace, and begin and end of its value.
    for (int i = 0; i < count; ++i, attributes += 5) {
        if (!attributes[1] && view(attributes[0]) == name)
            return keep({reinterpret_cast<const char *>(attributes[3]),
                         static_cast<std::size_t>(attributes[4] - attributes[3])});
    }
    return {};
}

DescriptionReader::Kind DescriptionReader::kindOf(std::string_view tag, std::string_view name) const
{
    const Element &parent = m_elements.back();
    switch (parent.kind) {
    case Kind::Container:
        if (tag == "Group")
            return Kind::Container;
        if (tag == "StructReg")
            return Kind::Structure;
        return name.empty() ? Kind::Ignored : Kind::Node;
    case Kind::Structure:
        if (tag != "StructEntry")
            return Kind::Property;
        return name.empty() ? Kind::Ignored : Kind::Entry;
    case Kind::Node:
        return tag == "EnumEntry" ? Kind::Entry : Kind::Property;
    case Kind::Entry:
        return Kind::Property;
    case Kind::Property:
        // A property does not contain another one of its own kind; deeper nesting is a vendor's
        // extension and is ignored.
        // extension and is not read.
        return parent.tag == "IntSwissKnife" ? Kind::Property : Kind::Ignored;
    case Kind::Ignored:
        break;
    }
    return Kind::Ignored;
}

void DescriptionReader::startElement(std::string_view tag, int count, Attributes attributes)
{
    if (!m_failure.empty())
        return;
    if (m_elements.size() == static_cast<std::size_t>(Limits::elementDepth))
        return stop("there are too many elements within each other");
    m_text.clear();
    Element element;
    element.tag = keep(tag);
    if (m_elements.empty()) {
        element.kind = Kind::Container;
        startDescription(tag, count, attributes);
    } else {
        m_elements.back().hasElements = true;
        element.kind = kindOf(tag, attribute(count, attributes, "Name"));
    }
    if (element.kind == Kind::Node)
        startNode(element.tag, count, attributes);
    else if (element.kind == Kind::Entry)
        startEntry(element.tag, count, attributes);
    else if (element.kind == Kind::Property)
        startProperty(element, count, attributes);
    m_elements.push_back(std::move(element));
}

void DescriptionReader::startDescription(std::string_view tag, int count, Attributes attributes)
{
    if (tag != "RegisterDescription") {
        m_failure = "this is no GenICam device description";
        xmlStopParser(m_parser);
        return;
    }
    m_description.m_modelName = attribute(count, attributes, "ModelName");
    m_description.m_schemaMajorVersion =
        toVersion(attribute(count, attributes, "SchemaMajorVersion"));
    m_description.m_schemaMinorVersion =
        toVersion(attribute(count, attributes, "SchemaMinorVersion"));
}

void DescriptionReader::startNode(std::string_view tag, int count, Attributes attributes)
{
    if (m_description.m_nodes.size() + m_pending.size() >= Limits::nodeCount)
        return stop("there are too many nodes");
    DescriptionNode node;
    node.tag = tag;
    node.name = attribute(count, attributes, "Name");
    node.isStandard = attribute(count, attributes, "NameSpace") == "Standard";
    m_pending.push_back(std::move(node));
}

void DescriptionReader::startEntry(std::string_view tag, int count, Attributes attributes)
{
    startNode(tag, count, attributes);
    if (tag != "EnumEntry" || !m_failure.empty())
        return;
    if (m_pending.size() > Limits::entryCount + 1)
        return stop("there are too many entries in an enumeration");
    DescriptionNode &entry = m_pending.back();
    entry.owner = m_pending.front().name;
    entry.symbolic = entry.name;
    entry.name = m_description.keep("EnumEntry_" + std::string(entry.owner) + "_" +
                                    std::string(entry.symbolic));
}

void DescriptionReader::startProperty(Element &element, int count, Attributes attributes)
{
    if (count == 0)
        return;
    element.extras.name = attribute(count, attributes, "Name");
    element.extras.index = attribute(count, attributes, "Index");
    element.extras.offset = attribute(count, attributes, "Offset");
    element.extras.pOffset = attribute(count, attributes, "pOffset");
}

void DescriptionReader::endElement()
{
    if (!m_failure.empty())
        return;
    const Element element = std::move(m_elements.back());
    m_elements.pop_back();
    if (element.kind == Kind::Property)
        endProperty(element);
    else if (element.kind == Kind::Node)
        endNode();
    else if (element.kind == Kind::Structure)
        endStructure();
}

void DescriptionReader::endProperty(const Element &element)
{
    if (++m_properties > Limits::elementCount)
        return stop("there are too many elements");
    DescriptionProperty property;
    property.tag = element.tag;
    if (!element.hasElements)
        property.text = keepTrimmed(m_text);
    const DescriptionExtras &extras = element.extras;
    if (!extras.name.empty() || !extras.index.empty() || !extras.offset.empty() ||
        !extras.pOffset.empty() || !extras.properties.empty()) {
        m_description.m_extras.push_back(extras);
        property.extras = &m_description.m_extras.back();
    }
    Element &parent = m_elements.back();
    switch (parent.kind) {
    case Kind::Structure:
        m_common.push_back(property);
        break;
    case Kind::Property:
        parent.extras.properties.push_back(property);
        break;
    case Kind::Entry:
        if (property.tag == "Symbolic" && !property.text.empty())
            m_pending.back().symbolic = property.text;
        m_pending.back().properties.push_back(property);
        break;
    default:
        m_pending.front().properties.push_back(property);
    }
}

void DescriptionReader::endNode()
{
    for (DescriptionNode &node : m_pending)
        append(node);
    m_pending.clear();
}

void DescriptionReader::endStructure()
{
    m_properties += m_common.size() * m_pending.size();
    if (m_properties > Limits::elementCount)
        return stop("there are too many elements");
    for (DescriptionNode &entry : m_pending) {
        entry.properties.insert(entry.properties.end(), m_common.begin(), m_common.end());
        append(entry);
    }
    m_pending.clear();
    m_common.clear();
}

void DescriptionReader::append(DescriptionNode &node)
{
    node.properties.shrink_to_fit();
    m_description.m_nodes.push_back(std::move(node));
}

} // namespace OrvDescription
