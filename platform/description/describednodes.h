// SPDX-License-Identifier: MIT
#pragma once

#include "nodelinks.h"
#include "numbersource.h"

#include <genapi/nodes/booleannode.h>
#include <genapi/nodes/categorynode.h>
#include <genapi/nodes/commandnode.h>
#include <genapi/nodes/enumerationnode.h>
#include <genapi/nodes/floatnode.h>
#include <genapi/nodes/integernode.h>
#include <genapi/nodes/registernode.h>
#include <genapi/nodes/stringnode.h>

#include <optional>
#include <string>

namespace OrvDescription {

/// The limits in the description of the node itself, as numbers or references.
template<typename T>
struct StatedLimit
{
    std::optional<T> value;
    OrvGenApi::Node *node = nullptr;

    bool isStated() const { return value || node; }
};

template<typename T>
struct StatedLimits
{
    StatedLimit<T> min;
    StatedLimit<T> max;
    StatedLimit<T> inc;
    std::vector<T> validValues;
};

/// A node with a numeric value.
template<typename Base>
class NumberNode : public DescribedNode<Base>
{
public:
    using DescribedNode<Base>::DescribedNode;

    void setSource(std::unique_ptr<NumberSource> source) { m_source = std::move(source); }

protected:
    GenApi::EAccessMode ownAccessMode() const override { return source().accessMode(); }

    /// Throws when the description gives the node no usable value.
    NumberSource &source() const;

    /// The node that supplies the number, or null.
    OrvGenApi::Node *delegate() const
    {
        return m_source && !this->links().isUnusable ? m_source->delegate() : nullptr;
    }

private:
    std::unique_ptr<NumberSource> m_source;
};

class DescribedInteger : public NumberNode<OrvGenApi::IntegerNode>
{
public:
    using NumberNode::NumberNode;

    /// Null for none.
    std::unique_ptr<StatedLimits<int64_t>> limits;

    GenApi::ERepresentation GetRepresentation() override;
    GenICam::gcstring GetUnit() override;

protected:
    int64_t readValue() override { return source().integer(); }
    void writeValue(int64_t value) override { source().setInteger(value); }
    int64_t readMin() override;
    int64_t readMax() override;
    std::optional<int64_t> readInc() override;
    std::vector<int64_t> validValues() const override;
};

class DescribedFloat : public NumberNode<OrvGenApi::FloatNode>
{
public:
    using NumberNode::NumberNode;

    /// Null for none.
    std::unique_ptr<StatedLimits<double>> limits;

    GenApi::ERepresentation GetRepresentation() override;
    GenICam::gcstring GetUnit() const override;
    GenApi::EDisplayNotation GetDisplayNotation() const override;
    int64_t GetDisplayPrecision() const override;

protected:
    double readValue() override { return source().real(); }
    void writeValue(double value) override { source().setReal(value); }
    double readMin() override;
    double readMax() override;
    std::optional<double> readInc() override;
    std::vector<double> validValues() const override;
};

class DescribedBoolean : public NumberNode<OrvGenApi::BooleanNode>
{
public:
    using NumberNode::NumberNode;

    int64_t onValue = 1;
    int64_t offValue = 0;

protected:
    bool readValue() const override { return source().integer() == onValue; }
    void writeValue(bool value) override { source().setInteger(value ? onValue : offValue); }
};

class DescribedEnumEntry : public DescribedNode<OrvGenApi::EnumEntryNode>
{
public:
    using DescribedNode::DescribedNode;
};

class DescribedEnumeration : public NumberNode<OrvGenApi::EnumerationNode>
{
public:
    using NumberNode::NumberNode;

protected:
    int64_t readValue() override { return source().integer(); }
    void writeValue(int64_t value) override { source().setInteger(value); }
};

class DescribedCommand : public NumberNode<OrvGenApi::CommandNode>
{
public:
    using NumberNode::NumberNode;

    /// The value that executing writes.
    StatedLimit<int64_t> commandValue;

protected:
    void execute() override;
    bool readIsDone() override;

private:
    int64_t valueToWrite();
};

/// A text: a constant, that of another node, or that of a register.
class DescribedString : public DescribedNode<OrvGenApi::StringNode>
{
public:
    using DescribedNode::DescribedNode;

    OrvGenApi::StringNode *reference = nullptr;
    std::optional<std::string> constant;

protected:
    GenApi::EAccessMode ownAccessMode() const override;
    std::string readValue() override;
    void writeValue(const std::string &value) override;
    int64_t readMaxLength() override;
};

class DescribedRegister : public DescribedNode<OrvGenApi::RegisterNode>
{
public:
    using DescribedNode::DescribedNode;

    int64_t GetAddress(bool verify = false) override;

    /// The text of a long register is that of its first bytes with an ellipsis.
    GenICam::gcstring ToString(bool verify = false, bool ignoreCache = false) override;

protected:
    GenApi::EAccessMode ownAccessMode() const override { return reg().accessMode(); }
    std::vector<uint8_t> readBytes() override { return reg().bytes(); }
    void writeBytes(const std::vector<uint8_t> &bytes) override { reg().setBytes(bytes); }
    int64_t readLength() override { return reg().length(); }

private:
    RegisterAccess &reg() const;
};

class DescribedCategory : public DescribedNode<OrvGenApi::CategoryNode>
{
public:
    using DescribedNode::DescribedNode;
};

/// A node without a value: a port, or an element that the node map does not use.
class PlainNode : public DescribedNode<OrvGenApi::Node>
{
public:
    PlainNode(GenApi::EInterfaceType type, NodeLinks &links, OrvGenApi::NodeMapBase &map,
              OrvGenApi::NodeProperties properties);

    GenApi::EInterfaceType GetPrincipalInterfaceType() const override { return m_type; }

private:
    GenApi::EInterfaceType m_type;
};

/// A placeholder in a category for a feature that is listed there but not described.
class MissingFeature : public DescribedNode<OrvGenApi::ValueNode<GenApi::IValue>>
{
public:
    using DescribedNode::DescribedNode;

    GenICam::gcstring ToString(bool verify = false, bool ignoreCache = false) override;
    void FromString(const GenICam::gcstring &text, bool verify = true) override;
    bool IsValueCacheValid() const override { return true; }
    GenApi::EInterfaceType GetPrincipalInterfaceType() const override { return GenApi::intfIValue; }
};

template<typename Base>
NumberSource &NumberNode<Base>::source() const
{
    if (!m_source || this->links().isUnusable)
        throw GenICam::PropertyException(
            ("The description gives '" + this->name() + "' no value").c_str(), __FILE__, __LINE__);
    return *m_source;
}

} // namespace OrvDescription
