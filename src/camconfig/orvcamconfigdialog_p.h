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

/// The private part of a feature dialog: builds the form once, and binds it to a device as often as
/// another one is set.
///
/// Derive from it for each dialog. `bind` is mostly a list of bindings; a handler of the dialog's
/// own is connected by `connectTo`, after the widget has been bound, because binding
/// disconnects everything else.
class OrvCamConfigDialogPrivate
{
public:
    OrvCamConfigDialogPrivate();
    virtual ~OrvCamConfigDialogPrivate();

    /// Runs whenever a device is set, the first time from the dialog's constructor. False when the
    /// dialog is left disabled.
    bool init(OrvCamConfigDialog *dialog, OrvCam::Device *device);

    /// Just before the dialog is shown.
    virtual void prepareToShow() {}

protected:
    /// The binding to the device that the dialog has now.
    ///
    /// A write may lead to anything, such as an error box, and that may set another device or
    /// destroy the dialog. Keep one on the stack during a write, and return when it is over.
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

    /// The features that `bind` is going to read.
    virtual FeatureReader::Names features() const = 0;

    /// Drops the references to the device that are not bindings.
    virtual void release() {}

    /// Binds the form to `array`, which is not null. Writes nothing: another device that is set
    /// in between is bound afterwards.
    virtual void bind() = 0;

    /// Writes what the bound form requires of the camera.
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

    /// Registers the sink with the parameter until the next device is set; returns the parameter,
    /// which may be null. A repeated call moves the sink behind all sinks that were registered in
    /// between.
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

    /// Connects a handler of the dialog's own, until the next device is set.
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
    OrvCam::Device *m_boundDevice = nullptr; ///< that `array` is of
    QVector<Watched> m_watched;
    UndoActions *m_undoActions = nullptr; ///< of the dialog
    unsigned m_generation = 0;
    bool m_isFormBuilt = false;
    bool m_isBinding = false;
    bool m_isOutdated = false; ///< the device is another one than that which is being bound
};

} // namespace OrvGui
