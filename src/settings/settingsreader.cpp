// SPDX-License-Identifier: MIT
#include "settings/settingsreader.h"

#include "base/acyclicfeatures.h"
#include "base/cameratext.h"
#include "base/genicamstring.h"
#include "base/selectordetour.h"
#include "settings/featurevalue.h"

#include <OrvGenParam/LookAhead.h>

#include <algorithm>
#include <map>
#include <memory>
#include <set>
#include <utility>

namespace OrvGui {

namespace {

using Ask = OrvGenParam::LookAhead::Ask;

class StreamableFeatures
{
public:
    explicit StreamableFeatures(GenApi::INodeMap &map)
    {
        if (auto *root = dynamic_cast<GenApi::ICategory *>(map.GetNode("Root"))) {
            m_tree.breakCycles(*root);
            addCategory(*root);
        }
        GenApi::NodeList_t nodes;
        map.GetNodes(nodes);
        for (size_t i = 0; i < nodes.size(); ++i) {
            if (nodes[i]->IsFeature())
                add(dynamic_cast<GenApi::IValue *>(nodes[i]));
        }
    }

    std::vector<GenApi::IValue *> features;

private:
    void addCategory(GenApi::ICategory &category)
    {
        if (!m_seen.insert(&category).second)
            return;
        const GenApi::FeatureList_t listed = m_tree.of(category);
        for (size_t i = 0; i < listed.size(); ++i) {
            if (auto *child = dynamic_cast<GenApi::ICategory *>(listed[i]))
                addCategory(*child);
            else
                add(listed[i]);
        }
    }

    void add(GenApi::IValue *feature)
    {
        if (feature && feature->GetNode()->IsStreamable() && FeatureValue::exists(feature) &&
            m_seen.insert(feature).second)
            features.push_back(feature);
    }

