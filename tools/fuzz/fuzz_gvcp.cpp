// SPDX-License-Identifier: MIT
// Parses arbitrary bytes as a camera's answer.
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

    for (const std::size_t count : {1u, 2u, 134u}) {
        const auto values = Gvcp::parseRegisters(*answer, count);
        check(!values || values->size() == answer->size / 4, "a register's value is four bytes");
        check(!values || values->size() <= count, "more values than were requested");
    }
    if (const uint8_t *memory = Gvcp::parseMemory(*answer, 0, 4))
        check(memory + 4 <= data + size, "the memory is not in the packet");
    if (const auto time = Gvcp::parsePending(*answer))
        check(time->count() <= 65535, "the time has more than two bytes");

    if (const auto identity = Gvcp::parseIdentity(*answer)) {
        check(identity->mac <= 0xFFFFFFFFFFFF, "the MAC address has more than six bytes");
        check(identity->manufacturer.size() <= 32 && identity->model.size() <= 32 &&
                  identity->version.size() <= 32 && identity->manufacturerInfo.size() <= 48 &&
                  identity->serial.size() <= 16 && identity->userName.size() <= 16,
              "a text is longer than its field");
    }
    return 0;
}
