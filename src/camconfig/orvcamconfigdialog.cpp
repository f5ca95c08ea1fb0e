// SPDX-License-Identifier: MIT
#include "base/formfit.h"
#include "base/screenroom.h"
#include "camconfig/orvcamconfigdialog_p.h"

#include "journal/undoactions.h"

#include <OrvCam/Device.h>

#include <QComboBox>
#include <QPointer>
#include <QShowEvent>

#include <utility>

namespace OrvGui {

namespace {

/// Null when the device has no parameters.
OrvGenParam::Array *paramsOf(OrvCam::Device *device)
{
    int32_t error = OrvCam::Success;
    OrvGenParam::Array *const array = device->GetParamArray(&error);
    return error == OrvCam::Success ? array : nullptr;
}

// A stretched list may get less of a row than its entries need. A list with extremely long entries
// may be narrower than they are.
void keepWhole(QComboBox *list)
{
    const int longest = 30 * list->fontMetrics().averageCharWidth();
    QSizePolicy policy = list->sizePolicy();
    policy.setHorizontalPolicy(list->sizeHint().width() > longest ? QSizePolicy::Preferred
                                                                  : QSizePolicy::Minimum);
    list->setSizePolicy(policy);
}

} // namespace

OrvCamConfigDialogPrivate::OrvCamConfigDialogPrivate() = default;
OrvCamConfigDialogPrivate::~OrvCamConfigDialogPrivate() = default;

bool OrvCamConfigDialogPrivate::init(OrvCamConfigDialog *dialog, OrvCam::Device *newDevice)
{
    q = dialog;
    device = newDevice;
    m_isOutdated = true;
    if (m_isBinding)
        return false; // a nested call; the outer one binds again

    m_isBinding = true;
    while (m_isOutdated) {
        m_isOutdated = false;
        rebind();
    }
    m_isBinding = false;

    const Generation generation(this);
    if (array)
        afterBinding();
    return !generation.isOver() && array;
}

void OrvCamConfigDialogPrivate::rebind()
{
    if (!m_isFormBuilt) {
        buildForm();
        // Unlike other widgets, combo boxes compute their size hint before a style sheet is
        // applied.
        for (QComboBox *list : q->findChildren<QComboBox *>())
            list->ensurePolished();
        m_undoActions = new UndoActions(q);
        q->setContextMenuPolicy(Qt::ActionsContextMenu);
        m_isFormBuilt = true;
    }
    ++m_generation;
    leaveParams();
    mapper.unmapAll();
    m_handlers.end();
    release();

    array = device ? paramsOf(device) : nullptr;
    mapper.setArray(array);
    m_undoActions->setJournal(mapper.journal());
    q->setEnabled(array);
    if (!array)
        return;
    FeatureReader::fetchNow(*array, features());
    m_boundDevice = device;
    bind();
    for (QComboBox *list : q->findChildren<QComboBox *>())
        keepWhole(list);
}

// A device without its camera may have lost its parameters. It sends no more notifications.
void OrvCamConfigDialogPrivate::leaveParams()
{
    const auto watched = std::exchange(m_watched, {});
    OrvCam::Device *const former = std::exchange(m_boundDevice, nullptr);
    if (!former || paramsOf(former) != array)
        return;
    mapper.leave(*array);
    for (const Watched &one : watched) {
        if (array->GetParam(one.name.constData()) == one.param)
            one.param->UnregisterEventSink(one.sink);
    }
}

OrvCamConfigDialogPrivate::Generation::Generation(const OrvCamConfigDialogPrivate *part)
    : m_part(part), m_dialog(part->q), m_number(part->m_generation)
{
}

bool OrvCamConfigDialogPrivate::Generation::isOver() const
{
    return !m_dialog || m_part->m_generation != m_number;
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
    // QDialog hides without a close event, and closing it calls this function.
    if (m_isClosing || !isVisible())
        QDialog::reject();
    else
        close();
}

void OrvCamConfigDialog::showEvent(QShowEvent *event)
{
    if (!event->spontaneous())
        FormFit::fitToScreen(this);
    d->prepareToShow();
    // Otherwise Qt focuses the first control, and the wheel changes its value.
    if (!focusWidget())
        setFocus(Qt::OtherFocusReason);
    QDialog::showEvent(event);
    if (!event->spontaneous())
        keepInRoom(this);
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
