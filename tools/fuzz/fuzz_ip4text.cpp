// SPDX-License-Identifier: MIT
// Parses arbitrary text as an IPv4 address.
#include "check.h"

#include <ip4validator.h>

#include <QStringList>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    const QString original =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<int>(size));
    QString text = original;
    int position = 0;
    const IP4Validator validator;
    const QValidator::State state = validator.validate(text, position);
    check(text == original && position == 0, "validation changed its input");

    const unsigned int ip = IP4Validator::getIp(text);
    QString written = IP4Validator::getIpStr(ip);
    check(IP4Validator::getIp(written) == ip, "an address does not survive being written");
    check(validator.validate(written, position) == QValidator::Acceptable,
          "a written address is not accepted");

    if (state == QValidator::Acceptable && !text.isEmpty()) {
        unsigned int groups = 0;
        for (const QString &group : text.split('.'))
            groups = groups << 8 | static_cast<unsigned int>(group.toInt());
        check(ip == groups, "an accepted address is read as another one");
    }
    return 0;
}
