// SPDX-License-Identifier: MIT
#include "settings/orvcamerasettings.h"

#include "base/genicamstring.h"
#include "settings/featurevalue.h"
#include "settings/settingscomparison.h"
#include "settings/settingselectors.h"
#include "settings/settingsorder.h"
#include "settings/settingsreader.h"
#include "settings/settingswriter.h"

#include "base/orvcameraguiapi_version.h"

#include <QElapsedTimer>
#include <QSet>
#include <QThread>

#include <utility>

namespace OrvGui {

namespace {

using Result = OrvCameraSettings::Result;

constexpr int longestCommand = 10000; // ms
constexpr int commandPeriod = 50;     // ms

void addProblems(const SettingProblems &problems, Result *result)
{
    for (const SettingProblem &problem : problems)
        result->problems.append({problem.setting.label(), problem.setting.value, problem.reason});
}

void addNotPutBack(const QStringList &selectors, Result *result)
{
    for (const QString &name : selectors)
        result->problems.append({name, QString(), FeatureValue::tr("It could not be put back.")});
}

Result resultOf(const SettingsReader::Result &read)
{
    Result result;
    result.error = read.error;
    result.isCancelled = read.isCancelled;
    addProblems(read.omitted, &result);
    addNotPutBack(read.notPutBack, &result);
    return result;
}

void addDifferences(const SettingDifferences &differences, Result *result)
{
    for (const SettingDifference &one : differences)
        result->differences.append({one.feature, one.left, one.right});
}

/// The settings of the file that the camera would not save.
Settings others(const Settings &ofFile, const Settings &ofCamera)
{
    QSet<QString> saved;
    for (const Setting &setting : ofCamera)
        saved.insert(setting.label());
    Settings rest;
    for (const Setting &setting : ofFile) {
        if (!saved.contains(setting.label()))
            rest.append(setting);
    }
    return rest;
}

void takeMissing(GenApi::INodeMap &map, Settings *settings, QStringList *missing)
{
    Settings found;
    QSet<QString> seen;
    for (const Setting &setting : qAsConst(*settings)) {
        if (settingOf(map, setting.name)) {
            found.append(setting);
        } else if (!seen.contains(setting.name)) {
            seen.insert(setting.name);
            *missing << setting.name;
        }
    }
    *settings = found;
}

/// Null, and a reason, when there is no such feature or it has another type.
GenApi::IValue *featureOf(GenApi::INodeMap &map, const QString &name, QString *error)
{
    auto *feature = dynamic_cast<GenApi::IValue *>(map.GetNode(toUtf8(name)));
    if (!feature)
        *error = FeatureValue::missing(name);
    return feature;
}

template<typename Act>
bool attempt(GenApi::IValue *feature, QString *error, Act act)
{
    try {
        act();
    } catch (const GenICam::GenericException &exception) {
        *error = FeatureValue::reason(feature, exception);
    }
    return error->isEmpty();
}

} // namespace

Result OrvCameraSettings::save(GenApi::INodeMap &map, const QString &fileName, Progress progress)
{
    SettingsReader reader(map, std::move(progress));
    const SettingsReader::Result read = reader.readAll();
    Result result = resultOf(read);
    if (read.settings.isEmpty() && result.error.isEmpty() && !result.isCancelled)
        result.error = SettingsReader::tr("The camera has no values that are meant to be saved.");
    if (!result.error.isEmpty() || result.isCancelled)
        return result;
    SettingsFile file;
    file.device = reader.device();
    file.comments << QStringLiteral("Application = OrvCameraGuiApi " ORVCAMERAGUIAPI_VERSION_TEXT);
    file.lines = read.settings;
    result.count = int(resolvedSettings(read.settings, map).size());
    file.write(fileName, &result.error);
    return result;
}

Result OrvCameraSettings::load(GenApi::INodeMap &map, const QString &fileName, Models models,
                               Progress progress)
{
    Result result;
    const SettingsFile file = SettingsFile::read(fileName, &result.error);
    if (!result.error.isEmpty())
        return result;
    if (models == SameModel && !SettingsReader(map).isSameModel(file.device)) {
        result.isOfOtherModel = true;
        result.error =
            SettingsFile::tr("The file '%1' is of another model: %2.").arg(fileName, file.device);
        return result;
    }
    SettingsWriter writer(map, std::move(progress));
    const SettingsWriter::Result written = writer.write(resolvedSettings(file.lines, map));
    result.error = written.error;
    result.isCancelled = written.isCancelled;
    result.count = written.written;
    addProblems(written.refused, &result);
    addNotPutBack(written.notPutBack, &result);
    Settings missing = written.missing;
    takeMissing(map, &missing, &result.missing);
    return result;
}

Result OrvCameraSettings::compare(GenApi::INodeMap &map, const QString &fileName, Progress progress)
{
    QString error;
    const SettingsFile file = SettingsFile::read(fileName, &error);
    if (!error.isEmpty()) {
        Result failed;
        failed.error = error;
        return failed;
    }
    SettingsReader reader(map, std::move(progress));
    const SettingsReader::Result read = reader.readAll();
    Result result = resultOf(read);
    // A setting in the file that cannot be read is reported as a difference.
    result.problems.clear();
    addNotPutBack(read.notPutBack, &result);
    Settings ofFile = resolvedSettings(file.lines, map);
    Settings ofCamera = resolvedSettings(read.settings, map);
    takeMissing(map, &ofFile, &result.missing);
    if (!result.error.isEmpty() || result.isCancelled)
        return result;
    const SettingsReader::Result more = reader.read(others(ofFile, ofCamera));
    result.error = more.error;
    result.isCancelled = more.isCancelled;
    addNotPutBack(more.notPutBack, &result);
    ofCamera += more.settings;
    result.count = int(ofFile.size());
    addDifferences(differencesOf(ofFile, ofCamera, &map), &result);
    return result;
}

Result OrvCameraSettings::compare(const QString &leftFile, const QString &rightFile)
{
    Result result;
    const SettingsFile left = SettingsFile::read(leftFile, &result.error);
    const SettingsFile right =
        result.error.isEmpty() ? SettingsFile::read(rightFile, &result.error) : SettingsFile();
    if (!result.error.isEmpty())
        return result;
    result.count = int(left.lines.size());
    addDifferences(
        differencesOf(resolvedSettings(left.lines), resolvedSettings(right.lines), nullptr),
        &result);
    return result;
}

QString OrvCameraSettings::value(GenApi::INodeMap &map, const QString &feature, QString *error)
{
    error->clear();
    GenApi::IValue *found = featureOf(map, feature, error);
    if (!found)
        return QString();
    QString text;
    attempt(found, error, [&] {
        if (!FeatureValue::exists(found))
            *error = FeatureValue::tr("It has no value.");
        else if (!GenApi::IsReadable(found->GetAccessMode()))
            *error = GenApi::IsAvailable(found->GetAccessMode())
                         ? FeatureValue::tr("It cannot be read.")
                         : FeatureValue::tr("It is not available now.");
        else
            text = FeatureValue::shownText(found);
    });
    if (!error->isEmpty())
        return QString();
    return text.isNull() ? QStringLiteral("") : text;
}

bool OrvCameraSettings::setValue(GenApi::INodeMap &map, const QString &feature,
                                 const QString &value, QString *error)
{
    error->clear();
    GenApi::IValue *found = featureOf(map, feature, error);
    return found && attempt(found, error, [&] { FeatureValue::writeShown(found, value); });
}

bool OrvCameraSettings::execute(GenApi::INodeMap &map, const QString &feature, QString *error)
{
    error->clear();
    GenApi::IValue *found = featureOf(map, feature, error);
    auto *command = dynamic_cast<GenApi::ICommand *>(found);
    if (found && !command)
        *error = FeatureValue::tr("It is no command.");
    return command && attempt(found, error, [&] {
               command->Execute(true);
               QElapsedTimer timer;
               timer.start();
               while (!command->IsDone(true)) {
                   if (timer.hasExpired(longestCommand)) {
                       *error = FeatureValue::tr("The camera is not done with it yet.");
                       return;
                   }
                   QThread::msleep(commandPeriod);
               }
           });
}

} // namespace OrvGui
