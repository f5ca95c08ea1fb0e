// SPDX-License-Identifier: MIT
#include "booleannode.h"

#include "nodemapbase.h"

using namespace GenApi;

namespace OrvGenApi {

void BooleanNode::SetValue(bool value, bool verify)
{
    write(
        [&] {
            if (verify)
                requireWritable();
        },
        [&] { writeValue(value); });
}

IBoolean &BooleanNode::operator=(bool value)
{
    SetValue(value);
    return *this;
}

bool BooleanNode::GetValue(bool, bool ignoreCache) const
{
    if (ignoreCache)
        map().refresh(const_cast<BooleanNode &>(*this));
    return map().answer([this] {
        requireReadable();
        return unverifiedValue();
    });
}

GenICam::gcstring BooleanNode::ToString(bool verify, bool ignoreCache)
{
    return GetValue(verify, ignoreCache) ? "1" : "0";
}

void BooleanNode::FromString(const GenICam::gcstring &text, bool verify)
{
    if (text == "1" || text == "true" || text == "True")
        return SetValue(true, verify);
    if (text == "0" || text == "false" || text == "False")
        return SetValue(false, verify);
    throw GenICam::InvalidArgumentException(
        ("'" + std::string(text.c_str()) + "' is neither true nor false for '" + name() + "'")
            .c_str(),
        __FILE__, __LINE__);
}

bool BooleanNode::IsValueCacheValid() const
{
    const AutoLock lock(map().GetLock());
    return m_value.isValid();
}

bool BooleanNode::unverifiedValue() const
{
    return m_value.get(valueIsCachable(), [this] { return readValue(); });
}

void BooleanNode::dropCache()
{
    Node::dropCache();
    m_value.drop();
}

} // namespace OrvGenApi
