// SPDX-License-Identifier: MIT
#include <Base/GCString.h>

namespace GenICam_3_0 {

gcstring::gcstring(const char *text) : m_text(text ? text : "") {}

gcstring::gcstring(const char *text, std::size_t length)
    : m_text(text ? std::string(text, length) : std::string())
{
}

gcstring &gcstring::operator+=(const gcstring &other)
{
    m_text += other.m_text;
    return *this;
}

gcstring &gcstring::operator+=(const char *other)
{
    m_text += other ? other : "";
    return *this;
}

gcstring &gcstring::operator+=(char other)
{
    m_text += other;
    return *this;
}

gcstring operator+(const gcstring &left, const gcstring &right)
{
    gcstring result = left;
    result += right;
    return result;
}

gcstring operator+(const gcstring &left, const char *right)
{
    gcstring result = left;
    result += right;
    return result;
}

gcstring operator+(const char *left, const gcstring &right)
{
    gcstring result = left;
    result += right;
    return result;
}

std::ostream &operator<<(std::ostream &stream, const gcstring &text)
{
    return stream.write(text.c_str(), static_cast<std::streamsize>(text.length()));
}

} // namespace GenICam_3_0
