// SPDX-License-Identifier: MIT
#include "nodemapbuilder.h"

#include <cameraio/limits.h>
#include <genapi/nodes/numbers.h>

#include <algorithm>
#include <cctype>

using namespace GenApi;
using namespace OrvGenApi;
namespace Limits = OrvCameraIo::Limits;

namespace OrvDescription {

namespace {

bool isOneOf(std::string_view text, std::initializer_list<std::string_view> texts)
{
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

bool isRegister(std::string_view tag)
{
    return isOneOf(tag,
                   {"IntReg", "MaskedIntReg", "FloatReg", "StringReg", "Register", "StructEntry"});
}

/// Elements that refer to a node: "p" and a capital letter.
bool isReference(std::string_view tag)
{
    return tag.size() > 1 && tag[0] == 'p' && std::isupper(static_cast<unsigned char>(tag[1]));
}

int64_t toInt(std::string_view text)
{
    const std::string number(text);
    if (const auto value = integerFromText(number))
        return *value;
    const auto value = floatFromText(number);
    return value ? FormulaNumber(*value).toInteger() : 0;
}

double toReal(std::string_view text)
{
    if (const auto value = floatFromText(std::string(text)))
        return *value;
    return static_cast<double>(toInt(text));
}

EVisibility visibilityOf(std::string_view text)
{
    if (text == "Expert")
        return Expert;
    if (text == "Guru")
        return Guru;
    return text == "Invisible" ? Invisible : Beginner;
}

ECachingMode cachingModeOf(std::string_view text)
{
    if (text == "NoCache")
        return NoCache;
    return text == "WriteAround" ? WriteAround : WriteThrough;
}

EAccessMode accessModeOf(std::string_view text, EAccessMode fallback)
{
    static const std::pair<std::string_view, EAccessMode> modes[] = {
        {"RO", RO}, {"WO", WO}, {"RW", RW}, {"NA", NA}, {"NI", NI}};
    for (const auto &[name, mode] : modes) {
        if (text == name)
            return mode;
    }
    return fallback;
}

template<typename T>
std::vector<T> listOf(std::string_view text, T (*parse)(std::string_view))
{
    std::vector<T> values;
    std::size_t start = 0;
    while (start < text.size() && values.size() <= Limits::validValueCount) {
        const auto end = std::min(text.find_first_of("; ,\t\r\n", start), text.size());
        if (end > start)
            values.push_back(parse(text.substr(start, end - start)));
        start = end + 1;
    }
    return values;
}

NodeProperties propertiesOf(const DescriptionNode &description)
{
    NodeProperties properties;
    properties.name = description.name;
    properties.nameSpace = description.isStandard ? Standard : Custom;
    // In reverse order, because the first element of a kind is used.
    for (auto property = description.properties.rbegin(); property != description.properties.rend();
         ++property) {
        if (property->tag == "Visibility")
            properties.visibility = visibilityOf(property->text);
        else if (property->tag == "Cachable")
            properties.cachingMode = cachingModeOf(property->text);
        else if (property->tag == "PollingTime")
            properties.pollingTime = toInt(property->text);
        else if (property->tag == "Streamable")
            properties.streamable = property->text == "Yes";
        else if (property->tag == "IsDeprecated")
            properties.deprecated = property->text == "Yes";
    }
    return properties;
}

EnumEntryProperties entryOf(const DescriptionNode &description)
{
    EnumEntryProperties entry;
    entry.symbolic = description.symbolic;
    entry.value = toInt(description.text("Value"));
    if (description.find("NumericValue"))
        entry.numericValue = toReal(description.text("NumericValue"));
    entry.selfClearing = description.text("IsSelfClearing") == "Yes";
    return entry;
}

RegisterCodec::Format formatOf(const DescriptionNode &description)
{
    RegisterCodec::Format format;
    format.isBigEndian = description.text("Endianess") == "BigEndian";
    format.isBit0Highest = format.isBigEndian;
    format.isSigned = description.text("Sign") == "Signed";
    if (!isOneOf(description.tag, {"MaskedIntReg", "StructEntry"}))
        return format;
    format.isBitField = true;
    if (const DescriptionProperty *bit = description.find("Bit")) {
        format.firstBit = format.lastBit = toInt(bit->text);
        return format;
    }
    format.firstBit = toInt(description.text("LSB", "0"));
    format.lastBit = toInt(description.text("MSB", "31"));
    return format;
}

ConverterSource::Slope slopeOf(std::string_view text)
{
    if (text == "Increasing")
        return ConverterSource::Slope::Increasing;
    if (text == "Decreasing")
        return ConverterSource::Slope::Decreasing;
    return text == "Varying" ? ConverterSource::Slope::Varying : ConverterSource::Slope::Automatic;
}

std::unique_ptr<NumberSource> fixedSource(std::string_view text)
{
    return std::make_unique<FixedSource>(toReal(text), toInt(text));
}

} // namespace

NodeMapBuilder::NodeMapBuilder(NodeMap &map) : m_map(map), m_description(map.description()) {}

void NodeMapBuilder::build()
{
    m_byName.reserve(m_description.nodes().size());
    for (const DescriptionNode &description : m_description.nodes())
        makeNode(description);
    breakCategoryCycles();
    // Connecting a category may append a placeholder.
    const std::size_t described = m_map.m_links->size();
    for (std::size_t i = 0; i < described; ++i)
        connect((*m_map.m_links)[i]);
    ReferenceGraph graph(*m_map.m_links);
    for (const LimitRead &read : m_limitsRead)
        addLimitsRead(graph, read);
    graph.finish();
}

NodeLinks &NodeMapBuilder::newLinks(const DescriptionNode *description)
{
    NodeLinks &links = m_map.m_links->emplace_back();
    links.index = m_map.m_links->size() - 1;
    links.description = description;
    return links;
}

void NodeMapBuilder::adopt(NodeLinks &links, std::unique_ptr<Node> node)
{
    links.node = node.get();
    m_byName.emplace(node->name(), &links);
    m_map.adopt(std::move(node));
}

NodeLinks *NodeMapBuilder::linksOf(std::string_view name) const
{
    const auto found = m_byName.find(name);
    return found == m_byName.end() ? nullptr : found->second;
}

void NodeMapBuilder::makeNode(const DescriptionNode &description)
{
    if (NodeLinks *first = linksOf(description.name)) {
        // Two nodes have this name, and it is not clear which one is meant.
        if (first->description->tag != "Category" && description.tag != "EnumEntry")
            first->isUnusable = true;
        return;
    }
    NodeLinks &links = newLinks(&description);
    adopt(links, newNode(description, links));
}

std::unique_ptr<Node> NodeMapBuilder::newNode(const DescriptionNode &description, NodeLinks &links)
{
    const std::string_view tag = description.tag;
    NodeProperties properties = propertiesOf(description);
    if (tag == "Category")
        return std::make_unique<DescribedCategory>(links, m_map, properties);
    if (isOneOf(tag, {"Integer", "IntReg", "MaskedIntReg", "StructEntry", "IntSwissKnife",
                      "IntConverter"}))
        return std::make_unique<DescribedInteger>(links, m_map, properties);
    if (isOneOf(tag, {"Float", "FloatReg", "SwissKnife", "Converter"}))
        return std::make_unique<DescribedFloat>(links, m_map, properties);
    if (tag == "Boolean")
        return std::make_unique<DescribedBoolean>(links, m_map, properties);
    if (tag == "Enumeration")
        return std::make_unique<DescribedEnumeration>(links, m_map, properties);
    if (tag == "EnumEntry")
        return std::make_unique<DescribedEnumEntry>(links, m_map, properties, entryOf(description));
    if (tag == "Command")
        return std::make_unique<DescribedCommand>(links, m_map, properties);
    if (tag == "String" || tag == "StringReg")
        return std::make_unique<DescribedString>(links, m_map, properties);
    if (tag == "Register")
        return std::make_unique<DescribedRegister>(links, m_map, properties);
    return std::make_unique<PlainNode>(tag == "Port" ? intfIPort : intfIBase, links, m_map,
                                       properties);
}

NodeLinks *NodeMapBuilder::referenced(NodeLinks &links, std::string_view name)
{
    NodeLinks *other = linksOf(name);
    if (!other)
        links.isUnusable = true;
    return other;
}

NodeLinks *NodeMapBuilder::referencedBy(NodeLinks &links, std::string_view tag)
{
    const DescriptionProperty *property = links.description->find(tag);
    return property ? referenced(links, property->text) : nullptr;
}

Node *NodeMapBuilder::nodeReferencedBy(NodeLinks &links, std::string_view tag)
{
    const NodeLinks *other = referencedBy(links, tag);
    return other ? other->node : nullptr;
}

void NodeMapBuilder::connect(NodeLinks &links)
{
    const std::string_view tag = links.description->tag;
    connectPredicates(links);
    connectDependencies(links, links.description->properties);
    if (tag == "Category")
        return connectCategory(links);
    if (tag == "EnumEntry")
        connectEntry(links);
    if (isRegister(tag))
        connectRegister(links);
    connectNumber(links);
}

void NodeMapBuilder::connectPredicates(NodeLinks &links)
{
    links.isImplemented = referencedBy(links, "pIsImplemented");
    links.isAvailable = referencedBy(links, "pIsAvailable");
    links.isLocked = referencedBy(links, "pIsLocked");
    links.imposedAccess = accessModeOf(links.description->text("ImposedAccessMode"), RW);
}

void NodeMapBuilder::connectDependencies(NodeLinks &links, const Properties &properties)
{
    for (const DescriptionProperty &property : properties) {
        connectDependencies(links, property.properties());
        if (const NodeLinks *offset = linksOf(property.pOffset()))
            m_map.addDependency(*offset->node, *links.node);
        if (!isReference(property.tag) ||
            isOneOf(property.tag, {"pFeature", "pPort", "pAlias", "pCastAlias", "pError",
                                   "pBlockPolling", "pValueCopy"}))
            continue;
        const NodeLinks *other = linksOf(property.text);
        if (!other)
            continue;
        if (property.tag == "pSelected")
            m_map.addSelection(*links.node, *other->node);
        else
            m_map.addDependency(*other->node, *links.node);
    }
}

void NodeMapBuilder::connectEntry(NodeLinks &links)
{
    const NodeLinks *owner = linksOf(links.description->owner);
    auto *enumeration = owner ? dynamic_cast<EnumerationNode *>(owner->node) : nullptr;
    auto *entry = dynamic_cast<EnumEntryNode *>(links.node);
    if (!enumeration || !entry)
        return;
    enumeration->addEntry(*entry);
    m_map.addDependency(*entry, *enumeration);
}

// Categories

void NodeMapBuilder::connectCategory(NodeLinks &links)
{
    auto &category = dynamic_cast<CategoryNode &>(*links.node);
    for (const DescriptionProperty &property : links.description->properties) {
        if (property.tag != "pFeature" || property.text.empty() ||
            m_droppedFeatures.count({links.description->name, property.text}) != 0)
            continue;
        const NodeLinks *feature = linksOf(property.text);
        if (!feature) {
            NodeProperties properties;
            properties.name = property.text;
            NodeLinks &missing = newLinks(nullptr);
            missing.isUnusable = true;
            adopt(missing, std::make_unique<MissingFeature>(missing, m_map, properties));
            feature = &missing;
        }
        category.addFeature(*feature->node);
    }
}

/// The state of a category during the walk over all of them.
struct NodeMapBuilder::CategoryState
{
    bool isOpen = false;
    bool isDone = false;
    int depth = 0;        ///< the depth of its subcategories
    std::size_t rows = 0; ///< including those of its subcategories
};

void NodeMapBuilder::breakCategoryCycles()
{
    std::vector<CategoryState> states(m_map.m_links->size());
    for (const NodeLinks &links : *m_map.m_links) {
        if (links.description->tag == "Category" && !states[links.index].isDone)
            breakCategoryCycles(links, states);
    }
}

void NodeMapBuilder::breakCategoryCycles(const NodeLinks &first, std::vector<CategoryState> &states)
{
    std::vector<std::pair<const NodeLinks *, std::size_t>> open = {{&first, 0}};
    while (!open.empty()) {
        auto &[category, next] = open.back();
        CategoryState &state = states[category->index];
        state.isOpen = true;
        if (next == category->description->properties.size()) {
            state.isOpen = false;
            state.isDone = true;
            open.pop_back();
            continue;
        }
        const DescriptionProperty &property = category->description->properties[next++];
        if (property.tag != "pFeature")
            continue;
        ++state.rows;
        const NodeLinks *child = linksOf(property.text);
        if (!child || child->description->tag != "Category")
            continue;
        const CategoryState &inner = states[child->index];
        if (!inner.isOpen && !inner.isDone) {
            --state.rows;
            --next; // resume after the child
            open.emplace_back(child, 0);
        } else if (inner.isOpen || inner.depth + 1 >= Limits::categoryDepth ||
                   state.rows + inner.rows > Limits::nodeCount) {
            m_droppedFeatures.emplace(category->description->name, property.text);
        } else {
            state.rows += inner.rows;
            state.depth = std::max(state.depth, inner.depth + 1);
        }
    }
}

// Registers

void NodeMapBuilder::connectRegister(NodeLinks &links)
{
    const DescriptionNode &description = *links.description;
    links.reg = std::make_unique<RegisterAccess>(m_map, *m_map.m_registers, description.name,
                                                 links.node->properties().cachingMode,
                                                 accessModeOf(description.text("AccessMode"), RO));
    links.reg->format = formatOf(description);
    connectPlace(links, links.reg->place);

    // Data of the ports for chunks and events exist only with images.
    const DescriptionProperty *port = description.find("pPort");
    const NodeLinks *portLinks = port ? linksOf(port->text) : nullptr;
    if (!portLinks || !portLinks->description)
        return;
    for (const char *tag : {"ChunkID", "EventID", "pChunkID", "pEventID"}) {
        if (portLinks->description->find(tag))
            links.isUnusable = true;
    }
}

void NodeMapBuilder::connectPlace(NodeLinks &links, RegisterPlace &place)
{
    bool hasLength = false;
    for (const DescriptionProperty &property : links.description->properties) {
        if (property.tag == "Address") {
            place.add(static_cast<uint64_t>(toInt(property.text)));
        } else if (property.tag == "pAddress") {
            if (NodeLinks *address = referenced(links, property.text)) {
                links.valueChildren.push_back(address);
                place.add(*address->node);
            }
        } else if (property.tag == "IntSwissKnife") {
            const auto variables = connectVariables(links, property.properties());
            const auto formula =
                std::find_if(property.properties().begin(), property.properties().end(),
                             [](const DescriptionProperty &p) { return p.tag == "Formula"; });
            const bool isStated = formula != property.properties().end();
            place.add(newFormula(links, isStated ? formula->text : std::string_view(),
                                 property.properties(), variables));
        } else if (property.tag == "pIndex") {
            connectIndex(links, place, property);
        } else if (property.tag == "Length" && !hasLength) {
            hasLength = true;
            place.setLength(toInt(property.text));
        } else if (property.tag == "pLength") {
            if (NodeLinks *length = referenced(links, property.text)) {
                links.valueChildren.push_back(length);
                place.setLength(*length->node);
            }
        }
    }
}

void NodeMapBuilder::connectIndex(NodeLinks &links, RegisterPlace &place,
                                  const DescriptionProperty &property)
{
    NodeLinks *index = referenced(links, property.text);
    if (!index)
        return;
    links.valueChildren.push_back(index);
    std::optional<int64_t> offset;
    NodeLinks *offsetLinks = nullptr;
    if (!property.offset().empty()) {
        offset = toInt(property.offset());
    } else if (!property.pOffset().empty()) {
        offsetLinks = referenced(links, property.pOffset());
        if (offsetLinks)
            links.valueChildren.push_back(offsetLinks);
    }
    place.addIndex(*index->node, offset, offsetLinks ? offsetLinks->node : nullptr);
}

// Formulas

std::vector<Node *> NodeMapBuilder::connectVariables(NodeLinks &links, const Properties &properties)
{
    std::vector<Node *> variables;
    for (const DescriptionProperty &property : properties) {
        if (property.tag != "pVariable")
            continue;
        NodeLinks *variable = referenced(links, property.text);
        variables.push_back(variable ? variable->node : nullptr);
        if (variable)
            links.valueChildren.push_back(variable);
    }
    return variables;
}

std::unique_ptr<NodeFormula> NodeMapBuilder::newFormula(NodeLinks &links, std::string_view text,
                                                        const Properties &properties,
                                                        const std::vector<Node *> &variables,
                                                        std::string_view input)
{
    auto formula =
        std::make_unique<NodeFormula>(text, properties, variables, links.description->name, input);
    if (!formula->isUsable())
        links.isUnusable = true;
    for (const auto &[node, which] : formula->limitsRead())
        m_limitsRead.push_back({&links, linksOf(node->name()), which});
    return formula;
}

/// Adds the references that a query of a limit follows: those of the node, then those of the nodes
/// with its value.
void NodeMapBuilder::addLimitsRead(ReferenceGraph &graph, const LimitRead &read) const
{
    std::set<std::string_view> wanted = {read.which};
    const NodeLinks *limited = read.limited;
    for (int i = 0; limited && i < Limits::referenceDepth; ++i) {
        const DescriptionNode *description = limited->description;
        for (const char *which : {"Min", "Max", "Inc"}) {
            if (wanted.count(which) == 0 || !description)
                continue;
            const DescriptionProperty *reference = description->find(std::string("p") + which);
            if (NodeLinks *limit = reference ? linksOf(reference->text) : nullptr)
                graph.addLimit(*read.reader, *limit);
            if (reference || description->find(which))
                wanted.erase(which);
        }
        if (wanted.empty())
            return;
        const auto &written = limited->writtenChildren;
        for (NodeLinks *child : limited->valueChildren) {
            if (std::find(written.begin(), written.end(), child) == written.end())
                graph.addLimit(*read.reader, *child);
        }
        if (description && isOneOf(description->tag, {"Converter", "IntConverter"}))
            wanted.insert({"Min", "Max"}); // the conversion may swap them
        limited = written.empty() ? nullptr : written.front();
    }
}

// Numbers

std::unique_ptr<NumberSource> NodeMapBuilder::newFormulaSource(NodeLinks &links)
{
    const DescriptionNode &description = *links.description;
    const std::vector<Node *> variables = connectVariables(links, description.properties);
    auto formula =
        newFormula(links, description.text("Formula"), description.properties, variables);
    std::vector<Node *> known = variables;
    known.erase(std::remove(known.begin(), known.end(), nullptr), known.end());
    return std::make_unique<FormulaSource>(std::move(formula), std::move(known),
                                           description.tag == "IntSwissKnife");
}

std::unique_ptr<NumberSource> NodeMapBuilder::newConverterSource(NodeLinks &links)
{
    const DescriptionNode &description = *links.description;
    NodeLinks *value = referencedBy(links, "pValue");
    if (!value)
        return nullptr;
    const std::vector<Node *> variables = connectVariables(links, description.properties);
    links.valueChildren.push_back(value);
    links.writtenChildren = {value};
    const auto formula = [&](const char *tag, const char *input) {
        return newFormula(links, description.text(tag), description.properties, variables, input);
    };
    return std::make_unique<ConverterSource>(
        *value->node, formula("FormulaFrom", "TO"), formula("FormulaTo", "FROM"),
        slopeOf(description.text("Slope")), description.text("IsLinear") == "Yes",
        description.tag == "IntConverter");
}

std::unique_ptr<NumberSource> NodeMapBuilder::newIndexedSource(NodeLinks &links)
{
    NodeLinks *index = referencedBy(links, "pIndex");
    if (!index)
        return nullptr;
    links.valueChildren.push_back(index);
    auto source = std::make_unique<IndexedSource>(*index->node);
    const auto referencing = [&](const DescriptionProperty &property) {
        std::unique_ptr<NumberSource> result;
        if (NodeLinks *value = referenced(links, property.text)) {
            links.valueChildren.push_back(value);
            links.writtenChildren.push_back(value);
            result = std::make_unique<ReferenceSource>(*value->node, std::vector<Node *>());
        }
        return result;
    };
    for (const DescriptionProperty &property : links.description->properties) {
        if (property.tag == "ValueIndexed")
            source->add(toInt(property.index()), fixedSource(property.text));
        else if (property.tag == "pValueIndexed")
            source->add(toInt(property.index()), referencing(property));
        else if (property.tag == "ValueDefault")
            source->setDefault(fixedSource(property.text));
        else if (property.tag == "pValueDefault")
            source->setDefault(referencing(property));
    }
    return source;
}

std::unique_ptr<NumberSource> NodeMapBuilder::newReferenceSource(NodeLinks &links)
{
    NodeLinks *value = referencedBy(links, "pValue");
    if (!value)
        return nullptr;
    links.valueChildren = {value};
    links.writtenChildren = {value};
    std::vector<Node *> copies;
    for (const DescriptionProperty &property : links.description->properties) {
        if (property.tag != "pValueCopy")
            continue;
        if (NodeLinks *copy = referenced(links, property.text)) {
            links.writtenChildren.push_back(copy);
            copies.push_back(copy->node);
        }
    }
    return std::make_unique<ReferenceSource>(*value->node, std::move(copies));
}

std::unique_ptr<NumberSource> NodeMapBuilder::newSource(NodeLinks &links)
{
    const DescriptionNode &description = *links.description;
    const std::string_view tag = description.tag;
    if (isRegister(tag))
        return std::make_unique<RegisterSource>(*links.reg, tag == "FloatReg");
    if (isOneOf(tag, {"SwissKnife", "IntSwissKnife"}))
        return newFormulaSource(links);
    if (isOneOf(tag, {"Converter", "IntConverter"}))
        return newConverterSource(links);
    if (description.find("pIndex"))
        return newIndexedSource(links);
    if (description.find("pValue"))
        return newReferenceSource(links);
    const DescriptionProperty *value = description.find("Value");
    if (!value || tag == "Command")
        return nullptr;
    return fixedSource(value->text);
}

template<typename Described, typename T>
void NodeMapBuilder::connectLimits(NodeLinks &links, Described &node, T (*parse)(std::string_view))
{
    const DescriptionNode &description = *links.description;
    const bool isLimited = std::any_of(
        description.properties.begin(), description.properties.end(), [](const auto &property) {
            return isOneOf(property.tag,
                           {"Min", "pMin", "Max", "pMax", "Inc", "pInc", "ValidValueSet"});
        });
    if (!isLimited)
        return;
    auto limits = std::make_unique<StatedLimits<T>>();
    const auto connectLimit = [&](StatedLimit<T> &limit, const char *tag) {
        if (const DescriptionProperty *value = description.find(tag))
            limit.value = parse(value->text);
        if (NodeLinks *other = referencedBy(links, std::string("p") + tag)) {
            limit.node = other->node;
            links.limitChildren.push_back(other);
        }
    };
    connectLimit(limits->min, "Min");
    connectLimit(limits->max, "Max");
    connectLimit(limits->inc, "Inc");
    limits->validValues = listOf(description.text("ValidValueSet"), parse);
    links.isUnusable |= limits->validValues.size() > Limits::validValueCount;
    node.limits = std::move(limits);
}

void NodeMapBuilder::connectNumber(NodeLinks &links)
{
    const DescriptionNode &description = *links.description;
    const auto give = [&](auto &node) {
        auto source = newSource(links);
        if (!source)
            links.isUnusable = true;
        node.setSource(std::move(source));
    };
    if (auto *integer = dynamic_cast<DescribedInteger *>(links.node)) {
        give(*integer);
        connectLimits(links, *integer, toInt);
    } else if (auto *real = dynamic_cast<DescribedFloat *>(links.node)) {
        give(*real);
        connectLimits(links, *real, toReal);
    } else if (auto *enumeration = dynamic_cast<DescribedEnumeration *>(links.node)) {
        give(*enumeration);
    } else if (auto *boolean = dynamic_cast<DescribedBoolean *>(links.node)) {
        boolean->onValue = toInt(description.text("OnValue", "1"));
        boolean->offValue = toInt(description.text("OffValue", "0"));
        give(*boolean);
    } else if (auto *command = dynamic_cast<DescribedCommand *>(links.node)) {
        if (const DescriptionProperty *value = description.find("CommandValue"))
            command->commandValue.value = toInt(value->text);
        command->commandValue.node = nodeReferencedBy(links, "pCommandValue");
        give(*command);
    } else if (auto *text = dynamic_cast<DescribedString *>(links.node)) {
        connectString(links, *text);
    }
}

void NodeMapBuilder::connectString(NodeLinks &links, DescribedString &node)
{
    if (const DescriptionProperty *value = links.description->find("Value"))
        node.constant = std::string(value->text);
    NodeLinks *value = referencedBy(links, "pValue");
    if (!value)
        return;
    node.reference = dynamic_cast<StringNode *>(value->node);
    if (!node.reference) {
        links.isUnusable = true;
        return;
    }
    links.valueChildren = {value};
    links.writtenChildren = {value};
}

} // namespace OrvDescription
