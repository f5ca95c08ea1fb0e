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

/// Opens a camera on a thread of its own, so that windows stay alive meanwhile. When it takes
/// longer, a dialog shows how far it has come and lets the user cancel.
///
/// Destroying the object cancels, at once: the camera is closed again as soon as it is open, and
/// nobody is told. To be used on the GUI thread.
class ORVCAMERAGUIAPI_EXPORT OrvCamConfigOpening : public QObject
{
    Q_OBJECT

public:
    struct Result
    {
        OrvCam::Device *device = nullptr; ///< to be released by the receiver
        bool isCancelled = false;
        qint32 error = 0; ///< an `OrvCam::ErrorCode`
        QString reason;   ///< why it failed, for the user; plain text, may have several lines
    };

    /// Opens nothing yet. The dialog is shown in front of the window, which may be null.
    OrvCamConfigOpening(OrvCam::DeviceInfo &camera, qint32 accessMode, QWidget *window = nullptr);
    ~OrvCamConfigOpening() override;

    /// Is called with the open device before anybody else gets it, on the thread that opens it.
    void setPreparation(std::function<void(OrvCam::Device &)> prepare);

    /// Who gets the device as soon as it is open, also while a dialog that was opened later is
    /// still waited for.
    void setReceiver(std::function<void(OrvCam::Device *)> receiver);

    /// Is told again and again in place of the dialog, for a program without windows, which share
    /// of the description has come: in per cent, -1 as long as there is none. Answers false to
    /// cancel.
    void setProgress(std::function<bool(int percent)> progress);

    /// Opens the camera and handles events until that is over. What a receiver has got is not in
    /// the result. The object may be destroyed meanwhile.
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
    std::function<bool(int)> m_report; ///< in place of the dialog
    QPointer<OpeningProgress> m_progress;
};

} // namespace OrvGui
