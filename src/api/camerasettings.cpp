// SPDX-License-Identifier: MIT
#include "api/orvcameraguiapi.h"

#include "settings/orvcamerasettings.h"

#include <QStringList>

#include <algorithm>
#include <cstring>

using OrvGui::OrvCameraSettings;

namespace {

/// Truncates the text between characters, never inside one.
void copy(QByteArray text, char *report, size_t size)
{
    if (!report || size == 0)
        return;
    int length = int(std::min(size_t(text.size()), size - 1));
    while (length > 0 && length < text.size() && (text[length] & 0xC0) == 0x80)
        --length;
    std::memcpy(report, text.constData(), size_t(length));
    report[length] = '\0';
}

int answer(const OrvCameraSettings::Result &result, char *report, size_t size)
{
    QStringList lines;
    if (!result.error.isEmpty())
        lines << result.error;
    for (const auto &problem : result.problems)
        lines << problem.feature + QStringLiteral(": ") + problem.reason;
    for (const QString &name : result.missing)
        lines << name + QStringLiteral(": ") +
                     OrvCameraSettings::tr("The camera does not have it.");
    for (const auto &one : result.differences)
        lines << one.feature + QLatin1Char('\t') + one.left + QLatin1Char('\t') + one.right;
    copy(lines.join(QLatin1Char('\n')).toUtf8(), report, size);
    if (result.isOfOtherModel)
        return OrvSettings_OtherModel;
    if (!result.error.isEmpty())
        return OrvSettings_Failed;
    return lines.isEmpty() ? OrvSettings_Done : OrvSettings_Partly;
}

int fail(const char *why, char *report, size_t size)
{
    copy(OrvCameraSettings::tr(why).toUtf8(), report, size);
    return OrvSettings_Failed;
}

int withoutCamera(char *report, size_t size)
{
    return fail(QT_TRANSLATE_NOOP("OrvGui::OrvCameraSettings", "There is no camera."), report,
                size);
}

} // namespace

int SaveCameraSettings(OrvGenApiNodeMap *nodeMap, const char *fileName, char *report,
                       size_t reportSize)
{
    if (!nodeMap)
        return withoutCamera(report, reportSize);
    return answer(OrvCameraSettings::save(*nodeMap, QString::fromUtf8(fileName)), report,
                  reportSize);
}

int LoadCameraSettings(OrvGenApiNodeMap *nodeMap, const char *fileName, int anyModel, char *report,
                       size_t reportSize)
{
    if (!nodeMap)
        return withoutCamera(report, reportSize);
    const auto models = anyModel ? OrvCameraSettings::AnyModel : OrvCameraSettings::SameModel;
    return answer(OrvCameraSettings::load(*nodeMap, QString::fromUtf8(fileName), models), report,
                  reportSize);
}

int CompareCameraSettings(const char *fileName, OrvGenApiNodeMap *nodeMap, const char *secondFile,
                          char *report, size_t reportSize)
{
    const QString first = QString::fromUtf8(fileName);
    if (nodeMap)
        return answer(OrvCameraSettings::compare(*nodeMap, first), report, reportSize);
    if (!secondFile)
        return withoutCamera(report, reportSize);
    return answer(OrvCameraSettings::compare(first, QString::fromUtf8(secondFile)), report,
                  reportSize);
}
