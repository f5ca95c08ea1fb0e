// SPDX-License-Identifier: MIT
#include "largedescription.h"

namespace {

constexpr int firstAddress = 0x10000000;
constexpr int registerSize = 8; // of the largest register, a text

std::string element(const std::string &tag, const std::string &text)
{
    return "<" + tag + ">" + text + "</" + tag + ">";
}

std::string node(const std::string &tag, const std::string &name, const std::string &contents)
{
    return "<" + tag + " Name=\"" + name + "\">" + contents + "</" + tag + ">\n";
}

} // namespace

LargeDescription::LargeDescription(int features, int categories)
    : m_features(features), m_categories(static_cast<std::size_t>(categories))
{
    m_categories.front() = element("pFeature", "Selector");
    for (int i = 0; i < features; ++i)
        addFeature(i);
}

void LargeDescription::addFeature(int i)
{
    static const char *const visibilities[] = {"Beginner", "Expert", "Guru"};
    const int categories = static_cast<int>(m_categories.size());
    const std::string name = "Feature" + std::to_string(i);
    const std::string visibility = element("Visibility", visibilities[i / categories % 3]);
    m_categories[static_cast<std::size_t>(i % categories)] += element("pFeature", name);
    switch (i / categories % 4) {
    case 0:
        m_nodes += reg("IntReg", name, i, visibility);
        m_selected += element("pSelected", name);
        break;
    case 1:
        m_nodes += reg("FloatReg", name, i, visibility);
        break;
    case 2:
        m_nodes += reg("StringReg", name, i, visibility);
        break;
    default:
        m_nodes += node("Enumeration", name,
                        visibility + node("EnumEntry", "Off", element("Value", "0")) +
                            node("EnumEntry", "On", element("Value", "1")) +
                            element("pValue", "Register" + std::to_string(i)));
        m_nodes += reg("IntReg", "Register" + std::to_string(i), i);
    }
}

std::string LargeDescription::reg(const std::string &type, const std::string &name, int i,
                                  const std::string &more)
{
    const bool isText = type == "StringReg";
    return node(type, name,
                more + element("Address", std::to_string(firstAddress + registerSize * i)) +
                    element("Length", isText ? "8" : "4") + element("AccessMode", "RW") +
                    element("pPort", "Device") +
                    (isText ? std::string() : element("Endianess", "BigEndian")));
}

std::string LargeDescription::text() const
{
    std::string root;
    std::string nodes;
    for (std::size_t i = 0; i < m_categories.size(); ++i) {
        const std::string name = "Category" + std::to_string(i);
        root += element("pFeature", name);
        nodes += node("Category", name, m_categories[i]);
    }
    return "<RegisterDescription xmlns=\"http://www.genicam.org/GenApi/Version_1_1\" "
           "ModelName=\"Large\" SchemaMajorVersion=\"1\" SchemaMinorVersion=\"1\" "
           "SchemaSubMinorVersion=\"0\">\n" +
           node("Category", "Root", root) + node("Port", "Device", "") +
           node("Integer", "Selector", element("pValue", "SelectorRegister") + m_selected) +
           reg("IntReg", "SelectorRegister", m_features) + nodes + m_nodes +
           "</RegisterDescription>\n";
}
