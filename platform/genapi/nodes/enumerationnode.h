// SPDX-License-Identifier: MIT
#pragma once

#include "enumentrynode.h"

#include <vector>

namespace OrvGenApi {

/// An enumeration with its checks and cache. Its entries are nodes of the same map.
class EnumerationNode : public ValueNode<GenApi::IEnumeration>
{
public:
    using ValueNode::ValueNode;

    /// Appends an entry.
    void addEntry(EnumEntryNode &entry) { m_entries.push_back(&entry); }
    const std::vector<EnumEntryNode *> &entries() const { return m_entries; }

    void GetSymbolics(GenApi::StringList_t &symbolics) override;
    void GetEntries(GenApi::NodeList_t &entries) override;
    GenApi::IEnumeration &operator=(const GenICam::gcstring &text) override;
    void SetIntValue(int64_t value, bool verify = true) override;
    GenICam::gcstring operator*() override { return ToString(); }
    int64_t GetIntValue(bool verify = false, bool ignoreCache = false) override;
    GenApi::IEnumEntry *GetEntryByName(const GenICam::gcstring &symbolic) override;
    GenApi::IEnumEntry *GetEntry(int64_t value) override;
    GenApi::IEnumEntry *GetCurrentEntry(bool verify = false, bool ignoreCache = false) override;
    GenICam::gcstring ToString(bool verify = false, bool ignoreCache = false) override;
    void FromString(const GenICam::gcstring &text, bool verify = true) override;
    bool IsValueCacheValid() const override;
    GenApi::EInterfaceType GetPrincipalInterfaceType() const override
    {
        return GenApi::intfIEnumeration;
    }
    void dropCache() override;

    /// For nodes that are computed from this one: the value without any check, and a store that
    /// neither checks nor notifies. The caller holds the lock.
    int64_t unverifiedValue();
    void storeUnverified(int64_t value) { writeValue(value); }

protected:
    virtual int64_t readValue() = 0;
    virtual void writeValue(int64_t value) = 0;

private:
    EnumEntryNode *entryOf(int64_t value) const;

    std::vector<EnumEntryNode *> m_entries;
    Cached<int64_t> m_value;
};

} // namespace OrvGenApi
