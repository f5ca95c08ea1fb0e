// SPDX-License-Identifier: MIT
#include "cameras.h"

#include <OrvGenParam.h>
#include <base/cameratext.h>

#include <QCoreApplication>
#include <QStringList>

#include <vector>

namespace {

struct Cameras
{
    Q_DECLARE_TR_FUNCTIONS(Cameras)
};

constexpr quint32 discoveryTime = 200; // ms, on all network adapters at once

std::vector<OrvCam::Interface *> foundInterfaces(OrvCam::System &system)
{
    std::vector<OrvCam::Interface *> interfaces;
    const OrvCam::Released<OrvCam::InterfaceList> list(
        system.GetInterfaceSet(OrvCam::InterfaceAll));
    if (!list)
        return interfaces;
    for (OrvCam::Interface *i = list->GetFirst(); i; i = list->GetNext())
        interfaces.push_back(i);
    return interfaces;
}

std::vector<OrvCam::DeviceInfo *> foundCameras(OrvCam::Interface &interface)
{
    std::vector<OrvCam::DeviceInfo *> cameras;
    interface.RefreshDevices(nullptr, discoveryTime);
    const OrvCam::Released<OrvCam::DeviceInfoList> list(interface.GetDeviceInfoSet());
    if (!list)
        return cameras;
    for (OrvCam::DeviceInfo *info = list->GetFirst(); info; info = list->GetNext())
        cameras.push_back(info);
    return cameras;
}

bool isCalled(const OrvCam::DeviceInfo &info, const QString &name)
{
    // MAC addresses may be in upper or lower case.
    if (name.compare(QString::fromUtf8(info.GetId()), Qt::CaseInsensitive) == 0)
        return true;
    for (const char *text : {info.GetSerial(), info.GetUserName(), info.GetDisplayName()}) {
        if (text && name == QString::fromUtf8(text))
            return true;
    }
    return false;
}

/// Empty when the camera has none. `row` is the camera's index on its interface.
QString addressOf(OrvCam::Interface &interface, int row)
{
    OrvGenParam::Array *parameters = interface.GetTransportKind() == OrvCam::TransportGigEVision
                                         ? interface.GetParamArray()
                                         : nullptr;
    if (!parameters || parameters->SetIntegerValue("DeviceSelector", row) != OrvCam::Success)
        return QString();
    int32_t error = OrvCam::Success;
    const int64_t address = parameters->GetIntegerValue("GevDeviceIPAddress", &error);
    if (error != OrvCam::Success)
        return QString();
    QStringList groups;
    for (int shift = 24; shift >= 0; shift -= 8)
        groups << QString::number((address >> shift) & 0xff);
    return groups.join('.');
}

/// For scripts; never translated.
QString accessWord(int32_t state)
{
    switch (state) {
    case OrvCam::AccessReadWrite:
        return QStringLiteral("read-write");
    case OrvCam::AccessReadOnly:
        return QStringLiteral("read-only");
    case OrvCam::AccessNone:
        return QStringLiteral("no-access");
    case OrvCam::AccessSubnetMismatch:
        return QStringLiteral("subnet-mismatch");
    default:
        return QStringLiteral("unknown");
    }
}

/// Replaces characters that look like the end of a field or line.
QString field(const char *text)
{
    QString plain = QString::fromUtf8(text);
    for (QChar &character : plain) {
        if (character.category() == QChar::Other_Control)
            character = ' ';
    }
    return OrvGui::cameraText(plain);
}

} // namespace

OrvCam::DeviceInfo *findCamera(OrvCam::System &system, const QString &name, QString *error)
{
    QStringList found;
    for (OrvCam::Interface *interface : foundInterfaces(system)) {
        for (OrvCam::DeviceInfo *info : foundCameras(*interface)) {
            if (name.isEmpty() ? info->GetAccessState() == OrvCam::AccessReadWrite
                               : isCalled(*info, name))
                return info;
            found << QString::fromUtf8(info->GetId());
        }
    }
    if (found.isEmpty())
        *error = Cameras::tr("No camera was found.");
    else if (name.isEmpty())
        *error = Cameras::tr("None of the cameras found can be used: %1.").arg(found.join(", "));
    else
        *error = Cameras::tr("There is no camera '%1'. Found: %2.").arg(name, found.join(", "));
    return nullptr;
}

int printCameras(OrvCam::System &system, QTextStream &out)
{
    int count = 0;
    for (OrvCam::Interface *interface : foundInterfaces(system)) {
        int row = 0;
        for (const OrvCam::DeviceInfo *info : foundCameras(*interface)) {
            out << field(info->GetId()) << '\t' << field(info->GetDisplayName()) << '\t'
                << addressOf(*interface, row++) << '\t' << accessWord(info->GetAccessState())
                << '\n';
        }
        count += row;
    }
    return count;
}
