// SPDX-License-Identifier: MIT
#pragma once

#include "nodeformula.h"

#include <genapi/nodes/node.h>
#include <genapi/nodes/registers.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace OrvDescription {

/// The address and the length of a register, both of which may depend on nodes.
class RegisterPlace
{
public:
    /// The address is the sum of all parts.
    void add(uint64_t address) { m_constant += address; }
    void add(OrvGenApi::Node &address) { m_nodes.push_back(&address); }
    void add(std::unique_ptr<NodeFormula> address) { m_formulas.push_back(std::move(address)); }

    /// Adds a multiple of `offset`, of the value of `offsetNode`, or of the length.
    void addIndex(OrvGenApi::Node &index, std::optional<int64_t> offset,
                  OrvGenApi::Node *offsetNode);

    void setLength(int64_t bytes) { m_length = bytes; }
    void setLength(OrvGenApi::Node &bytes) { m_lengthNode = &bytes; }

    /// Address and length do not depend on nodes.
    bool isFixed() const;

    uint64_t address() const;

    /// In bytes; throws `OutOfRangeException` when it is less than `smallest` or longer than any
    /// register. `owner` is the node's name, for the message.
    uint32_t length(std::string_view owner, int64_t smallest = 1) const;

    /// Both.
    OrvGenApi::RegisterRange range(std::string_view owner, int64_t smallest = 1) const;

private:
    struct Index
    {
        OrvGenApi::Node *index;
        std::optional<int64_t> offset;
        OrvGenApi::Node *offsetNode;
    };

    uint64_t indexed(const Index &index) const;
    int64_t statedLength() const;

    uint64_t m_constant = 0;
    int64_t m_length = 0;
    OrvGenApi::Node *m_lengthNode = nullptr;
    std::vector<OrvGenApi::Node *> m_nodes;
    std::vector<std::unique_ptr<NodeFormula>> m_formulas;
    std::vector<Index> m_indexes;
};

} // namespace OrvDescription
