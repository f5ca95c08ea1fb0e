// SPDX-License-Identifier: MIT
#include "enumerationnode.h"

#include "nodemapbase.h"

using namespace GenApi;

namespace OrvGenApi {

void EnumerationNode::GetSymbolics(StringList_t &symbolics)
{
    map().answer([&] {
        symbolics.clear();
        Gather gather;
        for (EnumEntryNode *entry : m_entries) {
            gather([&] {
                if (IsAvailable(entry))
                    symbolics.push_back(entry->GetSymbolic());
            });
        }
        gather.finish();
    });
}

void EnumerationNode::GetEntries(NodeList_t &entries)
{
    entries.clear();
    for (EnumEntryNode *entry : m_entries)
        entries.push_back(entry);
}

IEnumeration &EnumerationNode::operator=(const GenICam::gcstring &text)
{
    FromString(text);
    return *this;
}

EnumEntryNode *EnumerationNode::entryOf(int64_t value) const
{
    for (EnumEntryNode *entry : m_entries) {
        if (entry->entry().value == value)
            return entry;
    }
    return nullptr;
}

void EnumerationNode::SetIntValue(int64_t value, bool verify)
{
    write(
        [&] {
            if (!verify)
                return;
            requireWritable();
            EnumEntryNode *entry = entryOf(value);
            if (!entry)
                throw GenICam::OutOfRangeException(
                    ("'" + name() + "' has no entry of value " + std::to_string(value)).c_str(),
                    __FILE__, __LINE__);
            if (!IsAvailable(entry))
                throw GenICam::AccessException(("The entry '" + entry->entry().symbolic + "' of '" +
                                                name() + "' is not available")
                                                   .c_str(),
                                               __FILE__, __LINE__);
        },
        [&] { writeValue(value); });
}

int64_t EnumerationNode::GetIntValue(bool verify, bool ignoreCache)
{
    if (ignoreCache)
        map().refresh(*this);
    const int64_t value = map().answer([this] {
        requireReadable();
        return unverifiedValue();
    });
    if (verify && !entryOf(value))
        throw GenICam::OutOfRangeException(
            ("'" + name() + "' has no entry of value " + std::to_string(value)).c_str(), __FILE__,
            __LINE__);
    return value;
}

IEnumEntry *EnumerationNode::GetEntryByName(const GenICam::gcstring &symbolic)
{
    for (EnumEntryNode *entry : m_entries) {
        if (symbolic == entry->entry().symbolic.c_str())
            return entry;
    }
    return nullptr;
}

IEnumEntry *EnumerationNode::GetEntry(int64_t value)
{
    return entryOf(value);
}

IEnumEntry *EnumerationNode::GetCurrentEntry(bool verify, bool ignoreCache)
{
    return entryOf(GetIntValue(verify, ignoreCache));
}

GenICam::gcstring EnumerationNode::ToString(bool verify, bool ignoreCache)
{
    const int64_t value = GetIntValue(verify, ignoreCache);
    const EnumEntryNode *entry = entryOf(value);
    if (!entry)
        throw GenICam::OutOfRangeException(
            ("'" + name() + "' has no entry of value " + std::to_string(value)).c_str(), __FILE__,
            __LINE__);
    return entry->GetSymbolic();
}

void EnumerationNode::FromString(const GenICam::gcstring &text, bool verify)
{
    IEnumEntry *entry = GetEntryByName(text);
    if (!entry)
        throw GenICam::InvalidArgumentException(
            ("'" + name() + "' has no entry '" + text.c_str() + "'").c_str(), __FILE__, __LINE__);
    SetIntValue(entry->GetValue(), verify);
}

bool EnumerationNode::IsValueCacheValid() const
{
    const AutoLock lock(map().GetLock());
    return m_value.isValid();
}

int64_t EnumerationNode::unverifiedValue()
{
    return m_value.get(valueIsCachable(), [this] { return readValue(); });
}

void EnumerationNode::dropCache()
{
    Node::dropCache();
    m_value.drop();
}

} // namespace OrvGenApi