    AcyclicFeatures m_tree;
    std::set<const GenApi::IValue *> m_seen;
};

QString nameOf(GenApi::IValue *feature)
{
    return fromUtf8(feature->GetNode()->GetName());
}

/// The name without case and punctuation, because vendors spell their names in several ways.
QString normalizedName(const QString &device)
{
    QString text;
    for (const QChar character : device) {
        if (character.isLetterOrNumber())
            text += character.toCaseFolded();
    }
    return text;
}

} // namespace

SettingsReader::SettingsReader(GenApi::INodeMap &map, SettingsProgress progress)
    : m_map(map), m_inUse(&map), m_progress(std::move(progress))
{
}

bool SettingsReader::reportProgress()
{
    if (!m_result.error.isEmpty() || m_result.isCancelled)
        return false;
    m_result.isCancelled = m_progress && !m_progress(std::min(m_done, m_total), m_total);
    return !m_result.isCancelled;
}

/// Caches the values in as few transfers as possible; an error is reported when the value is read.
void SettingsReader::fetch(const Features &features) const
{
    auto *lookAhead = dynamic_cast<OrvGenParam::LookAhead *>(&m_map);
    if (!lookAhead)
        return;
    std::vector<Ask> asks;
    for (GenApi::IValue *feature : features) {
        asks.emplace_back([=] { feature->GetAccessMode(); });
        asks.emplace_back([=] { FeatureValue::text(feature); });
    }
    lookAhead->fetchNow(asks);
}

SettingsReader::Result SettingsReader::readAll()
{
    m_result = Result();
    const Features features = StreamableFeatures(m_map).features;
    std::map<Features, Features> groups; ///< by selectors
    Features first;
    for (GenApi::IValue *feature : features) {
        const Features selectors = selectorsOf(feature);
        groups[selectors].push_back(feature);
        if (selectors.empty())
            first.push_back(feature);
        first.insert(first.end(), selectors.begin(), selectors.end());
    }
    m_total = int(features.size());
    m_done = 0;
    if (reportProgress())
        fetch(first);

    for (GenApi::IValue *feature : features) {
        const Features selectors = selectorsOf(feature);
        if (!reportProgress())
            break;
        const Features group =
            selectors.empty() ? Features{feature} : std::exchange(groups[selectors], {});
        if (selectors.empty())
            readOne(feature, {});
        else if (!group.empty())
            readSelected(selectors, 0, group);
        m_done += int(group.size());
    }
    reportProgress(); // after the last value, which may have taken long
    return m_result;
}

void SettingsReader::readSelected(const Features &selectors, size_t depth, const Features &features)
{
    GenApi::IValue *selector = selectors[depth];
    const QString name = nameOf(selector);
    QString original;
    QStringList positions;
    try {
        // A selector that is not available selects nothing.
        if (!GenApi::IsReadable(selector->GetAccessMode()))
            return readAt(selectors, depth + 1, features);
        original = FeatureValue::text(selector);
        positions = positionsOf(selector);
    } catch (const GenICam::TimeoutException &exception) {
        m_result.error = FeatureValue::reason(selector, exception);
        return;
    } catch (const GenICam::GenericException &exception) {
        const QString reason = FeatureValue::reason(selector, exception);
        for (GenApi::IValue *feature : features)
            omit(feature, name + QStringLiteral(": ") + reason);
        return;
    }

    const int before = int(m_result.settings.size());
    SettingSelectors moves(m_map);
    for (const QString &position : qAsConst(positions)) {
        if (!reportProgress())
            break;
        const int start = int(m_result.settings.size());
        Setting line;
        line.name = name;
        line.value = position;
        const QString reason = select({{name, position}}, &moves);
        if (!reason.isEmpty()) {
            m_result.omitted.append({line, reason});
            continue;
        }
        m_result.settings.append(line);
        // Restoring the outermost selector notifies views of the inner ones, too.
        const auto detour = positions.size() > 1 ? std::make_unique<SelectorDetour>() : nullptr;
        readAt(selectors, depth + 1, features);
        if (m_result.settings.size() == start + 1)
            m_result.settings.removeLast();
    }
    m_result.notPutBack << moves.putBack();
    if (m_result.settings.size() == before)
        return;
    Setting last;
    last.name = name;
    last.value = original;
    m_result.settings.append(last);
}

/// Null on success, otherwise the reason of the failure. Retries once, because an answer may be
/// lost.
QString SettingsReader::select(const Setting::Selection &selection, SettingSelectors *moves)
{
    QString reason = moves->select(selection);
    if (moves->isUnanswered())
        reason = moves->select(selection);
    if (moves->isUnanswered())
        m_result.error = reason;
    return reason;
}

void SettingsReader::readAt(const Features &selectors, size_t depth, const Features &features)
{
    if (depth < selectors.size())
        return readSelected(selectors, depth, features);
    fetch(features);
    for (GenApi::IValue *feature : features)
        readOne(feature, {});
}

void SettingsReader::readOne(GenApi::IValue *feature, Setting setting)
{
    QString reason;
    setting.name = nameOf(feature);
    setting.value = textOf(feature, &reason);
    if (!setting.value.isNull() && !SettingsFile::isStorable(setting.value)) {
        reason = tr("The text has control characters.");
        setting.value = QString();
    }
    if (!setting.value.isNull())
        m_result.settings.append(setting);
    else if (!reason.isEmpty())
        m_result.omitted.append({setting, reason});
}

/// Null without a reason when there is no value at present.
QString SettingsReader::textOf(GenApi::IValue *feature, QString *reason)
{
    for (int attempt = 0; m_result.error.isEmpty(); ++attempt) {
        try {
            if (!GenApi::IsReadable(feature->GetAccessMode()))
                return QString();
            const QString text = FeatureValue::text(feature);
            return text.isNull() ? QStringLiteral("") : text;
        } catch (const GenICam::TimeoutException &exception) {
            if (attempt > 0)
                m_result.error = FeatureValue::reason(feature, exception);
        } catch (const GenICam::GenericException &exception) {
            *reason = FeatureValue::reason(feature, exception);
            return QString();
        }
    }
    return QString();
}

void SettingsReader::omit(GenApi::IValue *feature, const QString &reason)
{
    Setting setting;
    setting.name = nameOf(feature);
    m_result.omitted.append({setting, reason});
}

SettingsReader::Result SettingsReader::read(const Settings &wanted)
{
    m_result = Result();
    m_total = int(wanted.size());
    m_done = 0;
    SettingSelectors moves(m_map);
    QString reason;
    for (int i = 0; i < wanted.size() && reportProgress(); ++i, ++m_done) {
        const Setting &setting = wanted[i];
        if (i == 0 || setting.selection != wanted[i - 1].selection) {
            reason = select(setting.selection, &moves);
            Features features;
            for (int k = i; k < wanted.size() && wanted[k].selection == setting.selection; ++k) {
                if (GenApi::IValue *feature = settingOf(m_map, wanted[k].name))
                    features.push_back(feature);
            }
            if (reason.isEmpty())
                fetch(features);
        }
        Setting found = setting;
        found.value = QString();
        QString why = reason;
        GenApi::IValue *feature = settingOf(m_map, setting.name);
        if (feature)
            found.value = moves.original(feature); // the selector may be moved
        if (feature && found.value.isNull() && why.isEmpty())
            found.value = textOf(feature, &why);
        if (!why.isEmpty())
            m_result.omitted.append({setting, why});
        m_result.settings.append(found);
    }
    m_result.notPutBack = moves.putBack();
    return m_result;
}

QString SettingsReader::textOf(const char *feature)
{
    GenApi::IValue *value = settingOf(m_map, QString::fromLatin1(feature));
    QString reason;
    const QString text = value ? textOf(value, &reason) : QString();
    m_result.error.clear();
    return cameraText(text.trimmed(), LongestName);
}

QString SettingsReader::device()
{
    const QString vendor = textOf("DeviceVendorName");
    const QString model = textOf("DeviceModelName");
    if (model.isEmpty())
        return cameraText(fromUtf8(m_map.GetDeviceName()), LongestName);
    return vendor.isEmpty() ? model : vendor + QStringLiteral("::") + model;
}

bool SettingsReader::isSameModel(const QString &device)
{
    if (device.isEmpty())
        return true;
    // Other tools write the model name of the description.
    const QString model = device.section(QStringLiteral("::"), -1);
    const QString own = this->device();
    return normalizedName(device) == normalizedName(own) ||
           normalizedName(model) == normalizedName(own.section(QStringLiteral("::"), -1)) ||
           normalizedName(model) == normalizedName(fromUtf8(m_map.GetDeviceName()));
}

} // namespace OrvGui
