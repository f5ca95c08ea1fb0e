// SPDX-License-Identifier: MIT
#pragma once

#include "base/connections.h"
#include "camconfig/dialogmapper.h"
#include "camconfig/featurereader.h"
#include "camconfig/orvcamconfigdialog.h"

#include <OrvGenParam/Array.h>

#include <QByteArray>
#include <QPointer>
#include <QVector>

#include <memory>
#include <utility>

namespace OrvGui {

class UndoActions;

/// The private part of a feature dialog: builds the form once, and binds it to each device that is
/// set.
///
/// Derive from it for each dialog. `bind` is mostly a list of bindings. Connect other handlers with
/// `connectTo`, after the widget has been bound, because binding disconnects all receivers.
class OrvCamConfigDialogPrivate
{
public:
    OrvCamConfigDialogPrivate();
    virtual ~OrvCamConfigDialogPrivate();

    /// Called whenever a device is set, first in the dialog's constructor. Returns false when the
    /// dialog stays disabled.
    bool init(OrvCamConfigDialog *dialog, OrvCam::Device *device);

    /// Called just before the dialog is shown.
    virtual void prepareToShow() {}

protected:
    /// The present binding to a device.
    ///
    /// A write may show an error box, during which another device may be set or the dialog may be
    /// destroyed. Keep an instance on the stack during a write, and return when it is over.
    class Generation
    {
    public:
        explicit Generation(const OrvCamConfigDialogPrivate *part);
        bool isOver() const;

    private:
        const OrvCamConfigDialogPrivate *const m_part;
        const QPointer<QObject> m_dialog;
        const unsigned m_number;
    };

    /// Builds the form on `q`; called once, before anything else.
    virtual void buildForm() = 0;

    /// The features that `bind` reads.
    virtual FeatureReader::Names features() const = 0;

    /// Drops the references to the device other than bindings.
    virtual void release() {}

    /// Binds the form to `array`, which is not null. Writes nothing. Another device that is set
    /// during the call is bound after it.
    virtual void bind() = 0;

    /// Writes the values that the bound form requires.
    virtual void afterBinding() {}

    template<class Widget>
    void bindEnum(const char *feature, Widget *widget)
    {
        mapper.mapEnumParam(array->GetEnum(feature), widget);
    }
    template<class Widget, class... Extra>
    auto bindInt(const char *feature, Widget *widget, Extra &&...extra)
    {
        return mapper.mapIntParam(array->GetInt(feature), widget, std::forward<Extra>(extra)...);
    }
    void bindBoolean(const char *feature, QAbstractButton *button)
    {
        mapper.mapBooleanParam(array->GetBoolean(feature), button);
    }
    void bindCommand(const char *feature, QPushButton *button, QTimer *timer)
    {
        mapper.mapCommandParam(array->GetCommand(feature), button, timer);
    }

    /// Registers the sink with the parameter until the next device is set. Returns the parameter,
    /// which may be null. A repeated call moves the sink behind sinks that were registered later.
    template<class Kind>
    Kind *watched(Kind *param, OrvGenParam::ParamEventSink *sink)
    {
        if (param) {
            param->UnregisterEventSink(sink);
            param->RegisterEventSink(sink);
            m_watched.append({param->GetName(), param, sink});
        }
        return param;
    }

    /// Connects a handler of the dialog until the next device is set.
    template<class Sender, class Signal, class Handler>
    void connectTo(Sender *sender, Signal signal, Handler handler)
    {
        m_handlers.add(sender, signal, handler);
    }
    QObject *handlers() const { return m_handlers.receiver(); }

    FeatureReader &reader() const { return mapper.reader(); }

    OrvCamConfigDialog *q = nullptr;
    OrvCam::Device *device = nullptr;
    OrvGenParam::Array *array = nullptr; ///< the device's; null while the dialog is disabled
    DialogMapper mapper;

private:
    struct Watched
    {
        QByteArray name;
        OrvGenParam::Param *param;
        OrvGenParam::ParamEventSink *sink;
    };

    void rebind();
    void leaveParams();

    Connections m_handlers;                  ///< of the dialog's own
    OrvCam::Device *m_boundDevice = nullptr; ///< the one whose parameters are in `array`
    QVector<Watched> m_watched;
    UndoActions *m_undoActions = nullptr; ///< of the dialog
    unsigned m_generation = 0;
    bool m_isFormBuilt = false;
    bool m_isBinding = false;
    bool m_isOutdated = false; ///< another device has been set during the binding
};

} // namespace OrvGui
