// SPDX-License-Identifier: MIT
#include "registeraccess.h"

#include "errors.h"
#include "rawvalue.h"

#include <Base/GCException.h>

#include <arv.h>

#include <type_traits>

namespace OrvDescription {

namespace {

/// No camera has a register nearly as long.
constexpr int64_t maxLength = 16 << 20;

} // namespace

RegisterAccess::RegisterAccess(ArvGcNode *engineNode, RegisterCache &cache, std::string name,
                               GenApi::ECachingMode mode)
    : m_engineNode(engineNode), m_cache(cache), m_name(std::move(name)), m_mode(mode)
{
}

void RegisterAccess::setAddressSources(std::vector<OrvGenApi::Node *> nodes)
{
    m_addressSources = std::move(nodes);
}

template<typename Call>
auto RegisterAccess::checked(Call call)
{
    GError *error = nullptr;
    if constexpr (std::is_void_v<decltype(call(&error))>) {
        call(&error);
        throwIfFailed(error, m_name);
    } else {
        auto result = call(&error);
        throwIfFailed(error, m_name);
        return result;
    }
}

void RegisterAccess::prepare(int64_t minLength)
{
    // The engine computes the address by itself, but it takes a formula that fails for 0 and knows
    // nothing of what is outdated: compute everything that the address depends on beforehand.
    for (OrvGenApi::Node *node : m_addressSources)
        rawInteger(*node);
    // It takes a buffer as long as the register, too, and ends the program when there is none.
    const int64_t size = length();
    if (size < minLength || size > maxLength)
        throw GenICam::OutOfRangeException(
            (m_name + ": a register of " + std::to_string(size) + " bytes").c_str(), __FILE__,
            __LINE__);
    if (!isCachable())
        markStale();
    if (m_staleSince == 0)
        return;
    const auto address = checked([&](GError **error) {
        return arv_gc_register_get_address(ARV_GC_REGISTER(m_engineNode), error);
    });
    m_cache.forget(address, static_cast<uint64_t>(size), m_staleSince);
    m_staleSince = 0;
}

void RegisterAccess::written()
{
    if (m_mode != GenApi::WriteThrough)
        markStale();
}

int64_t RegisterAccess::integer()
{
    prepare();
    return checked([&](GError **error) {
        return arv_gc_integer_get_value(ARV_GC_INTEGER(m_engineNode), error);
    });
}

double RegisterAccess::real()
{
    prepare();
    return checked(
        [&](GError **error) { return arv_gc_float_get_value(ARV_GC_FLOAT(m_engineNode), error); });
}

std::string RegisterAccess::text()
{
    prepare();
    const char *value = checked([&](GError **error) {
        return arv_gc_string_get_value(ARV_GC_STRING(m_engineNode), error);
    });
    return value ? value : "";
}

std::vector<uint8_t> RegisterAccess::bytes()
{
    prepare(0);
    std::vector<uint8_t> result(static_cast<std::size_t>(length()));
    if (result.empty())
        return result;
    checked([&](GError **error) {
        arv_gc_register_get(ARV_GC_REGISTER(m_engineNode), result.data(), result.size(), error);
    });
    return result;
}

void RegisterAccess::setInteger(int64_t value)
{
    prepare();
    checked([&](GError **error) {
        arv_gc_integer_set_value(ARV_GC_INTEGER(m_engineNode), value, error);
    });
    written();
}

void RegisterAccess::setReal(double value)
{
    prepare();
    checked(
        [&](GError **error) { arv_gc_float_set_value(ARV_GC_FLOAT(m_engineNode), value, error); });
    written();
}

void RegisterAccess::setText(const std::string &value)
{
    prepare();
    checked([&](GError **error) {
        arv_gc_string_set_value(ARV_GC_STRING(m_engineNode), value.c_str(), error);
    });
    written();
}

void RegisterAccess::setBytes(const std::vector<uint8_t> &bytes)
{
    if (bytes.empty())
        return;
    prepare();
    checked([&](GError **error) {
        arv_gc_register_set(ARV_GC_REGISTER(m_engineNode), bytes.data(), bytes.size(), error);
    });
    written();
}

int64_t RegisterAccess::minInteger()
{
    return checked([&](GError **error) {
        return arv_gc_integer_get_min(ARV_GC_INTEGER(m_engineNode), error);
    });
}

int64_t RegisterAccess::maxInteger()
{
    return checked([&](GError **error) {
        return arv_gc_integer_get_max(ARV_GC_INTEGER(m_engineNode), error);
    });
}

double RegisterAccess::minReal()
{
    return checked(
        [&](GError **error) { return arv_gc_float_get_min(ARV_GC_FLOAT(m_engineNode), error); });
}

double RegisterAccess::maxReal()
{
    return checked(
        [&](GError **error) { return arv_gc_float_get_max(ARV_GC_FLOAT(m_engineNode), error); });
}

int64_t RegisterAccess::maxTextLength()
{
    return checked([&](GError **error) {
        return arv_gc_string_get_max_length(ARV_GC_STRING(m_engineNode), error);
    });
}

int64_t RegisterAccess::address()
{
    prepare(0);
    return static_cast<int64_t>(checked([&](GError **error) {
        return arv_gc_register_get_address(ARV_GC_REGISTER(m_engineNode), error);
    }));
}

int64_t RegisterAccess::length()
{
    return static_cast<int64_t>(checked([&](GError **error) {
        return arv_gc_register_get_length(ARV_GC_REGISTER(m_engineNode), error);
    }));
}

} // namespace OrvDescription
