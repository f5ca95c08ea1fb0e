// SPDX-License-Identifier: MIT
#include "stringnode.h"

#include "nodemapbase.h"

using namespace GenApi;

namespace OrvGenApi {

void StringNode::SetValue(const GenICam::gcstring &value, bool verify)
{
    write(
        [&] {
            if (!verify)
                return;
            requireWritable();
            if (static_cast<int64_t>(value.length()) > GetMaxLength())
                throw GenICam::OutOfRangeException(("The text for '" + name() +
                                                    "' is longer than " +
                                                    std::to_string(GetMaxLength()) + " bytes")
                                                       .c_str(),
                                                   __FILE__, __LINE__);
        },
        [&] { writeValue(std::string(value.c_str(), value.length())); });
}

IString &StringNode::operator=(const GenICam::gcstring &value)
{
    SetValue(value);
    return *this;
}

GenICam::gcstring StringNode::GetValue(bool, bool ignoreCache)
{
    if (ignoreCache)
        map().refresh(*this);
    const std::string value = map().answer([this] {
        requireReadable();
        return unverifiedValue();
    });
    return GenICam::gcstring(value.data(), value.size());
}

int64_t StringNode::GetMaxLength(bool)
{
    return map().answer([this] {
        return m_maxLength.get(limitsAreCachable(), [this] { return readMaxLength(); });
    });
}

GenICam::gcstring StringNode::ToString(bool verify, bool ignoreCache)
{
    return GetValue(verify, ignoreCache);
}

void StringNode::FromString(const GenICam::gcstring &text, bool verify)
{
    SetValue(text, verify);
}

bool StringNode::IsValueCacheValid() const
{
    const AutoLock lock(map().GetLock());
    return m_value.isValid();
}

std::string StringNode::unverifiedValue()
{
    return m_value.get(valueIsCachable(), [this] { return readValue(); });
}

void StringNode::dropCache()
{
    Node::dropCache();
    m_value.drop();
    m_maxLength.drop();
}

} // namespace OrvGenApi
