// SPDX-License-Identifier: MIT
#include "settings/settingscomparison.h"

#include "settings/featurevalue.h"
#include "settings/settingselectors.h"

#include <QHash>
#include <QSet>

namespace OrvGui {

namespace {

/// Maps by label; of several lines with the same label the last counts.
QHash<QString, const Setting *> byLabel(const Settings &settings)
{
    QHash<QString, const Setting *> found;
    for (const Setting &setting : settings)
        found[setting.label()] = &setting;
    return found;
}

} // namespace

SettingDifferences differencesOf(const Settings &left, const Settings &right, GenApi::INodeMap *map)
{
    const auto ofLeft = byLabel(left);
    const auto ofRight = byLabel(right);
    SettingDifferences differences;
    QSet<QString> seen;
    for (const Settings *settings : {&left, &right}) {
        for (const Setting &setting : *settings) {
            const QString label = setting.label();
            if (seen.contains(label))
                continue;
            seen.insert(label);
            const Setting *const l = ofLeft.value(label);
            const Setting *const r = ofRight.value(label);
            const QString leftValue = l ? l->value : QString();
            const QString rightValue = r ? r->value : QString();
            GenApi::IValue *feature = map ? settingOf(*map, setting.name) : nullptr;
            if (leftValue.isNull() != rightValue.isNull() ||
                !FeatureValue::areSame(feature, leftValue, rightValue))
                differences.append({label, leftValue, rightValue});
        }
    }
    return differences;
}

} // namespace OrvGui
