// SPDX-License-Identifier: MIT
#include "camconfig/orvcamconfigmapper.h"

#include "base/selectordetour.h"
#include "camconfig/featuretooltip.h"
#include "camconfig/iorvcamconfigintconverter.h"
#include "camconfig/mappedboolean.h"
#include "camconfig/mappedbuttons.h"
#include "camconfig/mappedcheckbox.h"
#include "camconfig/mappedcombobox.h"
#include "camconfig/mappedcommand.h"
#include "camconfig/mappedcompound.h"
#include "camconfig/mappeddependent.h"
#include "camconfig/mappedlineedit.h"
#include "camconfig/mappedslider.h"
#include "camconfig/mappedspinbox.h"
#include "camconfig/mappedtabs.h"
#include "camconfig/orvcamconfigmapper_p.h"
#include "camconfig/showing.h"
#include "widgets/qtorvsliderspinbox.h"
#include "widgets/qtorvspinbox.h"

#include <OrvGenParam.h>

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>

#include <utility>

using OrvGenParam::Boolean;
using OrvGenParam::Command;
using OrvGenParam::Enum;
using OrvGenParam::Int;
using OrvGenParam::Param;

namespace OrvGui {

namespace {

QString nameOf(const Param *param)
{
    return QString::fromUtf8(param->GetName());
}

// Does not disconnect QObject's own signals: Qt itself connects to `destroyed` when a style sheet
// or a screen reader is in use.
void disconnectSignals(QObject *object)
{
    const QMetaObject *type = object->metaObject();
    for (int i = QObject::staticMetaObject.methodCount(); i < type->methodCount(); ++i) {
        const QMetaMethod method = type->method(i);
        if (method.methodType() == QMetaMethod::Signal)
            QObject::disconnect(object, method, nullptr, QMetaMethod());
    }
}

} // namespace

// OrvCamConfigMapperPrivate

OrvCamConfigMapperPrivate::OrvCamConfigMapperPrivate(OrvCamConfigMapper *mapper, qint64 valueCap)
    : context(std::make_shared<MapperContext>(valueCap,
                                              [this](const QObject *object) { showBound(object); }))
    , q(mapper)
{
}

OrvCamConfigMapperPrivate::~OrvCamConfigMapperPrivate()
{
    context->leaveMapper();
    for (const Mapping &mapping : std::as_const(m_mappings)) {
        for (const Binding &binding : mapping.bindings)
            binding.control->endConnections();
    }
}

bool OrvCamConfigMapperPrivate::isBound(const QString &name, const Param *param) const
{
    return m_mappings.value(name).param == param;
}

void OrvCamConfigMapperPrivate::refresh(const QString &name, Param *param)
{
    if (!isBound(name, param))
        return;

    // A receiver of the widgets' signals may map, unmap or destroy the mapper.
    const Bindings bindings = m_mappings.value(name).bindings;
    const MapperContext::Pointer shared = context;
    const auto isOver = [&] {
        return !shared->hasMapper() ||
               m_mappings.value(name).bindings.constData() != bindings.constData();
    };

    if (shared->reader.isReadable(param)) {
        for (const Binding &binding : bindings) {
            if (binding.control->object())
                binding.control->show();
            if (isOver())
                return;
        }
    }
    const bool isUsable = shared->reader.isWritable(param);
    for (const Binding &binding : bindings) {
        binding.control->setUsable(isUsable);
        if (isOver())
            return;
    }
}

void OrvCamConfigMapperPrivate::bind(Param *param, const OrvCamConfigMapData &record,
                                     const MappedControl::Pointer &control)
{
    map(param, {{record, control}});
}

bool OrvCamConfigMapperPrivate::map(Param *param, const Bindings &bindings)
{
    if (!param) {
        disable(bindings);
        return false;
    }
    const MappedControl::Pointer control = bindings.first().control;
    const MapperContext::Pointer shared = context;
    param->UnregisterEventSink(q);
    disconnect(control->object());
    enable(param, bindings);
    store(param, bindings);
    {
        Showing showing(shared, control->object());
        control->prepare();
        if (!control->object() || showing.isOver())
            return true;
    }
    control->connectSignals();
    m_registered.insert(param, param->GetName());
    param->RegisterEventSink(q);
    return true;
}

void OrvCamConfigMapperPrivate::disable(const Bindings &bindings)
{
    for (const Binding &binding : bindings) {
        binding.control->setEnabled(false);
        binding.control->explain(QString());
    }
}

/// A parameter that is only read-only leaves the state unchanged until the next notification.
void OrvCamConfigMapperPrivate::enable(Param *param, const Bindings &bindings) const
{
    context->reader.fetchNow({param});
    const bool isAvailable = context->read([=] { return param->IsAvailable(); });
    if (isAvailable && !context->read([=] { return param->IsWritable(); }))
        return;
    for (const Binding &binding : bindings)
        binding.control->setEnabled(isAvailable);
}

void OrvCamConfigMapperPrivate::store(Param *param, const Bindings &bindings)
{
    const QString name = nameOf(param);
    const Bindings former = m_mappings.value(name).bindings;
    if (!former.isEmpty())
        unmap(*former.first().control);
    const QString toolTip = FeatureToolTip::text(param);
    for (const Binding &binding : bindings) {
        binding.control->explain(toolTip);
        if (binding.record.control)
            m_wheelGuard.guard(binding.record.control);
    }
    m_mappings.insert(name, {param, bindings});
}

void OrvCamConfigMapperPrivate::disconnect(QObject *object)
{
    if (!object)
        return;
    disconnectSignals(object);
    for (const Mapping &mapping : std::as_const(m_mappings)) {
        for (const Binding &binding : mapping.bindings) {
            if (binding.control->object() == object)
                binding.control->endConnections();
        }
    }
    context->endShowings(object);
}

void OrvCamConfigMapperPrivate::unmap(MappedControl &control)
{
    disconnect(control.object());
    control.endConnections();
    control.setEnabled(false);
    control.explain(QString());
}

void OrvCamConfigMapperPrivate::unmapParam(const QString &name)
{
    context->tabs.remove(name);
    for (const Binding &binding : m_mappings.take(name).bindings)
        unmap(*binding.control);
}

void OrvCamConfigMapperPrivate::unmapAll()
{
    for (const QString &name : m_mappings.keys())
        unmapParam(name);
    m_registered.clear();
    context->forgetShown();
}

void OrvCamConfigMapperPrivate::leave(const OrvGenParam::Array &array)
{
    const auto registered = std::exchange(m_registered, {});
    for (auto it = registered.begin(); it != registered.end(); ++it) {
        if (array.GetParam(it.value().constData()) == it.key())
            it.key()->UnregisterEventSink(q);
        else
            m_registered.insert(it.key(), it.value());
    }
}

/// A control without a binding, which can only be disabled.
MappedControl::Pointer OrvCamConfigMapperPrivate::controlOf(const OrvCamConfigMapData &record) const
{
    for (const Mapping &mapping : m_mappings) {
        for (const Binding &binding : mapping.bindings) {
            const OrvCamConfigMapData &bound = binding.record;
            if (bound.type == record.type && bound.control == record.control &&
                bound.extra == record.extra)
                return binding.control;
        }
    }
    if (record.type == MapEnumButtons)
        return make<MappedButtons>(nullptr, static_cast<QButtonGroup *>(record.extra));
    return make<MappedControl>(record.control);
}

void OrvCamConfigMapperPrivate::showBound(const QObject *object) const
{
    for (const Mapping &mapping : m_mappings) {
        for (const Binding &binding : mapping.bindings) {
            if (binding.control->object() == object) {
                const MappedControl::Pointer alive = binding.control;
                return alive->show();
            }
        }
    }
}

// OrvCamConfigMapper

OrvCamConfigMapper::OrvCamConfigMapper(qint64 valueCap)
    : d(std::make_unique<OrvCamConfigMapperPrivate>(this, valueCap))
{
}

OrvCamConfigMapper::~OrvCamConfigMapper() = default;

void OrvCamConfigMapper::setArray(const OrvGenParam::Array *array)
{
    d->context->setArray(array);
}

void OrvCamConfigMapper::OnParameterUpdate(Param *param)
{
    const QString name = nameOf(param);
    if (SelectorDetour::isUnderWay() || !d->isBound(name, param))
        return; // of a camera that is no longer bound
    d->context->reader.whenKnown(this, param, {param}, [=] { d->refresh(name, param); });
}

void OrvCamConfigMapper::mapEnumParam(Enum *param, QComboBox *comboBox)
{
    d->bind(param, {MapEnumComboBox, comboBox, nullptr}, d->make<MappedComboBox>(param, comboBox));
}

void OrvCamConfigMapper::mapEnumParam(Enum *param, QCheckBox *checkBox)
{
    d->bind(param, {MapEnumCheckBox, checkBox, nullptr}, d->make<MappedCheckBox>(param, checkBox));
}

void OrvCamConfigMapper::mapEnumParam(Enum *param, QButtonGroup *buttons)
{
    d->bind(param, {MapEnumButtons, nullptr, buttons}, d->make<MappedButtons>(param, buttons));
}

void OrvCamConfigMapper::mapEnumParam(Enum *param, QTabWidget *tabs)
{
    d->bind(param, {MapEnumTabs, tabs, nullptr}, d->make<MappedTabs>(param, tabs));
}

void OrvCamConfigMapper::mapCommandParam(Command *param, QPushButton *button, QTimer *timer)
{
    d->bind(param, {MapCommandButton, button, nullptr},
            d->make<MappedCommand>(param, button, timer));
}

void OrvCamConfigMapper::mapBooleanParam(Boolean *param, QAbstractButton *button)
{
    d->bind(param, {MapBooleanButton, button, nullptr}, d->make<MappedBoolean>(param, button));
}

void OrvCamConfigMapper::mapIntParam(Int *param, QLineEdit *lineEdit)
{
    d->bind(param, {MapIntLineEdit, lineEdit, nullptr}, d->make<MappedLineEdit>(param, lineEdit));
}

void OrvCamConfigMapper::mapIntParam(Int *param, QSpinBox *spinBox)
{
    d->bind(param, {MapIntSpinBox, spinBox, nullptr}, d->make<MappedSpinBox>(param, spinBox));
}

void OrvCamConfigMapper::mapIntParam(Int *param, QSlider *slider,
                                     IOrvCamConfigIntConverter *converter)
{
    d->bind(param, {MapIntSlider, slider, converter},
            d->make<MappedSlider>(param, slider, converter));
}

void OrvCamConfigMapper::mapIntParam(Int *param, QtOrvSpinBox *spinBox)
{
    QVector<QWidget *> none;
    mapIntParam(param, spinBox, none);
}

bool OrvCamConfigMapper::mapIntParam(Int *param, QtOrvSpinBox *spinBox,
                                     QVector<QWidget *> &dependents)
{
    using Control = MappedCompound<QtOrvSpinBox>;
    OrvCamConfigMapperPrivate::Bindings bindings{
        {{MapIntOrvSpinBox, spinBox, nullptr}, d->make<Control>(param, spinBox, nullptr)}};
    for (QWidget *dependent : dependents)
        bindings.append({{MapDependent, dependent, nullptr}, d->make<MappedDependent>(dependent)});
    return d->map(param, bindings);
}

void OrvCamConfigMapper::mapIntParam(Int *param, QtOrvSliderSpinBox *spinBox,
                                     IOrvCamConfigIntConverter *converter)
{
    using Control = MappedCompound<QtOrvSliderSpinBox>;
    d->bind(param, {MapIntOrvSliderSpinBox, spinBox, converter},
            d->make<Control>(param, spinBox, converter));
}

void OrvCamConfigMapper::unmapControl(const OrvCamConfigMapData &record)
{
    const MappedControl::Pointer control = d->controlOf(record);
    d->unmap(*control);
}

void OrvCamConfigMapper::unmapParam(const QString &name)
{
    d->unmapParam(name);
}

void OrvCamConfigMapper::unmapAll()
{
    d->unmapAll();
}

void OrvCamConfigMapper::leave(const OrvGenParam::Array &array)
{
    d->leave(array);
}

void OrvCamConfigMapper::updateSpinBox(Int *param, QtOrvSpinBox *spinBox)
{
    MappedCompound<QtOrvSpinBox>(d->context, param, spinBox, nullptr).show();
}

void OrvCamConfigMapper::updateSliderSpinBox(Int *param, QtOrvSliderSpinBox *spinBox,
                                             IOrvCamConfigIntConverter *converter)
{
    MappedCompound<QtOrvSliderSpinBox>(d->context, param, spinBox, converter).show();
}

void OrvCamConfigMapper::updateComboBox(Enum *param, QComboBox *comboBox)
{
    MappedComboBox(d->context, param, comboBox).show();
}

void OrvCamConfigMapper::updateRadioButtons(Enum *param, QButtonGroup *buttons)
{
    MappedButtons(d->context, param, buttons).show();
}

void OrvCamConfigMapper::updateTabWidget(Enum *param, QTabWidget *tabs)
{
    MappedTabs(d->context, param, tabs).show();
}

} // namespace OrvGui
