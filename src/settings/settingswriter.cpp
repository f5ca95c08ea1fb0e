// SPDX-License-Identifier: MIT
#include "settings/settingswriter.h"

#include "base/cameratext.h"
#include "settings/featurevalue.h"
#include "settings/settingsreader.h"

#include <algorithm>
#include <set>
#include <utility>

namespace OrvGui {

namespace {

/// The number of consecutive time-outs that ends the writing; a single answer may be lost.
constexpr int mostTimeouts = 2;

Settings settingsOf(const SettingProblems &problems)
{
    Settings settings;
    for (const SettingProblem &problem : problems)
        settings.append(problem.setting);
    return settings;
}

} // namespace

SettingsWriter::SettingsWriter(GenApi::INodeMap &map, SettingsProgress progress)
    : m_map(map), m_inUse(&map), m_progress(std::move(progress)), m_moves(map)
{
}

bool SettingsWriter::reportProgress()
{
    if (!m_result.error.isEmpty() || m_result.isCancelled)
        return false;
    m_result.isCancelled = m_progress && !m_progress(std::min(m_done, m_total), m_total);
    return !m_result.isCancelled;
}

SettingsWriter::Result SettingsWriter::write(const Settings &settings)
{
    m_result = Result();
    Settings known;
    for (const Setting &setting : settings)
        (settingOf(m_map, setting.name) ? known : m_result.missing).append(setting);
    for (int i = 0; i < known.size(); ++i)
        known[i].line = i; // identifies them
    m_total = int(known.size());
    m_done = 0;

    SettingProblems refused = pass(known);
    for (int before = int(known.size());
         !refused.isEmpty() && refused.size() < before && reportProgress();) {
        before = int(refused.size());
        refused = pass(settingsOf(refused));
    }
    m_result.written = std::min(m_done, m_total);
    m_result.refused = refused;
    if (reportProgress())
        check(known);
    noteAway(m_moves.putBack());
    return m_result;
}

/// Returns the refused settings that are worth repeating.
SettingProblems SettingsWriter::pass(const Settings &settings)
{
    SettingProblems refused;
    for (const Setting &setting : settings) {
        if (!reportProgress())
            break;
        const QString reason = attempt(setting);
        if (reason.isEmpty()) {
            ++m_done;
            m_result.taken.append(setting);
        } else {
            refused.append({setting, reason});
        }
    }
    // A setting without a selection applies to the original one.
    noteAway(m_moves.putBack());
    return refused;
}

/// Empty on success.
QString SettingsWriter::attempt(const Setting &setting)
{
    const QString refusal = m_moves.select(setting.selection);
    if (m_moves.isUnanswered() && ++m_timeouts >= mostTimeouts)
        m_result.error = refusal;
    if (!refusal.isEmpty())
        return refusal;
    GenApi::IValue *feature = settingOf(m_map, setting.name);
    const QString reason = attempt(feature, setting.value);
    if (reason.isEmpty() && isSelector(feature))
        m_moves.keep(feature); // the position of the selector is a setting itself
    return reason;
}

QString SettingsWriter::attempt(GenApi::IValue *feature, const QString &value)
{
    QString reason;
    try {
        reason = FeatureValue::refusal(feature);
        if (reason.isEmpty())
            FeatureValue::write(feature, value);
        m_timeouts = 0;
    } catch (const GenICam::TimeoutException &exception) {
        reason = FeatureValue::reason(feature, exception);
        if (++m_timeouts >= mostTimeouts)
            m_result.error = reason;
        return reason;
    } catch (const GenICam::GenericException &exception) {
        reason = FeatureValue::reason(feature, exception);
    }
    return reason.isEmpty() || isThere(feature, value) ? QString() : reason;
}

/// A setting that is not writable, but has the value already, counts as written.
bool SettingsWriter::isThere(GenApi::IValue *feature, const QString &value)
{
    try {
        return GenApi::IsReadable(feature->GetAccessMode()) &&
               FeatureValue::areSame(feature, FeatureValue::text(feature), value);
    } catch (const GenICam::GenericException &) {
        return false;
    }
}

void SettingsWriter::noteAway(const QStringList &selectors)
{
    m_result.notPutBack << selectors;
    m_result.notPutBack.removeDuplicates();
}

void SettingsWriter::check(const Settings &settings)
{
    std::set<int> refused;
    for (const SettingProblem &problem : m_result.refused)
        refused.insert(problem.setting.line);
    Settings taken;
    for (const Setting &setting : settings) {
        if (!refused.count(setting.line))
            taken.append(setting);
    }
    const SettingProblems changed = differing(taken);
    if (changed.isEmpty() || !reportProgress())
        return;
    pass(settingsOf(changed));
    const SettingProblems stillChanged = differing(settingsOf(changed));
    m_result.written -= int(stillChanged.size());
    m_result.refused += stillChanged;
}

SettingProblems SettingsWriter::differing(const Settings &settings)
{
    SettingProblems problems;
    SettingsReader reader(m_map, m_progress
                                     ? [this](int, int) { return m_progress(m_total, m_total); }
                                     : SettingsProgress());
    const SettingsReader::Result found = reader.read(settings);
    m_result.isCancelled |= found.isCancelled;
    noteAway(found.notPutBack);
    if (!found.error.isEmpty())
        m_result.error = found.error;
    for (int i = 0; i < found.settings.size(); ++i) {
        const Setting &setting = settings[i];
        const QString &value = found.settings[i].value;
        if (value.isNull() ||
            FeatureValue::areSame(settingOf(m_map, setting.name), value, setting.value))
            continue;
        // Of several lines for the same setting the last counts.
        const bool isRepeated =
            std::any_of(settings.begin() + i + 1, settings.end(), [&](const Setting &later) {
                return later.name == setting.name && later.selection == setting.selection;
            });
        if (!isRepeated)
            problems.append(
                {setting, tr("The camera has made it %1.").arg(cameraText(value, LongestName))});
    }
    return problems;
}

} // namespace OrvGui
