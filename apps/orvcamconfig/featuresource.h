// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam.h>
#include <OrvGenParam.h>

#include <QCoreApplication>
#include <QString>

#include <memory>

class OpeningLine;

/// Opens a camera, whose system must outlive the device, while a dialog shows how far that has
/// come. Null on failure, with `error` one line, which is empty when the user has cancelled.
OrvCam::Released<OrvCam::Device> openDevice(OrvCam::DeviceInfo &camera, QString *error);

/// The features that the program shows, and what keeps them alive.
class FeatureSource
{
    Q_DECLARE_TR_FUNCTIONS(FeatureSource)

public:
    virtual ~FeatureSource() = default;

    /// Never null.
    virtual GenApi::INodeMap *nodeMap() const = 0;

    /// Where the features come from, for a window's title.
    virtual QString title() const = 0;

    /// One line about what a user may not expect; usually empty.
    virtual QString warning() const { return QString(); }

    /// Opens a camera as `openDevice` does; one that another program controls for reading.
    static std::unique_ptr<FeatureSource> openCamera(OrvCam::DeviceInfo &camera, QString *error);

    /// The same without a dialog: a terminal shows how far it has come. An opening that does not
    /// come on for a minute fails.
    static std::unique_ptr<FeatureSource> openCameraForText(OrvCam::DeviceInfo &camera,
                                                            QString *error);

    /// Takes over an opened camera, whose system must outlive it. Null, with `error` one line,
    /// when it has vanished since.
    static std::unique_ptr<FeatureSource> ofDevice(OrvCam::Released<OrvCam::Device> device,
                                                   bool isReadOnly, QString *error);

    /// Reads a description. Null on failure, with `error` one line.
    static std::unique_ptr<FeatureSource> openDescription(const QString &fileName, QString *error);

private:
    static std::unique_ptr<FeatureSource> open(OrvCam::DeviceInfo &camera, OpeningLine *progress,
                                               QString *error);
};
