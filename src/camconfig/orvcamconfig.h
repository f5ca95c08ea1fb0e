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

/// The window for configuring one camera: shows what it does at this moment, for each of its
/// frames, and opens the dialogs that change it.
///
/// Give it a device, or none to have the user pick a camera in the constructor. The user can
/// disconnect and connect another one at any time. While a camera is being opened events are
/// handled, and the window is without one; another device, or closing the window, cancels that. A
/// camera that is unplugged leaves the window without one, and comes back about a second after it
/// is there again.
///
/// A device that you give remains yours: give another one, or null, before you release it, also
/// while its camera is unplugged. A device that the window has opened for the user is released by
/// the window, as soon as the user disconnects it, another one takes its place, or the window goes.
///
/// To read what the other frame does, the window moves the camera's frame selector and moves it
/// back at once: when it gets a device, and when the frame mode changes. Windows of this library
/// ignore that; event sinks of your own are notified twice. With a camera that the window opens
/// itself it does so before the device is there, and does not wait.
///
/// Use it on the GUI thread only, which is also the one that the device was created on, and not
/// from inside a notification of the device.
class ORVCAMERAGUIAPI_EXPORT OrvCamConfig : public QMainWindow
{
    Q_OBJECT

public:
    /// Without a device, runs the camera picker before it returns.
    explicit OrvCamConfig(OrvCam::Device *device, QWidget *parent = nullptr,
                          Qt::WindowFlags flags = Qt::WindowFlags());
    ~OrvCamConfig() override;

    /// Configures that camera from now on; none if it is null.
    void SetDevice(OrvCam::Device *device);

    /// What the window works with at this moment; null while its camera is unplugged, and without
    /// one.
    OrvCam::Device *device() const;

    /// Reads what such a window and its dialogs are going to show of the device, in few transfers,
    /// so that the window need not. May be called on any thread as long as nobody else has the
    /// device.
    static void prepare(OrvCam::Device &device);

Q_SIGNALS:
    /// What `device` answers has changed, or it is the same device with other parameters, for it
    /// was unplugged, or with a frame selector that could not be moved back. Give up everything of
    /// the former device: it may be released next.
    void deviceChanged(OrvCam::Device *device);

    /// The window has given up a device that it was given, because the user has disconnected it or
    /// connected another one, or `SetDevice` was called. It may be released now.
    void deviceGivenUp(OrvCam::Device *device);

protected:
    enum Choice { NoChoice };

    /// Without a device, stays without one.
    OrvCamConfig(Choice, OrvCam::Device *device, QWidget *parent, Qt::WindowFlags flags);

    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    const QScopedPointer<OrvCamConfigPrivate> d;
};

} // namespace OrvGui
