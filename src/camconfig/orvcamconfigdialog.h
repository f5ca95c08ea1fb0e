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

/// The base class of the configuration dialogs: a form whose controls are bound to features of a
/// device.
///
/// Each control writes its feature at once and follows its changes. The whole dialog is disabled
/// while it has no device, or a device without parameters. The device belongs to the caller; set
/// another one, or null, before releasing it. A dialog may be destroyed at any time, before or
/// after its device.
///
/// Use it on the GUI thread only, which must also be the thread that created the device.
class ORVCAMERAGUIAPI_EXPORT OrvCamConfigDialog : public QDialog
{
    Q_OBJECT

public:
    ~OrvCamConfigDialog() override;

    /// Binds the controls to another device, or to none if it is null. Call it again with the same
    /// device after a reconnect.
    ///
    /// A call from inside a read during the binding of another device takes effect when that
    /// binding is complete; that device must live until then.
    void SetDevice(OrvCam::Device *device);

    /// Closes the dialog; also called for the Escape key.
    void reject() override;

Q_SIGNALS:
    /// The dialog is about to be closed, by the user or by `close()`.
    void closing();

protected:
    /// Takes ownership of the private part, builds the form and binds it to the device, which may
    /// be null.
    OrvCamConfigDialog(OrvCamConfigDialogPrivate *part, OrvCam::Device *device, QWidget *parent);

    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    const QScopedPointer<OrvCamConfigDialogPrivate> d;
    bool m_isClosing = false;
};

} // namespace OrvGui
