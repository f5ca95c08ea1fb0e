// SPDX-License-Identifier: MIT
#include "camconfig/featurereader.h"

#include "camconfig/paramaccess.h"

#include <OrvCam/Codes.h>
#include <OrvGenParam.h>

#include <QPointer>

#include <algorithm>
#include <utility>

using OrvGenParam::Array;
using OrvGenParam::LookAhead;
using OrvGenParam::Param;

namespace OrvGui {

namespace {

/// The number of attempts for a value that changes faster than it can be read; then it is shown.
constexpr int maxRounds = 3;

LookAhead *lookAheadOf(const Array *array)
{
    int32_t error = OrvCam::Success;
    return array ? dynamic_cast<LookAhead *>(array->GetNodeMap(&error)) : nullptr;
}

template<class Number>
void addNumber(const Number *param, std::vector<LookAhead::Ask> &asks)
{
    asks.emplace_back([=] { param->GetValue(); });
    asks.emplace_back([=] { param->GetMin(); });
    asks.emplace_back([=] { param->GetMax(); });
    asks.emplace_back([=] { param->GetInc(); });
}

void addEnum(const OrvGenParam::Enum *param, std::vector<LookAhead::Ask> &asks)
{
    asks.emplace_back([=] { param->GetIntValue(); });
    for (uint32_t i = 0; i < param->GetEntryCount(); ++i) {
        if (const OrvGenParam::EnumEntry *entry = param->GetEntry(i))
            asks.emplace_back([=] { entry->IsAvailable(); });
    }
}

/// One function per value, so that a value with a slow answer does not delay others.
void add(const Param *param, std::vector<LookAhead::Ask> &asks)
{
    if (!param)
        return;
    asks.emplace_back([=] { param->IsWritable(); });
    if (const auto *number = dynamic_cast<const OrvGenParam::Int *>(param))
        addNumber(number, asks);
    else if (const auto *real = dynamic_cast<const OrvGenParam::Float *>(param))
        addNumber(real, asks);
    else if (const auto *choice = dynamic_cast<const OrvGenParam::Enum *>(param))
        addEnum(choice, asks);
    else if (const auto *flag = dynamic_cast<const OrvGenParam::Boolean *>(param))
        asks.emplace_back([=] { flag->GetValue(); });
    else if (const auto *text = dynamic_cast<const OrvGenParam::String *>(param))
        asks.emplace_back([=] { text->GetValue(); });
}

std::vector<LookAhead::Ask> asksFor(const FeatureReader::Params &params)
{
    std::vector<LookAhead::Ask> asks;
    for (const Param *param : params)
        add(param, asks);
    return asks;
}

} // namespace

FeatureReader::FeatureReader()
{
    m_timer.setSingleShot(true);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { fetch(); });
}

FeatureReader::~FeatureReader() = default;

void FeatureReader::setArray(const Array *array)
{
    m_request.reset();
    m_timer.stop();
    m_waiting.clear();
    m_underWay.clear();
    m_array = array;
}

/// Also null while the camera is disconnected: then every read fails at once.
LookAhead *FeatureReader::lookAhead() const
{
    return lookAheadOf(m_array);
}

bool FeatureReader::look(const LookAhead::Ask &ask) const
{
    const LookAhead *ahead = lookAhead();
    return ahead && ahead->look(ask);
}

void FeatureReader::fetchNow(const Params &params) const
{
    if (LookAhead *ahead = lookAhead())
        ahead->fetchNow(asksFor(params));
}

void FeatureReader::fetchNow(const Array &array, const Names &features)
{
    if (LookAhead *ahead = lookAheadOf(&array))
        ahead->fetchNow(asksFor(named(array, features)));
}

FeatureReader::Params FeatureReader::named(const Array &array, const Names &features)
{
    Params params;
    for (const char *feature : features)
        params << array.GetParam(feature);
    return params;
}

bool FeatureReader::read(const OrvGenParam::Int *param,
                         int64_t (OrvGenParam::Int::*question)(int32_t *) const,
                         qint64 &value) const
{
    if (!param)
        return false;
    int32_t error = OrvCam::Success;
    const qint64 answer = get([&] { return (param->*question)(&error); });
    if (error != OrvCam::Success)
        return false;
    value = answer;
    return true;
}

bool FeatureReader::isReadable(const Param *param) const
{
    return get([=] { return OrvGui::isReadable(param); });
}

bool FeatureReader::isWritable(const Param *param) const
{
    return get([=] { return OrvGui::isWritable(param); });
}

bool FeatureReader::areKnown(const Params &params) const
{
    return look([&] {
        for (const LookAhead::Ask &ask : asksFor(params))
            ask();
    });
}

void FeatureReader::whenKnown(const void *owner, const void *subject, const Params &params,
                              const std::function<void()> &call)
{
    const auto isSame = [=](const Waiting &one) {
        return one.owner == owner && one.subject == subject;
    };
    m_waiting.erase(std::remove_if(m_waiting.begin(), m_waiting.end(), isSame), m_waiting.end());
    if (!lookAhead()) {
        // The camera is disconnected: its array may be destroyed before the rest is fetched.
        setArray(m_array);
        return call();
    }
    if (areKnown(params))
        return call();
    m_waiting.append({owner, subject, params, call});
    if (!m_request && !m_timer.isActive())
        m_timer.start(0);
}

void FeatureReader::fetch()
{
    LookAhead *ahead = lookAhead();
    if (!ahead)
        return setArray(m_array);
    m_underWay = std::exchange(m_waiting, {});
    Params params;
    for (const Waiting &one : m_underWay)
        params << one.params;
    m_request = ahead->fetch(asksFor(params), [this] { fetched(); });
}

void FeatureReader::fetched()
{
    m_request.reset();
    const QPointer<QTimer> alive(&m_timer);
    while (!m_underWay.isEmpty()) {
        Waiting next = m_underWay.takeFirst();
        if (++next.rounds < maxRounds && lookAhead() && !areKnown(next.params))
            m_waiting.append(next);
        else
            next.call(); // may set another array, or destroy this object
        if (!alive)
            return;
    }
    if (!m_waiting.isEmpty())
        m_timer.start(0);
}

} // namespace OrvGui
