// SPDX-License-Identifier: MIT
// Opens arbitrary bytes as a device description and reads all properties of its nodes.
#include "check.h"

#include <GenApi/GenApi.h>
#include <description/nodemap.h>

using namespace GenApi;

namespace {

/// An invalid description may cause GenICam exceptions only.
template<typename Call>
void attempt(Call call)
{
    try {
        call();
    } catch (const GenICam::GenericException &) {
    }
}

template<typename Number>
void readLimits(Number &number)
{
    attempt([&] { number.GetMin(); });
    attempt([&] { number.GetMax(); });
    attempt([&] { number.GetInc(); });
    attempt([&] { number.GetListOfValidValues(); });
}

void read(INode &node)
{
    attempt([&] { node.GetAccessMode(); });
    attempt([&] { node.GetDisplayName(); });
    attempt([&] { node.GetDescription(); });
    attempt([&] { node.IsCachable(); });
    attempt([&] { node.GetPollingTime(); });
    if (auto *integer = dynamic_cast<IInteger *>(&node)) {
        readLimits(*integer);
        attempt([&] { integer->GetRepresentation(); });
    }
    if (auto *real = dynamic_cast<IFloat *>(&node)) {
        readLimits(*real);
        attempt([&] { real->GetDisplayPrecision(); });
    }
    if (auto *enumeration = dynamic_cast<IEnumeration *>(&node))
        attempt([&] { enumeration->GetCurrentEntry(); });
    if (auto *text = dynamic_cast<IString *>(&node))
        attempt([&] { text->GetMaxLength(); });
    if (auto *command = dynamic_cast<ICommand *>(&node))
        attempt([&] { command->IsDone(); });
    if (auto *bytes = dynamic_cast<IRegister *>(&node)) {
        attempt([&] { bytes->GetAddress(); });
        attempt([&] { bytes->GetLength(); });
    }
    if (auto *value = dynamic_cast<IValue *>(&node))
        attempt([&] { value->ToString(); });
}

void readAll(INodeMap &map)
{
    NodeList_t nodes;
    map.GetNodes(nodes);
    for (std::size_t i = 0; i < nodes.size(); ++i)
        read(*nodes[i]);
    attempt([&] { map.Poll(1000); });
    attempt([&] { map.InvalidateNodes(); });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    attempt([&] {
        const auto map = OrvDescription::NodeMap::fromText(reinterpret_cast<const char *>(data),
                                                           size, "fuzz.xml");
        check(dynamic_cast<ICategory *>(map->GetNode("Root")), "there is no root category");
        readAll(*map);
    });
    return 0;
}
