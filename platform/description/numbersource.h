// SPDX-License-Identifier: MIT
#pragma once

#include "nodeformula.h"
#include "registeraccess.h"

#include <genapi/nodes/node.h>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace OrvDescription {

/// The source of the number of an integer, float, boolean, enumeration or command node. Values are
/// not checked. Called while a query of the node map is evaluated.
class NumberSource
{
public:
    virtual ~NumberSource() = default;

    virtual GenApi::EAccessMode accessMode() = 0;
    virtual int64_t integer() = 0;
    virtual double real() = 0;
    virtual void setInteger(int64_t value) = 0;
    virtual void setReal(double value) = 0;

    /// The limits of the source; those of the node itself have priority.
    virtual int64_t minInteger() { return INT64_MIN; }
    virtual int64_t maxInteger() { return INT64_MAX; }
    virtual double minReal();
    virtual double maxReal();
    virtual std::optional<int64_t> incInteger() { return std::nullopt; }
    virtual std::optional<double> incReal() { return std::nullopt; }

    /// The node that supplies the unit, the representation and the like when the node has none.
    virtual OrvGenApi::Node *delegate() const { return nullptr; }

protected:
    /// False when the number is undefined at present, such as a quotient whose divisor is 0. That
    /// is not a failure of the camera.
    bool hasValue();
};

/// The number of another node; further nodes get a copy when it is written.
class ReferenceSource : public NumberSource
{
public:
    ReferenceSource(OrvGenApi::Node &node, std::vector<OrvGenApi::Node *> copies);

    GenApi::EAccessMode accessMode() override;
    int64_t integer() override;
    double real() override;
    void setInteger(int64_t value) override;
    void setReal(double value) override;
    int64_t minInteger() override;
    int64_t maxInteger() override;
    double minReal() override;
    double maxReal() override;
    std::optional<int64_t> incInteger() override;
    std::optional<double> incReal() override;
    OrvGenApi::Node *delegate() const override { return &m_node; }

private:
    OrvGenApi::Node &m_node;
    std::vector<OrvGenApi::Node *> m_copies;
};

/// One of several numbers, selected by the value of an index node.
class IndexedSource : public NumberSource
{
public:
    explicit IndexedSource(OrvGenApi::Node &index);

    void add(int64_t index, std::unique_ptr<NumberSource> source);
    void setDefault(std::unique_ptr<NumberSource> source);

    GenApi::EAccessMode accessMode() override { return current().accessMode(); }
    int64_t integer() override { return current().integer(); }
    double real() override { return current().real(); }
    void setInteger(int64_t value) override { current().setInteger(value); }
    void setReal(double value) override { current().setReal(value); }
    int64_t minInteger() override { return current().minInteger(); }
    int64_t maxInteger() override { return current().maxInteger(); }
    double minReal() override { return current().minReal(); }
    double maxReal() override { return current().maxReal(); }
    std::optional<int64_t> incInteger() override { return current().incInteger(); }
    std::optional<double> incReal() override { return current().incReal(); }
    OrvGenApi::Node *delegate() const override;

private:
    NumberSource &current();

    OrvGenApi::Node &m_index;
    std::map<int64_t, std::unique_ptr<NumberSource>> m_sources;
    std::unique_ptr<NumberSource> m_default;
};

/// A constant of the description.
class FixedSource : public NumberSource
{
public:
    FixedSource(double value, int64_t integer);

    GenApi::EAccessMode accessMode() override { return GenApi::RW; }
    int64_t integer() override { return m_integer; }
    double real() override { return m_real; }
    void setInteger(int64_t value) override;
    void setReal(double value) override;

private:
    double m_real;
    int64_t m_integer;
};

/// A register.
class RegisterSource : public NumberSource
{
public:
    RegisterSource(RegisterAccess &access, bool isReal);

    GenApi::EAccessMode accessMode() override { return m_access.accessMode(); }
    int64_t integer() override;
    double real() override;
    void setInteger(int64_t value) override;
    void setReal(double value) override;
    int64_t minInteger() override;
    int64_t maxInteger() override;
    double minReal() override;
    double maxReal() override;

private:
    RegisterAccess &m_access;
    bool m_isReal;
};

/// A number computed from others; it is read-only.
class FormulaSource : public NumberSource
{
public:
    /// `isInteger` selects the arithmetic of the formula.
    FormulaSource(std::unique_ptr<NodeFormula> formula, std::vector<OrvGenApi::Node *> variables,
                  bool isInteger);

    GenApi::EAccessMode accessMode() override;
    int64_t integer() override;
    double real() override;
    void setInteger(int64_t value) override;
    void setReal(double value) override;

private:
    static void lookAt(OrvGenApi::Node &variable);

    std::unique_ptr<NodeFormula> m_formula;
    std::vector<OrvGenApi::Node *> m_variables;
    bool m_isInteger;
};

/// A number converted from another one, with a formula for each direction.
class ConverterSource : public NumberSource
{
public:
    enum class Slope { Increasing, Decreasing, Varying, Automatic };

    /// `isInteger` selects the arithmetic of the formulas.
    ConverterSource(OrvGenApi::Node &node, std::unique_ptr<NodeFormula> from,
                    std::unique_ptr<NodeFormula> to, Slope slope, bool isLinear, bool isInteger);

    GenApi::EAccessMode accessMode() override;
    int64_t integer() override;
    double real() override;
    void setInteger(int64_t value) override;
    void setReal(double value) override;
    int64_t minInteger() override;
    int64_t maxInteger() override;
    double minReal() override { return limits().first; }
    double maxReal() override { return limits().second; }
    std::optional<double> incReal() override;

private:
    std::pair<double, double> limits();
    std::optional<double> converted(double rawValue);

    OrvGenApi::Node &m_node;
    std::unique_ptr<NodeFormula> m_from;
    std::unique_ptr<NodeFormula> m_to;
    Slope m_slope;
    bool m_isLinear;
    bool m_isInteger;
};

} // namespace OrvDescription
