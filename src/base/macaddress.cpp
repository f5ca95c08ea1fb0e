// SPDX-License-Identifier: MIT
#include "base/macaddress.h"

#include <QStringList>

QString macAddressText(quint64 address)
{
    QStringList bytes;
    for (int shift = 40; shift >= 0; shift -= 8)
        bytes.append(
            QString::number((address >> shift) & 0xff, 16).rightJustified(2, QLatin1Char('0')));
    return bytes.join(QLatin1Char(':')).toUpper();
}
