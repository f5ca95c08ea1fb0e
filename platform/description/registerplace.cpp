// SPDX-License-Identifier: MIT
#include "registerplace.h"

#include "rawvalue.h"

#include <Base/GCException.h>

#include <cameraio/limits.h>
#include <genapi/nodes/question.h>

#include <string>

using namespace OrvGenApi;
namespace Limits = OrvCameraIo::Limits;

namespace OrvDescription {

void RegisterPlace::addIndex(Node &index, std::optional<int64_t> offset, Node *offsetNode)
{
    m_indexes.push_back({&index, offset, offsetNode});
}

bool RegisterPlace::isFixed() const
{
    return m_nodes.empty() && m_formulas.empty() && m_indexes.empty() && !m_lengthNode;
}

uint64_t RegisterPlace::indexed(const Index &index) const
{
    Gather gather;
    int64_t number = 0;
    int64_t offset = index.offset.value_or(0);
    gather([&] { number = rawInteger(*index.index); });
    if (!index.offset) {
        gather([&] { offset = index.offsetNode ? rawInteger(*index.offsetNode) : statedLength(); });
    }
    gather.finish();
    return static_cast<uint64_t>(number) * static_cast<uint64_t>(offset);
}

uint64_t RegisterPlace::address() const
{
    uint64_t sum = m_constant;
    Gather gather;
    for (Node *node : m_nodes)
        gather([&] { sum += static_cast<uint64_t>(rawInteger(*node)); });
    for (const auto &formula : m_formulas)
        gather([&] { sum += static_cast<uint64_t>(formula->integer()); });
    for (const Index &index : m_indexes)
        gather([&] { sum += indexed(index); });
    gather.finish();
    return sum;
}

int64_t RegisterPlace::statedLength() const
{
    return m_lengthNode ? rawInteger(*m_lengthNode) : m_length;
}

uint32_t RegisterPlace::length(std::string_view owner, int64_t smallest) const
{
    const int64_t bytes = statedLength();
    if (bytes < smallest || bytes > Limits::registerSize)
        throw GenICam::OutOfRangeException(
            (std::string(owner) + ": a register of " + std::to_string(bytes) + " bytes").c_str(),
            __FILE__, __LINE__);
    return static_cast<uint32_t>(bytes);
}

RegisterRange RegisterPlace::range(std::string_view owner, int64_t smallest) const
{
    RegisterRange range;
    if (isFixed()) {
        range.address = m_constant;
        range.size = length(owner, smallest);
        return range;
    }
    Gather gather;
    gather([&] { range.address = address(); });
    gather([&] { range.size = length(owner, smallest); });
    gather.finish();
    return range;
}

} // namespace OrvDescription
