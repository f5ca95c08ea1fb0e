// SPDX-License-Identifier: MIT
#include "base/ip4validator.h"

#include <QStringList>

namespace {
constexpr int groupCount = 4;
constexpr unsigned int groupMax = 255;
} // namespace

IP4Validator::IP4Validator(QObject *parent) : QValidator(parent) {}

QValidator::State IP4Validator::validate(QString &input, int &pos) const
{
    Q_UNUSED(pos)
    if (input.isEmpty())
        return Acceptable;

    const QStringList groups = input.split(QLatin1Char('.'));
    if (groups.size() > groupCount)
        return Invalid;

    bool complete = groups.size() == groupCount;
    for (const QString &group : groups) {
        if (group.trimmed().isEmpty()) {
            complete = false;
            continue;
        }
        bool isNumber = false;
        const int number = group.toInt(&isNumber);
        if (!isNumber || static_cast<unsigned int>(number) > groupMax)
            return Invalid;
    }
    return complete ? Acceptable : Intermediate;
}

unsigned int IP4Validator::getIp(const QString &text)
{
    unsigned int ip = 0;
    const QStringList groups = text.split(QLatin1Char('.'));
    for (const QString &group : groups)
        ip = (ip << 8) | group.toUInt();
    return ip;
}

QString IP4Validator::getIpStr(unsigned int ip)
{
    QStringList groups;
    for (int i = 0; i < groupCount; ++i) {
        groups.prepend(QString::number(ip & 0xff));
        ip >>= 8;
    }
    return groups.join(QLatin1Char('.'));
}
