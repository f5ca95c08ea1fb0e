// SPDX-License-Identifier: MIT
#pragma once

#include <Base/GCString.h>

#include <QString>

// Conversions between the strings of GenICam and those of Qt.

inline QString fromUtf8(const GenICam::gcstring &text)
{
    return QString::fromUtf8(text.c_str(), static_cast<int>(text.length()));
}

inline QString fromLatin1(const GenICam::gcstring &text)
{
    return QString::fromLatin1(text.c_str(), static_cast<int>(text.length()));
}

/// Descriptions are UTF-8, as XML is; some devices send Latin-1 nevertheless.
inline QString fromUtf8OrLatin1(const GenICam::gcstring &text)
{
    const QString decoded = fromUtf8(text);
    const QByteArray bytes(text.c_str(), static_cast<int>(text.length()));
    return decoded.toUtf8() == bytes ? decoded : fromLatin1(text);
}

inline GenICam::gcstring toUtf8(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    return GenICam::gcstring(bytes.constData(), static_cast<size_t>(bytes.size()));
}
