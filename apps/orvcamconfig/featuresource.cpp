// SPDX-License-Identifier: MIT
#include "featuresource.h"

#include "options.h"

#include <aravis/nodemap.h>

#include <QFileInfo>
#include <QStringList>

#include <vector>

namespace {

const quint32 DiscoveryTime = 200; // ms on each interface

template<typename Object>
struct Releaser
{
    void operator()(Object *object) const { object->Release(); }
};

template<typename Object>
using Released = std::unique_ptr<Object, Releaser<Object>>;

/// A description without a camera.
class DescriptionSource : public FeatureSource
{
public:
    explicit DescriptionSource(const QString &fileName)
        : m_map(OrvAravis::NodeMap::fromFile(fileName.toLocal8Bit().toStdString()))
        , m_title(QFileInfo(fileName).fileName())
    {
    }

    GenApi::INodeMap *nodeMap() const override { return m_map.get(); }
    QString title() const override { return m_title; }

private:
    std::unique_ptr<OrvAravis::NodeMap> m_map;
    QString m_title;
};

/// An opened camera.
class CameraSource : public FeatureSource
{
public:
    CameraSource(Released<OrvCam::System> system, Released<OrvCam::Device> device)
        : m_system(std::move(system)), m_device(std::move(device))
    {
    }

    GenApi::INodeMap *nodeMap() const override
    {
        OrvGenParam::Array *array = m_device->GetParamArray();
        return array ? array->GetNodeMap() : nullptr;
    }
    QString title() const override
    {
        return QString::fromUtf8(m_device->GetDeviceInfo()->GetDisplayName());
    }

private:
    Released<OrvCam::System> m_system; // outlives the device, whose record it owns
    Released<OrvCam::Device> m_device;
};

std::vector<OrvCam::DeviceInfo *> foundCameras(OrvCam::System &system)
{
    std::vector<OrvCam::DeviceInfo *> cameras;
    const Released<OrvCam::InterfaceList> interfaces(system.GetInterfaceSet(OrvCam::InterfaceAll));
    if (!interfaces)
        return cameras;
    for (OrvCam::Interface *i = interfaces->GetFirst(); i; i = interfaces->GetNext()) {
        i->RefreshDevices(nullptr, DiscoveryTime);
        const Released<OrvCam::DeviceInfoList> infos(i->GetDeviceInfoSet());
        if (!infos)
            continue;
        for (OrvCam::DeviceInfo *info = infos->GetFirst(); info; info = infos->GetNext())
            cameras.push_back(info);
    }
    return cameras;
}

bool isCalled(const OrvCam::DeviceInfo &info, const QString &name)
{
    for (const char *text :
         {info.GetId(), info.GetSerial(), info.GetUserName(), info.GetDisplayName()}) {
        if (text && name == QString::fromUtf8(text))
            return true;
    }
    return false;
}

/// The camera of that name; without a name, the first that can be used.
OrvCam::DeviceInfo *chosenCamera(const std::vector<OrvCam::DeviceInfo *> &cameras,
                                 const QString &name, QString *error)
{
    QStringList found;
    for (OrvCam::DeviceInfo *info : cameras) {
        if (name.isEmpty() ? info->GetAccessState() == OrvCam::AccessReadWrite
                           : isCalled(*info, name))
            return info;
        found << QString::fromUtf8(info->GetId());
    }
    if (found.isEmpty())
        *error = FeatureSource::tr("No camera was found.");
    else if (name.isEmpty())
        *error =
            FeatureSource::tr("None of the cameras found can be used: %1.").arg(found.join(", "));
    else
        *error =
            FeatureSource::tr("There is no camera '%1'. Found: %2.").arg(name, found.join(", "));
    return nullptr;
}

QString reason(int32_t code)
{
    switch (code) {
    case OrvCam::ErrorBusy:
        return FeatureSource::tr("somebody else has it open");
    case OrvCam::ErrorGone:
        return FeatureSource::tr("it does not answer");
    case OrvCam::ErrorTimeout:
        return FeatureSource::tr("it did not answer in time");
    case OrvCam::ErrorWrongSubnet:
        return FeatureSource::tr("its address does not fit the network adapter's subnet");
    case OrvCam::ErrorBadDescription:
        return FeatureSource::tr("its description cannot be understood");
    case OrvCam::ErrorAccessDenied:
        return FeatureSource::tr("it refuses access");
    default:
        return FeatureSource::tr("error code %1").arg(code);
    }
}

std::unique_ptr<FeatureSource> openCamera(const Options &options, QString *error)
{
    if (options.simulate)
        qputenv("ORVCAM_SIMULATION", "1");
    Released<OrvCam::System> system(OrvCam_GetSystem());
    if (!system) {
        *error = FeatureSource::tr("The camera system cannot be started.");
        return nullptr;
    }
    OrvCam::DeviceInfo *info = chosenCamera(foundCameras(*system), options.camera, error);
    if (!info)
        return nullptr;
    int32_t code = OrvCam::Success;
    Released<OrvCam::Device> device(OrvCam_CreateDevice(info, &code, OrvCam::AccessControl));
    if (!device) {
        *error = FeatureSource::tr("The camera '%1' cannot be opened: %2.")
                     .arg(QString::fromUtf8(info->GetId()), reason(code));
        return nullptr;
    }
    return std::make_unique<CameraSource>(std::move(system), std::move(device));
}

} // namespace

std::unique_ptr<FeatureSource> FeatureSource::open(const Options &options, QString *error)
{
    if (options.description.isEmpty())
        return openCamera(options, error);
    try {
        return std::make_unique<DescriptionSource>(options.description);
    } catch (const GenICam::GenericException &e) {
        *error = QString::fromUtf8(e.GetDescription());
        return nullptr;
    }
}
