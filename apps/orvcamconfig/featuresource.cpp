// SPDX-License-Identifier: MIT
#include "featuresource.h"

#include <base/cameratext.h>
#include <description/nodemap.h>

#include <QCoreApplication>
#include <QFileInfo>

#include <utility>

namespace {

/// A description without a camera.
class DescriptionSource : public FeatureSource
{
public:
    explicit DescriptionSource(const QString &fileName)
        : m_map(OrvDescription::NodeMap::fromFile(fileName.toLocal8Bit().toStdString()))
        , m_title(QFileInfo(fileName).fileName())
    {
    }

    GenApi::INodeMap *nodeMap() const override { return m_map.get(); }
    QString title() const override { return m_title; }

private:
    std::unique_ptr<OrvDescription::NodeMap> m_map;
    QString m_title;
};

/// An opened camera.
class CameraSource : public FeatureSource
{
public:
    CameraSource(Released<OrvCam::Device> device, GenApi::INodeMap *map, bool isReadOnly)
        : m_device(std::move(device)), m_map(map), m_isReadOnly(isReadOnly)
    {
    }

    GenApi::INodeMap *nodeMap() const override { return m_map; }
    QString title() const override
    {
        const auto name = OrvGui::cameraText(m_device->GetDeviceInfo()->GetDisplayName());
        return m_isReadOnly ? FeatureSource::tr("%1 (read only)").arg(name) : name;
    }
    QString warning() const override
    {
        if (!m_isReadOnly)
            return QString();
        return FeatureSource::tr("The camera '%1' is read only: another program controls it.")
            .arg(OrvGui::cameraText(m_device->GetDeviceInfo()->GetId()));
    }

private:
    Released<OrvCam::Device> m_device;
    GenApi::INodeMap *const m_map; ///< the device's, also after the camera has vanished
    const bool m_isReadOnly;
};

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

QString failure(const OrvCam::DeviceInfo &camera, int32_t code)
{
    return FeatureSource::tr("The camera '%1' cannot be opened: %2.")
        .arg(QString::fromUtf8(camera.GetId()), reason(code));
}

} // namespace

Released<OrvCam::Device> openDevice(OrvCam::DeviceInfo &camera, QString *error)
{
    int32_t code = OrvCam::Success;
    Released<OrvCam::Device> device(OrvCam_CreateDevice(&camera, &code, OrvCam::AccessControl));
    if (!device)
        *error = failure(camera, code);
    return device;
}

std::unique_ptr<FeatureSource> FeatureSource::openCamera(OrvCam::DeviceInfo &camera, QString *error)
{
    int32_t code = OrvCam::Success;
    Released<OrvCam::Device> device(OrvCam_CreateDevice(&camera, &code, OrvCam::AccessControl));
    const bool isReadOnly = code == OrvCam::ErrorBusy;
    if (isReadOnly)
        device.reset(OrvCam_CreateDevice(&camera, &code, OrvCam::AccessMonitor));
    if (device)
        return ofDevice(std::move(device), isReadOnly, error);
    *error = failure(camera, code);
    return nullptr;
}

std::unique_ptr<FeatureSource> FeatureSource::ofDevice(Released<OrvCam::Device> device,
                                                       bool isReadOnly, QString *error)
{
    OrvGenParam::Array *array = device->GetParamArray();
    GenApi::INodeMap *map = array ? array->GetNodeMap() : nullptr;
    if (map)
        return std::make_unique<CameraSource>(std::move(device), map, isReadOnly);
    *error = failure(*device->GetDeviceInfo(), OrvCam::ErrorGone);
    return nullptr;
}

std::unique_ptr<FeatureSource> FeatureSource::openDescription(const QString &fileName,
                                                              QString *error)
{
    try {
        return std::make_unique<DescriptionSource>(fileName);
    } catch (const GenICam::GenericException &e) {
        *error = QString::fromUtf8(e.GetDescription());
        return nullptr;
    }
}
