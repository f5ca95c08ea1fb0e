// SPDX-License-Identifier: MIT
#include "nodemapbuilder.h"

#include <genapi/nodes/numbers.h>

#include <arv.h>

#include <algorithm>
#include <cctype>
#include <functional>
#include <set>

using namespace GenApi;
using namespace OrvGenApi;

namespace OrvDescription {

namespace {

bool isRegister(const std::string &tag)
{
    static const std::set<std::string> tags = {"IntReg",    "MaskedIntReg", "FloatReg",
                                               "StringReg", "Register",     "StructEntry"};
    return tags.count(tag) != 0;
}

/// Elements that name a node: "p" and a capital.
bool isReference(const std::string &tag)
{
    return tag.size() > 1 && tag[0] == 'p' && std::isupper(static_cast<unsigned char>(tag[1]));
}

int64_t toInt(const std::string &text)
{
    return integerFromText(text).value_or(0);
}

double toReal(const std::string &text)
{
    if (const auto value = floatFromText(text))
        return *value;
    return static_cast<double>(toInt(text));
}

EVisibility visibilityOf(const std::string &text)
{
    if (text == "Expert")
        return Expert;
    if (text == "Guru")
        return Guru;
    return text == "Invisible" ? Invisible : Beginner;
}

ECachingMode cachingModeOf(const std::string &text)
{
    if (text == "NoCache")
        return NoCache;
    return text == "WriteAround" ? WriteAround : WriteThrough;
}

EAccessMode accessModeOf(const std::string &text, EAccessMode fallback)
{
    static const std::pair<const char *, EAccessMode> modes[] = {
        {"RO", RO}, {"WO", WO}, {"RW", RW}, {"NA", NA}, {"NI", NI}};
    for (const auto &[name, mode] : modes) {
        if (text == name)
            return mode;
    }
    return fallback;
}

std::optional<ERepresentation> representationOf(const std::string &text)
{
    static const std::pair<const char *, ERepresentation> representations[] = {
        {"Linear", Linear},         {"Logarithmic", Logarithmic}, {"Boolean", Boolean},
        {"PureNumber", PureNumber}, {"HexNumber", HexNumber},     {"IPV4Address", IPV4Address},
        {"MACAddress", MACAddress}};
    for (const auto &[name, representation] : representations) {
        if (text == name)
            return representation;
    }
    return std::nullopt;
}

std::optional<EDisplayNotation> notationOf(const std::string &text)
{
    if (text == "Automatic")
        return fnAutomatic;
    if (text == "Fixed")
        return fnFixed;
    if (text == "Scientific")
        return fnScientific;
    return std::nullopt;
}

template<typename T>
std::vector<T> listOf(const std::string &text, T (*parse)(const std::string &))
{
    std::vector<T> values;
    std::size_t start = 0;
    while (start < text.size()) {
        const auto end = std::min(text.find_first_of("; ,\t\r\n", start), text.size());
        if (end > start)
            values.push_back(parse(text.substr(start, end - start)));
        start = end + 1;
    }
    return values;
}

/// True when the formula of that tag can meet a divisor of 0.
bool divides(const DescriptionNode &description, const std::string &tag)
{
    return std::any_of(description.properties.begin(), description.properties.end(),
                       [&](const DescriptionProperty &property) {
                           return (property.tag == tag || property.tag == "Expression") &&
                                  property.text.find_first_of("/%") != std::string::npos;
                       });
}

NodeProperties propertiesOf(const DescriptionNode &description)
{
    NodeProperties properties;
    properties.name = description.name;
    properties.nameSpace = description.isStandard ? Standard : Custom;
    properties.displayName = description.text("DisplayName");
    properties.toolTip = description.text("ToolTip");
    properties.description = description.text("Description");
    properties.eventId = description.text("EventID");
    properties.visibility = visibilityOf(description.text("Visibility"));
    properties.cachingMode = cachingModeOf(description.text("Cachable"));
    if (description.find("PollingTime"))
        properties.pollingTime = toInt(description.text("PollingTime"));
    properties.streamable = description.text("Streamable") == "Yes";
    properties.deprecated = description.text("IsDeprecated") == "Yes";
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

Presentation presentationOf(const DescriptionNode &description)
{
    Presentation presentation;
    presentation.representation = representationOf(description.text("Representation"));
    if (const DescriptionProperty *unit = description.find("Unit"))
        presentation.unit = unit->text;
    presentation.notation = notationOf(description.text("DisplayNotation"));
    if (description.find("DisplayPrecision"))
        presentation.precision = toInt(description.text("DisplayPrecision"));
    return presentation;
}

} // namespace

NodeMapBuilder::NodeMapBuilder(NodeMap &map, const Description &description)
    : m_map(map), m_description(description)
{
}

void NodeMapBuilder::build(const std::string &source)
{
    for (const DescriptionNode &description : m_description.nodes())
        m_described.emplace(description.name, &description);
    for (const DescriptionNode &description : m_description.nodes())
        makeNode(description);

    auto *root = dynamic_cast<ICategory *>(m_map.node("Root"));
    if (!root)
        throw GenICam::RuntimeException(
            (source + ": the description has no category 'Root'").c_str(), __FILE__, __LINE__);

    breakCategoryCircles();
    // Connecting a category may add a placeholder to the items.
    for (std::size_t i = 0; i < m_items.size(); ++i) {
        if (m_items[i].description)
            connect(m_items[i]);
    }
    markCircularNodes();
    spreadUnusable();
    for (Item &item : m_items)
        finish(item);
}

NodeLinks &NodeMapBuilder::newLinks()
{
    m_map.m_links.push_back(std::make_unique<NodeLinks>());
    return *m_map.m_links.back();
}

void NodeMapBuilder::makeNode(const DescriptionNode &description)
{
    if (Node *first = m_map.node(description.name)) {
        // Described twice: the first description counts. The engine takes the last and would
        // compute what nobody has looked at.
        Item &item = *itemOf(first);
        if (item.description->tag != "Category" && description.tag != "EnumEntry")
            item.links->isUnusable = true;
        return;
    }
    NodeLinks &links = newLinks();
    std::unique_ptr<Node> node = newNode(description, links);
    m_indexOf[node.get()] = m_items.size();
    m_items.push_back({&description, node.get(), &links});
    m_map.adopt(std::move(node));
}

std::unique_ptr<Node> NodeMapBuilder::newNode(const DescriptionNode &description, NodeLinks &links)
{
    const std::string &tag = description.tag;
    NodeProperties properties = propertiesOf(description);
    if (tag == "Category")
        return std::make_unique<DescribedCategory>(links, m_map, properties);
    if (tag == "Integer" || tag == "IntReg" || tag == "MaskedIntReg" || tag == "StructEntry" ||
        tag == "IntSwissKnife" || tag == "IntConverter")
        return std::make_unique<DescribedInteger>(links, m_map, properties);
    if (tag == "Float" || tag == "FloatReg" || tag == "SwissKnife" || tag == "Converter")
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

ArvGcNode *NodeMapBuilder::engineNode(const DescriptionNode &description) const
{
    return arv_gc_get_node(m_map.m_engine, description.name.c_str());
}

Node *NodeMapBuilder::referenced(Item &item, const std::string &name)
{
    Node *node = m_map.node(name);
    if (!node)
        item.links->isUnusable = true;
    return node;
}

Node *NodeMapBuilder::referenced(Item &item, const char *tag)
{
    const DescriptionProperty *property = item.description->find(tag);
    return property ? referenced(item, property->text) : nullptr;
}

std::vector<Node *> NodeMapBuilder::referencedAll(Item &item, const char *tag)
{
    std::vector<Node *> nodes;
    for (const DescriptionProperty &property : item.description->properties) {
        if (property.tag != tag)
            continue;
        if (Node *node = referenced(item, property.text))
            nodes.push_back(node);
    }
    return nodes;
}

void NodeMapBuilder::connect(Item &item)
{
    const std::string &tag = item.description->tag;
    connectPredicates(item);
    connectDependencies(item);
    if (tag == "Category") {
        // May move the items.
        connectCategory(item);
        return;
    }
    if (tag == "EnumEntry")
        connectEntry(item);
    if (isRegister(tag))
        connectRegister(item);
    connectNumber(item);
}

void NodeMapBuilder::connectPredicates(Item &item)
{
    NodeLinks &links = *item.links;
    links.isImplemented = referenced(item, "pIsImplemented");
    links.isAvailable = referenced(item, "pIsAvailable");
    links.isLocked = referenced(item, "pIsLocked");
    links.imposedAccess = accessModeOf(item.description->text("ImposedAccessMode"), RW);
}

void NodeMapBuilder::connectDependencies(Item &item)
{
    static const std::set<std::string> unrelated = {
        "pFeature", "pPort", "pAlias", "pCastAlias", "pError", "pBlockPolling", "pValueCopy"};
    const std::function<void(const std::vector<DescriptionProperty> &)> connectAll =
        [&](const std::vector<DescriptionProperty> &properties) {
            for (const DescriptionProperty &property : properties) {
                connectAll(property.properties);
                if (!property.pOffset.empty()) {
                    if (Node *offset = m_map.node(property.pOffset))
                        m_map.addDependency(*offset, *item.node);
                }
                if (!isReference(property.tag) || unrelated.count(property.tag) != 0)
                    continue;
                Node *other = m_map.node(property.text);
                if (!other)
                    continue;
                if (property.tag == "pSelected")
                    m_map.addSelection(*item.node, *other);
                else
                    m_map.addDependency(*other, *item.node);
            }
        };
    connectAll(item.description->properties);
}

void NodeMapBuilder::connectEntry(Item &item)
{
    auto *enumeration = dynamic_cast<EnumerationNode *>(m_map.node(item.description->owner));
    auto *entry = dynamic_cast<EnumEntryNode *>(item.node);
    if (!enumeration || !entry)
        return;
    enumeration->addEntry(*entry);
    m_map.addDependency(*entry, *enumeration);
}

void NodeMapBuilder::connectCategory(Item &item)
{
    auto &category = dynamic_cast<CategoryNode &>(*item.node);
    const DescriptionNode &description = *item.description;
    for (const DescriptionProperty &property : description.properties) {
        if (property.tag != "pFeature")
            continue;
        const auto dropped = std::make_pair(description.name, property.text);
        if (std::find(m_droppedFeatures.begin(), m_droppedFeatures.end(), dropped) !=
            m_droppedFeatures.end())
            continue;
        Node *feature = m_map.node(property.text);
        if (!feature && !property.text.empty()) {
            NodeProperties properties;
            properties.name = property.text;
            NodeLinks &links = newLinks();
            links.isUnusable = true;
            auto missing = std::make_unique<MissingFeature>(links, m_map, properties);
            feature = missing.get();
            m_indexOf[feature] = m_items.size();
            m_items.push_back({nullptr, feature, &links});
            m_map.adopt(std::move(missing));
        }
        if (feature)
            category.addFeature(*feature);
    }
}

void NodeMapBuilder::connectRegister(Item &item)
{
    const DescriptionNode &description = *item.description;
    NodeLinks &links = *item.links;
    ArvGcNode *engine = engineNode(description);
    if (!engine || !ARV_IS_GC_REGISTER(engine)) {
        links.isUnusable = true;
        return;
    }
    links.reg = std::make_unique<RegisterAccess>(engine, *m_map.m_cache, description.name,
                                                 item.node->properties().cachingMode);

    std::vector<Node *> sources;
    for (const char *tag : {"pAddress", "pIndex", "pLength"}) {
        const auto nodes = referencedAll(item, tag);
        sources.insert(sources.end(), nodes.begin(), nodes.end());
    }
    for (const DescriptionProperty &property : description.properties) {
        if (!property.pOffset.empty()) {
            if (Node *offset = referenced(item, property.pOffset))
                sources.push_back(offset);
        }
        for (const DescriptionProperty &inner : property.properties) {
            if (inner.tag != "pVariable")
                continue;
            if (Node *variable = referenced(item, inner.text))
                sources.push_back(variable);
        }
    }
    links.valueChildren = sources;
    links.reg->setAddressSources(std::move(sources));

    // Ports of chunks and events have no data but those that come with images.
    const DescriptionProperty *port = description.find("pPort");
    const auto portNode = port ? m_described.find(port->text) : m_described.end();
    if (portNode != m_described.end() &&
        (portNode->second->find("ChunkID") || portNode->second->find("EventID") ||
         portNode->second->find("pChunkID") || portNode->second->find("pEventID")))
        links.isUnusable = true;

    const EAccessMode mode = accessModeOf(description.text("AccessMode"), RO);
    if (auto *text = dynamic_cast<DescribedString *>(item.node))
        text->registerMode = mode;
    if (auto *bytes = dynamic_cast<DescribedRegister *>(item.node))
        bytes->registerMode = mode;
}

std::unique_ptr<Formula> NodeMapBuilder::newFormula(Item &item, const char *tag, const char *input)
{
    const std::string text = item.description->text(tag);
    auto formula = std::make_unique<Formula>(*item.description, text);
    std::vector<std::string> names = {input};
    for (const DescriptionProperty &property : item.description->properties) {
        if (property.tag != "pVariable")
            continue;
        names.push_back(property.name);
        if (Node *variable = m_map.node(property.text))
            formula->addVariable(property.name, *variable);
    }
    if (!Formula::isWellFormed(*item.description, text, names))
        item.links->isUnusable = true;
    return formula;
}

std::unique_ptr<NumberSource> NodeMapBuilder::newFormulaSource(Item &item)
{
    const std::vector<Node *> variables = referencedAll(item, "pVariable");
    item.links->valueChildren = variables;
    const bool canFail = divides(*item.description, "Formula");
    return std::make_unique<FormulaSource>(newFormula(item, "Formula", ""), variables, canFail,
                                           item.description->tag == "IntSwissKnife");
}

std::unique_ptr<NumberSource> NodeMapBuilder::newConverterSource(Item &item)
{
    Node *value = referenced(item, "pValue");
    if (!value) {
        item.links->isUnusable = true;
        return nullptr;
    }
    item.links->valueChildren = referencedAll(item, "pVariable");
    item.links->valueChildren.push_back(value);
    item.links->writtenChildren = {value};
    const std::string slopeText = item.description->text("Slope");
    auto slope = ConverterSource::Slope::Automatic;
    if (slopeText == "Increasing")
        slope = ConverterSource::Slope::Increasing;
    else if (slopeText == "Decreasing")
        slope = ConverterSource::Slope::Decreasing;
    else if (slopeText == "Varying")
        slope = ConverterSource::Slope::Varying;
    return std::make_unique<ConverterSource>(
        *value, newFormula(item, "FormulaFrom", "TO"), newFormula(item, "FormulaTo", "FROM"), slope,
        item.description->text("IsLinear") == "Yes", item.description->tag == "IntConverter",
        divides(*item.description, "FormulaFrom"));
}

std::unique_ptr<NumberSource> NodeMapBuilder::newIndexedSource(Item &item)
{
    Node *index = referenced(item, "pIndex");
    if (!index)
        return nullptr;
    item.links->valueChildren.push_back(index);
    auto source = std::make_unique<IndexedSource>(*index);
    const auto referencing = [&](const DescriptionProperty &property) {
        std::unique_ptr<NumberSource> result;
        if (Node *node = referenced(item, property.text)) {
            item.links->valueChildren.push_back(node);
            item.links->writtenChildren.push_back(node);
            result = std::make_unique<ReferenceSource>(*node, std::vector<Node *>());
        }
        return result;
    };
    const auto fixed = [&](const DescriptionProperty &property) {
        return std::make_unique<FixedSource>(toReal(property.text), toInt(property.text));
    };
    for (const DescriptionProperty &property : item.description->properties) {
        if (property.tag == "ValueIndexed")
            source->add(toInt(property.index), fixed(property));
        else if (property.tag == "pValueIndexed")
            source->add(toInt(property.index), referencing(property));
        else if (property.tag == "ValueDefault")
            source->setDefault(fixed(property));
        else if (property.tag == "pValueDefault")
            source->setDefault(referencing(property));
    }
    return source;
}

std::unique_ptr<NumberSource> NodeMapBuilder::newSource(Item &item)
{
    const DescriptionNode &description = *item.description;
    const std::string &tag = description.tag;
    if (isRegister(tag)) {
        if (!item.links->reg)
            return nullptr;
        return std::make_unique<RegisterSource>(
            *item.links->reg, accessModeOf(description.text("AccessMode"), RO), tag == "FloatReg");
    }
    if (tag == "SwissKnife" || tag == "IntSwissKnife")
        return newFormulaSource(item);
    if (tag == "Converter" || tag == "IntConverter")
        return newConverterSource(item);
    if (description.find("pIndex"))
        return newIndexedSource(item);
    if (description.find("pValue")) {
        Node *value = referenced(item, "pValue");
        if (!value)
            return nullptr;
        const std::vector<Node *> copies = referencedAll(item, "pValueCopy");
        item.links->valueChildren = {value};
        item.links->writtenChildren = copies;
        item.links->writtenChildren.insert(item.links->writtenChildren.begin(), value);
        return std::make_unique<ReferenceSource>(*value, copies);
    }
    ArvGcNode *engine = description.find("Value") ? engineNode(description) : nullptr;
    if (!ARV_IS_GC_INTEGER(engine) && !ARV_IS_GC_FLOAT(engine) && !ARV_IS_GC_BOOLEAN(engine) &&
        !ARV_IS_GC_ENUMERATION(engine))
        return nullptr;
    return std::make_unique<ConstantSource>(engine, description.name);
}

template<typename Described, typename T>
void NodeMapBuilder::connectLimits(Item &item, T (*parse)(const std::string &))
{
    auto *node = dynamic_cast<Described *>(item.node);
    if (!node)
        return;
    node->presentation = presentationOf(*item.description);
    const auto connectLimit = [&](StatedLimit<T> &limit, const char *tag) {
        if (const DescriptionProperty *stated = item.description->find(tag))
            limit.value = parse(stated->text);
        const std::string reference = std::string("p") + tag;
        limit.node = referenced(item, reference.c_str());
        if (limit.node)
            item.links->limitChildren.push_back(limit.node);
    };
    connectLimit(node->limits.min, "Min");
    connectLimit(node->limits.max, "Max");
    connectLimit(node->limits.inc, "Inc");
    node->limits.validValues = listOf(item.description->text("ValidValueSet"), parse);
}

void NodeMapBuilder::connectNumber(Item &item)
{
    const DescriptionNode &description = *item.description;
    const auto give = [&](auto *node) {
        if (!node)
            return false;
        auto source = newSource(item);
        if (!source)
            item.links->isUnusable = true;
        node->setSource(std::move(source));
        return true;
    };
    if (give(dynamic_cast<DescribedInteger *>(item.node)))
        return connectLimits<DescribedInteger, int64_t>(item, toInt);
    if (give(dynamic_cast<DescribedFloat *>(item.node)))
        return connectLimits<DescribedFloat, double>(item, toReal);
    if (give(dynamic_cast<DescribedEnumeration *>(item.node)))
        return;
    if (auto *boolean = dynamic_cast<DescribedBoolean *>(item.node)) {
        boolean->onValue = toInt(description.text("OnValue", "1"));
        boolean->offValue = toInt(description.text("OffValue", "0"));
        give(boolean);
        return;
    }
    if (auto *command = dynamic_cast<DescribedCommand *>(item.node)) {
        if (description.find("CommandValue"))
            command->commandValue.value = toInt(description.text("CommandValue"));
        command->commandValue.node = referenced(item, "pCommandValue");
        give(command);
        return;
    }
    if (auto *text = dynamic_cast<DescribedString *>(item.node)) {
        if (const DescriptionProperty *value = description.find("Value"))
            text->constant = value->text;
        Node *value = referenced(item, "pValue");
        text->reference = dynamic_cast<StringNode *>(value);
        if (value && !text->reference)
            item.links->isUnusable = true;
        if (text->reference) {
            item.links->valueChildren = {value};
            item.links->writtenChildren = {value};
        }
    }
}

NodeMapBuilder::Item *NodeMapBuilder::itemOf(const Node *node)
{
    const auto found = m_indexOf.find(node);
    return found == m_indexOf.end() ? nullptr : &m_items[found->second];
}

const std::vector<DescriptionProperty> &NodeMapBuilder::propertiesOfItem(const Item &item)
{
    static const std::vector<DescriptionProperty> none;
    return item.description ? item.description->properties : none;
}

// Circles. A node that is read in order to read itself can have no value; the engine would follow
// the references until the stack is full.

bool NodeMapBuilder::isInCircle(Item &item, std::vector<int> &states)
{
    enum { Unknown, Open, Fine };
    int &state = states[m_indexOf[item.node]];
    if (state == Open)
        return true;
    if (state == Fine)
        return false;
    state = Open;
    bool circle = false;
    const auto visit = [&](Node *node) {
        Item *child = itemOf(node);
        if (child && isInCircle(*child, states))
            circle = true;
    };
    for (Node *node : item.links->valueChildren)
        visit(node);
    // A variable may stand for a limit of its node instead of the value.
    for (const DescriptionProperty &property : propertiesOfItem(item)) {
        if (property.tag != "pVariable" || property.name.find('.') == std::string::npos)
            continue;
        const Item *limited = itemOf(m_map.node(property.text));
        if (!limited)
            continue;
        for (Node *node : limited->links->limitChildren)
            visit(node);
    }
    state = Fine;
    if (circle)
        item.links->isUnusable = true;
    return false;
}

void NodeMapBuilder::markCircularNodes()
{
    std::vector<int> states(m_items.size(), 0);
    for (Item &item : m_items)
        isInCircle(item, states);
}

void NodeMapBuilder::breakCategoryCircles()
{
    std::vector<int> states(m_items.size(), 0);
    for (const Item &item : m_items) {
        if (item.description->tag == "Category")
            breakCategoryCircle(*item.description, states);
    }
}

void NodeMapBuilder::breakCategoryCircle(const DescriptionNode &category, std::vector<int> &states)
{
    enum { Unknown, Open, Done };
    const auto stateOf = [&](const std::string &name) -> int & {
        return states[m_indexOf[m_map.node(name)]];
    };
    if (stateOf(category.name) != Unknown)
        return;
    stateOf(category.name) = Open;
    for (const DescriptionProperty &property : category.properties) {
        if (property.tag != "pFeature")
            continue;
        const auto child = m_described.find(property.text);
        if (child == m_described.end() || child->second->tag != "Category")
            continue;
        if (stateOf(property.text) == Open)
            m_droppedFeatures.emplace_back(category.name, property.text);
        else
            breakCategoryCircle(*child->second, states);
    }
    stateOf(category.name) = Done;
}

void NodeMapBuilder::spreadUnusable()
{
    // What is computed from something unusable is unusable too.
    bool changed = true;
    while (changed) {
        changed = false;
        for (Item &item : m_items) {
            if (item.links->isUnusable)
                continue;
            for (Node *node : item.links->valueChildren) {
                const Item *child = itemOf(node);
                if (child && child->links->isUnusable) {
                    item.links->isUnusable = true;
                    changed = true;
                    break;
                }
            }
        }
    }
}

std::vector<Node *> NodeMapBuilder::registersBehind(const std::vector<Node *> &nodes)
{
    std::vector<Node *> registers;
    std::vector<Node *> pending = nodes;
    std::set<const Node *> seen;
    while (!pending.empty()) {
        Node *node = pending.back();
        pending.pop_back();
        if (!seen.insert(node).second)
            continue;
        const NodeLinks &links = *itemOf(node)->links;
        if (links.isUnusable)
            continue;
        if (links.reg)
            registers.push_back(node);
        pending.insert(pending.end(), links.valueChildren.begin(), links.valueChildren.end());
    }
    return registers;
}

bool NodeMapBuilder::readsUncachable(const std::vector<Node *> &nodes)
{
    const std::vector<Node *> registers = registersBehind(nodes);
    return std::any_of(registers.begin(), registers.end(),
                       [this](Node *node) { return !itemOf(node)->links->reg->isCachable(); });
}

void NodeMapBuilder::finish(Item &item)
{
    NodeLinks &links = *item.links;
    links.written = {item.node};
    links.terminals = {item.node};
    if (links.isUnusable)
        return;

    for (std::size_t i = 0; i < links.written.size(); ++i) {
        const Item *written = itemOf(links.written[i]);
        for (Node *child : written->links->writtenChildren) {
            if (std::find(links.written.begin(), links.written.end(), child) == links.written.end())
                links.written.push_back(child);
        }
    }

    for (Node *node : registersBehind({item.node})) {
        if (node != item.node)
            links.terminals.push_back(node);
    }
    links.isValueCachable = !readsUncachable({item.node});
    links.areLimitsCachable = !readsUncachable(links.limitChildren) && links.isValueCachable;

    std::vector<Node *> predicates;
    for (const Node *node = item.node; node;) {
        const NodeLinks &current = *itemOf(node)->links;
        for (Node *predicate : {current.isImplemented, current.isAvailable, current.isLocked}) {
            if (predicate)
                predicates.push_back(predicate);
        }
        node = current.writtenChildren.empty() ? nullptr : current.writtenChildren.front();
    }
    links.isAccessCachable = !readsUncachable(predicates);
}

} // namespace OrvDescription
