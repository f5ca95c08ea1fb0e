// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam.h>
#include <OrvGenParam.h>

#include <QCoreApplication>
#include <QString>

#include <memory>

class OpeningLine;

/// Opens a camera, whose system must outlive the device, with a progress dialog. Returns null on
/// failure, with a one-line `error`, which is empty when the user has cancelled.
OrvCam::Released<OrvCam::Device> openDevice(OrvCam::DeviceInfo &camera, QString *error);

/// The features that the program shows, with the owner of their node map.
class FeatureSource
{
    Q_DECLARE_TR_FUNCTIONS(FeatureSource)

public:
    virtual ~FeatureSource() = default;

    /// Never null.
    virtual GenApi::INodeMap *nodeMap() const = 0;

    /// The name of the camera or file, for a window's title.
    virtual QString title() const = 0;

    /// A one-line remark about something unexpected; usually empty.
    virtual QString warning() const { return QString(); }

    /// Opens a camera as `openDevice` does, but read-only if another program controls it.
    static std::unique_ptr<FeatureSource> openCamera(OrvCam::DeviceInfo &camera, QString *error);

    /// The same with progress output on a terminal in place of a dialog. Fails when there is no
    /// progress for a minute.
    static std::unique_ptr<FeatureSource> openCameraForText(OrvCam::DeviceInfo &camera,
                                                            QString *error);

    /// Takes ownership of an opened camera, whose system must outlive it. Returns null, with a
    /// one-line `error`, when it has been disconnected in the meantime.
    static std::unique_ptr<FeatureSource> ofDevice(OrvCam::Released<OrvCam::Device> device,
                                                   bool isReadOnly, QString *error);

    /// Reads a description. Returns null on failure, with a one-line `error`.
    static std::unique_ptr<FeatureSource> openDescription(const QString &fileName, QString *error);

private:
    static std::unique_ptr<FeatureSource> open(OrvCam::DeviceInfo &camera, OpeningLine *progress,
                                               QString *error);
};
