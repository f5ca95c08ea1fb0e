// SPDX-License-Identifier: MIT
#include "settings/settingselectors.h"

#include "base/genicamstring.h"
#include "base/selectordetour.h"
#include "settings/featurevalue.h"

#include <algorithm>

namespace OrvGui {

namespace {

/// Larger than the look-up table of any real camera.
constexpr int64_t mostPositions = 65536;

QStringList positionsOfInteger(GenApi::IInteger *selector)
{
    QStringList positions;
    if (selector->GetIncMode() == GenApi::listIncrement) {
        const GenApi::int64_autovector_t values = selector->GetListOfValidValues(true);
        for (size_t i = 0; i < values.size(); ++i)
            positions << QString::number(static_cast<qlonglong>(values[i]));
        return positions;
    }
    const int64_t min = selector->GetMin();
    const int64_t max = selector->GetMax();
    const int64_t step = std::max<int64_t>(selector->GetInc(), 1);
    if (max < min)
        return positions;
    const uint64_t count =
        (static_cast<uint64_t>(max) - static_cast<uint64_t>(min)) / static_cast<uint64_t>(step);
    if (count >= static_cast<uint64_t>(mostPositions))
        throw GenICam::OutOfRangeException(
            FeatureValue::tr("Its selector has too many values.").toUtf8().constData(), __FILE__,
            __LINE__);
    for (uint64_t i = 0; i <= count; ++i)
        positions << QString::number(static_cast<qlonglong>(min + static_cast<int64_t>(i) * step));
    return positions;
}

/// For a selector that refuses to be restored: its former value may no longer be valid, but it may
/// still have that value, because the move has failed.
bool isAt(GenApi::IValue *selector, const QString &value)
{
    try {
        return FeatureValue::text(selector) == value;
    } catch (const GenICam::GenericException &) {
        return false;
    }
}

bool isPutBack(GenApi::IValue *selector, const QString &value, bool verify)
{
    try {
        selector->FromString(toUtf8(value), verify);
        return true;
    } catch (const GenICam::GenericException &) {
        return false;
    }
}

} // namespace

QStringList positionsOf(GenApi::IValue *selector)
{
    QStringList positions;
    if (auto *enumeration = dynamic_cast<GenApi::IEnumeration *>(selector)) {
        GenApi::StringList_t symbolics;
        enumeration->GetSymbolics(symbolics);
        for (size_t i = 0; i < symbolics.size(); ++i)
            positions << fromUtf8(symbolics[i]);
    } else if (auto *integer = dynamic_cast<GenApi::IInteger *>(selector)) {
        positions = positionsOfInteger(integer);
    } else if (dynamic_cast<GenApi::IBoolean *>(selector)) {
        positions << QStringLiteral("0") << QStringLiteral("1");
    } else {
        positions << FeatureValue::text(selector);
    }
    return positions;
}

GenApi::IValue *settingOf(GenApi::INodeMap &map, const QString &name)
{
    auto *feature = dynamic_cast<GenApi::IValue *>(map.GetNode(toUtf8(name)));
    return feature && FeatureValue::exists(feature) ? feature : nullptr;
}

SettingSelectors::~SettingSelectors()
{
    putBack();
}

SettingSelectors::Moved &SettingSelectors::remembered(GenApi::IValue *selector)
{
    const auto known = std::find_if(m_moved.begin(), m_moved.end(),
                                    [=](const Moved &one) { return one.selector == selector; });
    if (known != m_moved.end())
        return *known;
    m_moved.push_back({selector, FeatureValue::text(selector), false});
    return m_moved.back();
}

void SettingSelectors::move(GenApi::IValue *selector, const QString &value)
{
    Moved &moved = remembered(selector);
    if (FeatureValue::areSame(selector, FeatureValue::text(selector), value))
        return;
    const SelectorDetour detour;
    moved.isAway = true; // set even if the write gets no answer
    FeatureValue::write(selector, value);
}

QString SettingSelectors::select(const Setting::Selection &selection)
{
    m_isUnanswered = false;
    // Stored in the order in which they are restored.
    std::vector<GenApi::IValue *> selectors;
    for (const auto &position : selection) {
        selectors.push_back(settingOf(m_map, position.first));
        if (!selectors.back())
            return FeatureValue::missing(position.first);
    }
    for (size_t i = 0; i < selectors.size(); ++i) {
        const auto &position = selection[int(i)];
        try {
            if (i == 0)
                std::for_each(selectors.begin(), selectors.end(),
                              [this](GenApi::IValue *selector) { remembered(selector); });
            move(selectors[i], position.second);
        } catch (const GenICam::GenericException &exception) {
            m_isUnanswered = dynamic_cast<const GenICam::TimeoutException *>(&exception);
            return QStringLiteral("%1 = %2: %3")
                .arg(position.first, position.second,
                     FeatureValue::reason(selectors[i], exception));
        }
    }
    return QString();
}

QString SettingSelectors::original(GenApi::IValue *selector) const
{
    for (const Moved &moved : m_moved) {
        if (moved.selector == selector)
            return moved.original;
    }
    return QString();
}

void SettingSelectors::keep(GenApi::IValue *selector)
{
    m_moved.erase(std::remove_if(m_moved.begin(), m_moved.end(),
                                 [=](const Moved &one) { return one.selector == selector; }),
                  m_moved.end());
}

QStringList SettingSelectors::putBack()
{
    QStringList away;
    for (Moved &moved : m_moved) {
        if (!moved.isAway)
            continue;
        // Repeated, because the camera may have executed a write without an answer.
        if (!isPutBack(moved.selector, moved.original, true) &&
            !isPutBack(moved.selector, moved.original, false) &&
            !isAt(moved.selector, moved.original))
            away << fromUtf8(moved.selector->GetNode()->GetName());
    }
    m_moved.clear();
    return away;
}

} // namespace OrvGui
