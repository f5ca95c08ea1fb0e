// SPDX-License-Identifier: MIT
#pragma once

#include "camconfig/mappedcontrol.h"
#include "camconfig/orvcamconfigmapper.h"
#include "camconfig/wheelguard.h"

#include <QByteArray>

namespace OrvGui {

/// The private part of the mapper, which creates and removes the bindings.
class OrvCamConfigMapperPrivate
{
public:
    /// The data of a binding, and the control that implements it.
    struct Binding
    {
        OrvCamConfigMapData record;
        MappedControl::Pointer control;
    };
    using Bindings = QVector<Binding>;

    OrvCamConfigMapperPrivate(OrvCamConfigMapper *mapper, qint64 valueCap);
    ~OrvCamConfigMapperPrivate();

    template<class Control, class... Args>
    MappedControl::Pointer make(Args... args) const
    {
        return std::make_shared<Control>(context, args...);
    }

    /// Replaces the binding of the parameter's name. Returns false without a parameter.
    bool map(OrvGenParam::Param *param, const Bindings &bindings);
    void bind(OrvGenParam::Param *param, const OrvCamConfigMapData &record,
              const MappedControl::Pointer &control);
    void refresh(const QString &name, OrvGenParam::Param *param);
    void unmap(MappedControl &control);
    void unmapParam(const QString &name);
    void unmapAll();
    void leave(const OrvGenParam::Array &array);
    MappedControl::Pointer controlOf(const OrvCamConfigMapData &record) const;
    bool isBound(const QString &name, const OrvGenParam::Param *param) const;

    const MapperContext::Pointer context;

private:
    struct Mapping
    {
        OrvGenParam::Param *param = nullptr;
        Bindings bindings;
    };

    static void disable(const Bindings &bindings);
    void enable(OrvGenParam::Param *param, const Bindings &bindings) const;
    void store(OrvGenParam::Param *param, const Bindings &bindings);
    void disconnect(QObject *object);
    void showBound(const QObject *object) const;

    OrvCamConfigMapper *const q;
    QHash<QString, Mapping> m_mappings;
    /// With their names, because the parameters may be destroyed.
    QHash<OrvGenParam::Param *, QByteArray> m_registered;
    WheelGuard m_wheelGuard;
};

} // namespace OrvGui
