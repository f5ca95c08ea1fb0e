// SPDX-License-Identifier: MIT
#pragma once

#include "orvcameraguiapi_export.h"

#include <QMainWindow>
#include <QScopedPointer>

namespace OrvCam {
class Device;
}

namespace OrvGui {

class OrvCamConfigPrivate;

/// The window for configuring one camera: shows the present state of each of its frames, and opens
/// the dialogs that change the settings.
///
/// Give it a device, or none to let the user pick a camera in the constructor. The user can
/// disconnect the camera and connect another one at any time. While a camera is being opened the
/// window has no device and events are processed; setting another device, or closing the window,
/// cancels the opening. When a camera is unplugged the window has no device until about a second
/// after the camera is back.
///
/// A device that the caller sets remains the caller's: set another one, or null, before releasing
/// it, even while its camera is unplugged. A device that the window has opened for the user is
/// released by the window when the user disconnects it, when another one replaces it, or when the
/// window is destroyed.
///
/// To read the state of the other frame, the window switches the camera's frame selector and
/// restores it at once: when a device is set, and when the frame mode changes. Windows of this
/// library ignore these notifications; event sinks of the host are notified twice. For a camera
/// that the window opens itself the state is read on the opening thread, before the device is
/// available to others, and the window does not block.
///
/// Use it on the GUI thread only, which must also be the thread that created the device, and not
/// from inside a notification of the device.
class ORVCAMERAGUIAPI_EXPORT OrvCamConfig : public QMainWindow
{
    Q_OBJECT

public:
    /// Runs the camera picker when the device is null.
    explicit OrvCamConfig(OrvCam::Device *device, QWidget *parent = nullptr,
                          Qt::WindowFlags flags = Qt::WindowFlags());
    ~OrvCamConfig() override;

    /// Sets the device to configure; null for none.
    void SetDevice(OrvCam::Device *device);

    /// The present device; null when there is none, and while its camera is unplugged.
    OrvCam::Device *device() const;

    /// Reads the values that such a window and its dialogs show of the device, in few transfers, so
    /// that the window finds them cached. May be called on any thread, provided that the device is
    /// not in use elsewhere.
    static void prepare(OrvCam::Device &device);

Q_SIGNALS:
    /// The result of `device` has changed. Also emitted for the same device when its camera is
    /// back, or when the frame selector could not be restored. Drop all references to the previous
    /// device and its parameters: the device may be released next.
    void deviceChanged(OrvCam::Device *device);

    /// The window no longer uses a device that the caller set, because the user has disconnected it
    /// or connected another one, or because `SetDevice` was called. It may be released now.
    void deviceGivenUp(OrvCam::Device *device);

protected:
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    friend class SilentCamConfig;
    struct WithoutPicker
    {
    };

    OrvCamConfig(WithoutPicker, OrvCam::Device *device, QWidget *parent, Qt::WindowFlags flags);

    const QScopedPointer<OrvCamConfigPrivate> d;
};

} // namespace OrvGui
