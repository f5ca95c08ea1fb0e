// SPDX-License-Identifier: MIT
#pragma once

#include "orvcameraguiapi_export.h"

#include <OrvCam/DeviceOpener.h>

#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>
#include <memory>

class QWidget;

namespace OrvCam {
class DeviceInfo;
}

namespace OrvGui {

class OpeningProgress;

/// Opens a camera on a separate thread, so that windows stay responsive. When the opening takes
/// long, a dialog shows its progress and lets the user cancel.
///
/// Destroying the object cancels at once, without a notification: the camera is closed again when
/// it has been opened. Use it on the GUI thread only.
class ORVCAMERAGUIAPI_EXPORT OrvCamConfigOpening : public QObject
{
    Q_OBJECT

public:
    struct Result
    {
        OrvCam::Device *device = nullptr; ///< released by the receiver
        bool isCancelled = false;
        qint32 error = 0; ///< an `OrvCam::ErrorCode`
        QString reason;   ///< the reason of the failure for the user; plain text, maybe multi-line
    };

    /// The camera is not opened yet. The dialog is shown in front of the window, which may be null.
    OrvCamConfigOpening(OrvCam::DeviceInfo &camera, qint32 accessMode, QWidget *window = nullptr);
    ~OrvCamConfigOpening() override;

    /// Sets a function that is called first, with the open device, on the opening thread.
    void setPreparation(std::function<void(OrvCam::Device &)> prepare);

    /// Sets a function that receives the device as soon as it is open, even while `exec` is blocked
    /// by a nested event loop.
    void setReceiver(std::function<void(OrvCam::Device *)> receiver);

    /// Sets a function that is called repeatedly in place of the dialog, for a program without
    /// windows. It gets the downloaded share of the description in per cent, -1 before the
    /// download. Returning false cancels.
    void setProgress(std::function<bool(int percent)> progress);

    /// Opens the camera and processes events until it is open. The result does not contain a device
    /// that was passed to a receiver. The object may be destroyed during the call.
    Result exec();

protected:
    bool event(QEvent *event) override;

private:
    struct Job;
    class Workers;

    void start();
    void show();
    void abandon();
    void end();
    static Result take(Job &job);

    static void work(Job &job);
    static void deliver(Job &job, OrvCam::DeviceOpener::Result result);

    OrvCam::DeviceInfo &m_camera;
    const QPointer<QWidget> m_window;
    const QString m_name;
    const std::shared_ptr<Job> m_job;
    std::function<void(OrvCam::Device *)> m_receiver;
    std::function<bool(int)> m_report; ///< replaces the dialog
    QPointer<OpeningProgress> m_progress;
};

} // namespace OrvGui
