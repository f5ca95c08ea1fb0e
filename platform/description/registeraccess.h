// SPDX-License-Identifier: MIT
#pragma once

#include "registercache.h"

#include <genapi/nodes/node.h>

#include <string>
#include <vector>

typedef struct _ArvGcNode ArvGcNode;

namespace OrvDescription {

/// One register as the engine decodes it, read no more often than necessary.
class RegisterAccess
{
public:
    RegisterAccess(ArvGcNode *engineNode, RegisterCache &cache, std::string name,
                   GenApi::ECachingMode mode);

    /// The nodes that the register's address and length are computed from.
    void setAddressSources(std::vector<OrvGenApi::Node *> nodes);

    /// What was read up to now is outdated.
    void markStale() { m_staleSince = m_cache.now(); }

    int64_t integer();
    double real();
    std::string text();
    std::vector<uint8_t> bytes();
    void setInteger(int64_t value);
    void setReal(double value);
    void setText(const std::string &value);
    void setBytes(const std::vector<uint8_t> &bytes);

    int64_t minInteger();
    int64_t maxInteger();
    double minReal();
    double maxReal();
    int64_t maxTextLength();
    int64_t address();
    int64_t length();

    bool isCachable() const { return m_mode != GenApi::NoCache; }

private:
    void prepare(int64_t minLength = 1);
    void written();

    template<typename Call>
    auto checked(Call call);

    ArvGcNode *m_engineNode;
    RegisterCache &m_cache;
    std::string m_name;
    GenApi::ECachingMode m_mode;
    std::vector<OrvGenApi::Node *> m_addressSources;
    uint64_t m_staleSince = 0;
};

} // namespace OrvDescription
