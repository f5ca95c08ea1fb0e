// SPDX-License-Identifier: MIT
// Any packet as a camera's answer.
#include "check.h"

#include <gigevision/gvcp.h>

using namespace OrvGigEVision;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    const auto answer = Gvcp::parseAcknowledge(data, size);
    if (!answer)
        return 0;
    check(answer->payload >= data && answer->payload + answer->size <= data + size,
          "the payload is not in the packet");

    const auto word = Gvcp::parseRegister(*answer);
    check(word.has_value() == (answer->size >= 4), "a register's value comes of four bytes");

    if (const auto identity = Gvcp::parseIdentity(*answer)) {
        check(identity->mac <= 0xFFFFFFFFFFFF, "the MAC address has more than six bytes");
        check(identity->manufacturer.size() <= 32 && identity->model.size() <= 32 &&
                  identity->version.size() <= 32 && identity->manufacturerInfo.size() <= 48 &&
                  identity->serial.size() <= 16 && identity->userName.size() <= 16,
              "a text is longer than its field");
    }
    return 0;
}
