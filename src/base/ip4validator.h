// SPDX-License-Identifier: MIT
#pragma once

#include <QValidator>

/// Checks dotted-quad IPv4 text while it is typed, and converts between such text and a number.
///
/// Addresses are held as unsigned 32-bit numbers whose most significant byte is the first group:
/// 192.168.1.2 is 0xC0A80102. An empty text is acceptable, so that a field can be cleared; a caller
/// that needs an address must check for it.
class IP4Validator : public QValidator
{
    Q_OBJECT

public:
    explicit IP4Validator(QObject *parent = nullptr);

    /// Changes neither `input` nor `pos`.
    State validate(QString &input, int &pos) const override;

    /// Lenient: the range and the number of the groups are not checked, a group that is not a
    /// number counts as 0, and a group above 255 overflows into the next higher byte. Validate
    /// first.
    static unsigned int getIp(const QString &text);

    static QString getIpStr(unsigned int ip);
};
