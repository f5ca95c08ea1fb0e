// SPDX-License-Identifier: MIT
#pragma once

#include "valuenode.h"

#include <optional>
#include <string>

namespace OrvGenApi {

/// The properties of an entry of an enumeration.
struct EnumEntryProperties
{
    std::string symbolic;
    int64_t value = 0;
    std::optional<double> numericValue;
    bool selfClearing = false;
};

/// One entry of an enumeration. Its node name is "EnumEntry_<enumeration>_<symbolic>".
class EnumEntryNode : public ValueNode<GenApi::IEnumEntry>
{
public:
    EnumEntryNode(NodeMapBase &map, NodeProperties properties, EnumEntryProperties entry);

    int64_t GetValue() override { return m_entry.value; }
    GenICam::gcstring GetSymbolic() const override { return m_entry.symbolic.c_str(); }
    double GetNumericValue() override;
    bool IsSelfClearing() override { return m_entry.selfClearing; }
    GenICam::gcstring ToString(bool verify = false, bool ignoreCache = false) override;

    /// Always throws: an entry is selected through its enumeration.
    void FromString(const GenICam::gcstring &text, bool verify = true) override;
    bool IsValueCacheValid() const override { return true; }
    GenApi::EInterfaceType GetPrincipalInterfaceType() const override
    {
        return GenApi::intfIEnumEntry;
    }

    const EnumEntryProperties &entry() const { return m_entry; }

private:
    EnumEntryProperties m_entry;
};

} // namespace OrvGenApi
