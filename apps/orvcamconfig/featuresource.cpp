// SPDX-License-Identifier: MIT
#include "featuresource.h"

#include "openingline.h"

#include <base/cameratext.h>
#include <orvcamconfig.h>
#include <orvcamconfigopening.h>

#include <QCoreApplication>
#include <QFileInfo>

#include <array>
#include <utility>

using OrvGui::OrvCamConfigOpening;
using Result = OrvCamConfigOpening::Result;

namespace {

/// A description without a camera.
class DescriptionSource : public FeatureSource
{
public:
    DescriptionSource(GenApi::INodeMap *map, const QString &fileName)
        : m_map(map, &OrvGenParam_ReleaseNodeMap), m_title(QFileInfo(fileName).fileName())
    {
    }

    GenApi::INodeMap *nodeMap() const override { return m_map.get(); }
    QString title() const override { return m_title; }

private:
    std::unique_ptr<GenApi::INodeMap, decltype(&OrvGenParam_ReleaseNodeMap)> m_map;
    QString m_title;
};

/// An opened camera.
class CameraSource : public FeatureSource
{
public:
    CameraSource(OrvCam::Released<OrvCam::Device> device, GenApi::INodeMap *map, bool isReadOnly)
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
    OrvCam::Released<OrvCam::Device> m_device;
    /// Of the device; not null, even after the camera has been disconnected.
    GenApi::INodeMap *const m_map;
    const bool m_isReadOnly;
};

QString failure(const OrvCam::DeviceInfo &camera, const Result &result)
{
    if (result.isCancelled)
        return QString();
    const QString text = FeatureSource::tr("The camera '%1' cannot be opened.")
                             .arg(QString::fromUtf8(camera.GetId()));
    return result.reason.isEmpty() ? text : text + ' ' + QString(result.reason).replace('\n', ' ');
}

} // namespace

OrvCam::Released<OrvCam::Device> openDevice(OrvCam::DeviceInfo &camera, QString *error)
{
    OrvCamConfigOpening opening(camera, OrvCam::AccessControl);
    opening.setPreparation(&OrvGui::OrvCamConfig::prepare);
    const Result result = opening.exec();
    if (!result.device)
        *error = failure(camera, result);
    return OrvCam::Released<OrvCam::Device>(result.device);
}

std::unique_ptr<FeatureSource> FeatureSource::openCamera(OrvCam::DeviceInfo &camera, QString *error)
{
    return open(camera, nullptr, error);
}

std::unique_ptr<FeatureSource> FeatureSource::openCameraForText(OrvCam::DeviceInfo &camera,
                                                                QString *error)
{
    OpeningLine progress(QString::fromUtf8(camera.GetId()));
    auto source = open(camera, &progress, error);
    if (progress.hasStalled())
        *error = tr("The camera '%1' has sent nothing new for %2 seconds.")
                     .arg(QString::fromUtf8(camera.GetId()))
                     .arg(OpeningLine::longestStandstill / 1000);
    return source;
}

std::unique_ptr<FeatureSource> FeatureSource::open(OrvCam::DeviceInfo &camera,
                                                   OpeningLine *progress, QString *error)
{
    const auto openWith = [&](int32_t accessMode) {
        OrvCamConfigOpening opening(camera, accessMode);
        if (progress)
            opening.setProgress([progress](int percent) { return progress->show(percent); });
        return opening.exec();
    };
    Result result = openWith(OrvCam::AccessControl);
    const bool isReadOnly = result.error == OrvCam::ErrorBusy;
    if (isReadOnly)
        result = openWith(OrvCam::AccessMonitor);
    if (result.device)
        return ofDevice(OrvCam::Released<OrvCam::Device>(result.device), isReadOnly, error);
    *error = failure(camera, result);
    return nullptr;
}

std::unique_ptr<FeatureSource> FeatureSource::ofDevice(OrvCam::Released<OrvCam::Device> device,
                                                       bool isReadOnly, QString *error)
{
    OrvGenParam::Array *array = device->GetParamArray();
    GenApi::INodeMap *map = array ? array->GetNodeMap() : nullptr;
    if (map)
        return std::make_unique<CameraSource>(std::move(device), map, isReadOnly);
    *error =
        tr("The camera '%1' is gone.").arg(QString::fromUtf8(device->GetDeviceInfo()->GetId()));
    return nullptr;
}

std::unique_ptr<FeatureSource> FeatureSource::openDescription(const QString &fileName,
                                                              QString *error)
{
    std::array<char, 1000> reason;
    GenApi::INodeMap *map = OrvGenParam_LoadDescription(fileName.toLocal8Bit().constData(),
                                                        reason.data(), reason.size());
    if (map)
        return std::make_unique<DescriptionSource>(map, fileName);
    *error = OrvGui::cameraText(reason.data());
    return nullptr;
}
