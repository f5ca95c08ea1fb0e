// SPDX-License-Identifier: MIT
#include "orvcamconfigdialog_p.h"

#include <OrvCam/Device.h>

#include <QPointer>

namespace OrvGui {

OrvCamConfigDialogPrivate::OrvCamConfigDialogPrivate() = default;
OrvCamConfigDialogPrivate::~OrvCamConfigDialogPrivate() = default;

bool OrvCamConfigDialogPrivate::init(OrvCamConfigDialog *dialog, OrvCam::Device *newDevice)
{
    q = dialog;
    device = newDevice;
    m_isOutdated = true;
    if (m_isBinding)
        return false; // from within; the call that is under way goes round again

    m_isBinding = true;
    while (m_isOutdated) {
        m_isOutdated = false;
        target();
    }
    m_isBinding = false;

    const Tenure tenure(this);
    if (array)
        settle();
    return !tenure.isOver() && array;
}

void OrvCamConfigDialogPrivate::target()
{
    if (!m_isFormBuilt) {
        buildForm();
        m_isFormBuilt = true;
    }
    ++m_tenures;
    mapper.unmapAll();
    m_handlers.reset(new QObject);
    release();

    int32_t error = OrvCam::Success;
    array = device ? device->GetParamArray(&error) : nullptr;
    if (error != OrvCam::Success)
        array = nullptr;
    q->setEnabled(array);
    if (array)
        bind();
}

OrvCamConfigDialogPrivate::Tenure::Tenure(const OrvCamConfigDialogPrivate *part)
    : m_part(part), m_dialog(part->q), m_number(part->m_tenures)
{
}

bool OrvCamConfigDialogPrivate::Tenure::isOver() const
{
    return !m_dialog || m_part->m_tenures != m_number;
}

OrvCamConfigDialog::OrvCamConfigDialog(OrvCamConfigDialogPrivate *part, OrvCam::Device *device,
                                       QWidget *parent)
    : QDialog(parent), d(part)
{
    d->init(this, device);
}

OrvCamConfigDialog::~OrvCamConfigDialog() = default;

void OrvCamConfigDialog::SetDevice(OrvCam::Device *device)
{
    d->init(this, device);
}

void OrvCamConfigDialog::reject()
{
    // QDialog hides at once, without a close event; on closing, it comes here to be hidden.
    if (m_isClosing || !isVisible())
        QDialog::reject();
    else
        close();
}

void OrvCamConfigDialog::showEvent(QShowEvent *event)
{
    d->prepareToShow();
    QDialog::showEvent(event);
}

void OrvCamConfigDialog::closeEvent(QCloseEvent *event)
{
    const QPointer<OrvCamConfigDialog> self(this);
    emit closing();
    if (!self)
        return;
    m_isClosing = true;
    QDialog::closeEvent(event);
    if (self)
        m_isClosing = false;
}

} // namespace OrvGui
