// SPDX-License-Identifier: MIT
#include "description.h"

#include <Base/GCException.h>

#include <genapi/nodes/numbers.h>

#include <libxml/parser.h>
#include <libxml/tree.h>

#include <climits>
#include <cstring>
#include <memory>
#include <mutex>

using OrvGenApi::trimmed;

namespace OrvDescription {

namespace {

std::string text(const xmlChar *characters)
{
    return characters ? reinterpret_cast<const char *>(characters) : "";
}

std::string taken(xmlChar *characters)
{
    std::string result = text(characters);
    xmlFree(characters);
    return result;
}

std::string attribute(xmlNode *element, const char *name)
{
    return taken(xmlGetNoNsProp(element, BAD_CAST name));
}

bool isElement(const xmlNode *node)
{
    return node->type == XML_ELEMENT_NODE;
}

DescriptionProperty propertyOf(xmlNode *element)
{
    DescriptionProperty property;
    property.tag = text(element->name);
    property.name = attribute(element, "Name");
    property.index = attribute(element, "Index");
    property.offset = attribute(element, "Offset");
    property.pOffset = attribute(element, "pOffset");
    bool hasElements = false;
    for (xmlNode *child = element->children; child; child = child->next) {
        if (!isElement(child))
            continue;
        hasElements = true;
        // No property holds another one of its own kind; deeper nesting is an extension of some
        // maker's that nobody here reads.
        if (property.tag == "IntSwissKnife")
            property.properties.push_back(propertyOf(child));
    }
    if (!hasElements)
        property.text = trimmed(taken(xmlNodeGetContent(element)));
    return property;
}

class Reader
{
public:
    explicit Reader(std::vector<DescriptionNode> &nodes) : m_nodes(nodes) {}

    void readChildren(xmlNode *parent)
    {
        for (xmlNode *child = parent->children; child; child = child->next) {
            if (!isElement(child))
                continue;
            const std::string tag = text(child->name);
            if (tag == "Group")
                readChildren(child);
            else if (tag == "StructReg")
                readStructure(child);
            else
                readNode(child);
        }
    }

private:
    DescriptionNode begun(xmlNode *element)
    {
        DescriptionNode node;
        node.tag = text(element->name);
        node.name = attribute(element, "Name");
        node.isStandard = attribute(element, "NameSpace") == "Standard";
        return node;
    }

    void readNode(xmlNode *element)
    {
        DescriptionNode node = begun(element);
        if (node.name.empty())
            return;
        std::vector<DescriptionNode> entries;
        for (xmlNode *child = element->children; child; child = child->next) {
            if (!isElement(child))
                continue;
            if (text(child->name) == "EnumEntry")
                entries.push_back(entryOf(child, node.name));
            else
                node.properties.push_back(propertyOf(child));
        }
        m_nodes.push_back(std::move(node));
        for (DescriptionNode &entry : entries)
            m_nodes.push_back(std::move(entry));
    }

    DescriptionNode entryOf(xmlNode *element, const std::string &enumeration)
    {
        DescriptionNode entry = begun(element);
        entry.owner = enumeration;
        entry.symbolic = entry.name;
        entry.name = "EnumEntry_" + enumeration + "_" + entry.symbolic;
        for (xmlNode *child = element->children; child; child = child->next) {
            if (!isElement(child))
                continue;
            DescriptionProperty property = propertyOf(child);
            if (property.tag == "Symbolic" && !property.text.empty())
                entry.symbolic = property.text;
            entry.properties.push_back(std::move(property));
        }
        return entry;
    }

    void readStructure(xmlNode *element)
    {
        std::vector<DescriptionProperty> common;
        std::vector<DescriptionNode> entries;
        for (xmlNode *child = element->children; child; child = child->next) {
            if (!isElement(child))
                continue;
            if (text(child->name) != "StructEntry") {
                common.push_back(propertyOf(child));
                continue;
            }
            DescriptionNode entry = begun(child);
            for (xmlNode *grandchild = child->children; grandchild; grandchild = grandchild->next) {
                if (isElement(grandchild))
                    entry.properties.push_back(propertyOf(grandchild));
            }
            if (!entry.name.empty())
                entries.push_back(std::move(entry));
        }
        for (DescriptionNode &entry : entries) {
            entry.properties.insert(entry.properties.end(), common.begin(), common.end());
            m_nodes.push_back(std::move(entry));
        }
    }

    std::vector<DescriptionNode> &m_nodes;
};

[[noreturn]] void fail(const std::string &source, const std::string &why)
{
    throw GenICam::RuntimeException((source + ": " + why).c_str(), __FILE__, __LINE__);
}

} // namespace

const DescriptionProperty *DescriptionNode::find(const char *wanted) const
{
    for (const DescriptionProperty &property : properties) {
        if (property.tag == wanted)
            return &property;
    }
    return nullptr;
}

std::string DescriptionNode::text(const char *wanted, const std::string &fallback) const
{
    const DescriptionProperty *property = find(wanted);
    return property ? property->text : fallback;
}

Description::Description(const char *xml, std::size_t size, const std::string &source)
{
    static std::once_flag initialised;
    std::call_once(initialised, [] { xmlInitParser(); });

    if (size == 0)
        fail(source, "the description is empty");
    if (size > INT_MAX)
        fail(source, "the description is too large");

    const std::unique_ptr<xmlParserCtxt, void (*)(xmlParserCtxt *)> parser(xmlNewParserCtxt(),
                                                                           xmlFreeParserCtxt);
    const std::unique_ptr<xmlDoc, void (*)(xmlDoc *)> document(
        xmlCtxtReadMemory(parser.get(), xml, static_cast<int>(size), nullptr, nullptr,
                          XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_NONET |
                              XML_PARSE_NOCDATA),
        xmlFreeDoc);
    if (!document) {
        const xmlError *error = xmlCtxtGetLastError(parser.get());
        if (!error || !error->message)
            fail(source, "this is not XML");
        fail(source, "line " + std::to_string(error->line) + ": " + trimmed(error->message));
    }

    xmlNode *root = xmlDocGetRootElement(document.get());
    if (!root || text(root->name) != "RegisterDescription")
        fail(source, "this is no GenICam device description");
    m_modelName = attribute(root, "ModelName");
    Reader(m_nodes).readChildren(root);
}

} // namespace OrvDescription
