// SPDX-License-Identifier: MIT
#pragma once

#include "orvcameraguiapi_export.h"

#include <QDialog>
#include <QScopedPointer>

namespace OrvCam {
class Device;
}

namespace OrvGui {

class OrvCamConfigDialogPrivate;

/// What the dialogs that configure one subject of a camera have in common: a form whose controls
/// are bound to features of a device.
///
/// Each control writes its feature at once, and shows it whenever the camera changes it. Without a
/// device that can be used (none, or one that has no parameters to offer) the whole dialog is
/// disabled. The device belongs to the caller; hand over another one, or null, before it is
/// released. A dialog may be destroyed at any time, before or after its device.
///
/// Use it on the GUI thread only, which is also the one that the device was created on.
class ORVCAMERAGUIAPI_EXPORT OrvCamConfigDialog : public QDialog
{
    Q_OBJECT

public:
    ~OrvCamConfigDialog() override;

    /// Binds the controls to another device; to none if it is null. To be called again with the
    /// same device after it has been disconnected and is back.
    ///
    /// A call that comes from a read of the device that is just being bound counts when that one is
    /// bound; that device must live so long.
    void SetDevice(OrvCam::Device *device);

    /// Closes the dialog; the Escape key comes here, too.
    void reject() override;

Q_SIGNALS:
    /// The dialog is about to be closed, by the user or by `close()`.
    void closing();

protected:
    /// Takes over the private part, builds the form and binds it to the device, which may be null.
    OrvCamConfigDialog(OrvCamConfigDialogPrivate *part, OrvCam::Device *device, QWidget *parent);

    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    const QScopedPointer<OrvCamConfigDialogPrivate> d;
    bool m_isClosing = false;
};

} // namespace OrvGui
