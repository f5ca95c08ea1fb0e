// SPDX-License-Identifier: MIT
#pragma once

#include <Base/GCTypes.h>

#include <cstddef>
#include <ostream>
#include <string>

namespace GenICam_3_0 {

/// The string type of the GenICam interfaces: a sequence of UTF-8 bytes.
/// A null `const char *` gives the empty string.
class GENAPI_DECL gcstring
{
public:
    gcstring() = default;
    gcstring(const char *text);
    gcstring(const char *text, std::size_t length);

    const char *c_str() const { return m_text.c_str(); }
    std::size_t length() const { return m_text.length(); }
    std::size_t size() const { return m_text.size(); }
    bool empty() const { return m_text.empty(); }
    operator const char *() const { return m_text.c_str(); }

    bool operator==(const gcstring &other) const { return m_text == other.m_text; }
    bool operator==(const char *other) const { return m_text == (other ? other : ""); }
    bool operator!=(const gcstring &other) const { return !(*this == other); }
    bool operator!=(const char *other) const { return !(*this == other); }
    bool operator<(const gcstring &other) const { return m_text < other.m_text; }

    gcstring &operator+=(const gcstring &other);
    gcstring &operator+=(const char *other);
    gcstring &operator+=(char other);

private:
    std::string m_text;
};

GENAPI_DECL gcstring operator+(const gcstring &left, const gcstring &right);
GENAPI_DECL gcstring operator+(const gcstring &left, const char *right);
GENAPI_DECL gcstring operator+(const char *left, const gcstring &right);
GENAPI_DECL std::ostream &operator<<(std::ostream &stream, const gcstring &text);

} // namespace GenICam_3_0
