// SPDX-License-Identifier: MIT
#include "settings/settingsorder.h"

#include "base/genicamstring.h"
#include "settings/settingselectors.h"

#include <QHash>
#include <QStringList>

namespace OrvGui {

namespace {

/// The part of the selection so far that applies to a feature with these selectors.
Setting::Selection selectionOf(GenApi::IValue *feature, const QHash<QString, QString> &positions)
{
    Setting::Selection selection;
    for (GenApi::IValue *selector : selectorsOf(feature)) {
        const QString name = fromUtf8(selector->GetNode()->GetName());
        if (positions.contains(name))
            selection.append({name, positions.value(name)});
    }
    return selection;
}

bool isCalledSelector(const QString &name)
{
    return name.contains(QLatin1String("Selector")) || name.endsWith(QLatin1String("Index"));
}

/// The selectors whose value differs between the occurrences of a feature.
QStringList varying(const QVector<QHash<QString, QString>> &occurrences, const QStringList &all)
{
    QStringList names;
    for (const QString &name : all) {
        for (const auto &positions : occurrences) {
            if (positions.value(name) == occurrences.first().value(name))
                continue;
            names << name;
            break;
        }
    }
    return names;
}

} // namespace

Settings resolvedSettings(const Settings &lines, GenApi::INodeMap &map)
{
    QHash<QString, int> lastLine;
    for (int i = 0; i < lines.size(); ++i)
        lastLine[lines[i].name] = i;

    QHash<QString, QString> positions;
    Settings settings;
    for (int i = 0; i < lines.size(); ++i) {
        Setting setting = lines[i];
        GenApi::IValue *feature = settingOf(map, setting.name);
        if (feature && setting.selection.isEmpty())
            setting.selection = selectionOf(feature, positions);
        if (feature && isSelector(feature)) {
            positions[setting.name] = setting.value;
            if (!feature->GetNode()->IsStreamable() || lastLine.value(setting.name) != i)
                continue;
        }
        settings.append(setting);
    }
    return settings;
}

Settings resolvedSettings(const Settings &lines)
{
    QHash<QString, QString> positions;
    QStringList selectors;
    QHash<QString, QVector<QHash<QString, QString>>> occurrences;
    Settings settings;
    QHash<QString, int> lastLine;
    for (int i = 0; i < lines.size(); ++i)
        lastLine[lines[i].name] = i;
    for (int i = 0; i < lines.size(); ++i) {
        const Setting &line = lines[i];
        if (isCalledSelector(line.name)) {
            positions[line.name] = line.value;
            if (!selectors.contains(line.name))
                selectors << line.name;
            if (lastLine.value(line.name) == i)
                settings.append(line); // a feature with such a name need not be a selector
            continue;
        }
        occurrences[line.name].append(positions);
        settings.append(line);
    }

    QHash<QString, QStringList> varyingOf;
    for (auto it = occurrences.cbegin(); it != occurrences.cend(); ++it)
        varyingOf[it.key()] = varying(it.value(), selectors);

    QHash<QString, int> seen;
    for (Setting &setting : settings) {
        if (!setting.selection.isEmpty() || isCalledSelector(setting.name))
            continue;
        const auto &at = occurrences[setting.name][seen[setting.name]++];
        for (const QString &selector : qAsConst(varyingOf[setting.name])) {
            if (at.contains(selector))
                setting.selection.append({selector, at.value(selector)});
        }
    }
    return settings;
}

} // namespace OrvGui
