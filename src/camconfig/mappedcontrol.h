// SPDX-License-Identifier: MIT
#pragma once

#include "base/connections.h"
#include "camconfig/mappercontext.h"

namespace OrvGui {

/// A widget that is bound to a parameter: shows its value and writes what the user enters.
///
/// Derive from it for each kind of widget. The base class only enables and disables the widget and
/// sets its tool tip. Receivers of a widget's signals may end the binding or destroy the mapper.
/// Therefore a function that uses the control after it has changed the widget must hold the control
/// by `shared_from_this`, and return when its `Showing` is over.
class MappedControl : public std::enable_shared_from_this<MappedControl>
{
public:
    using Pointer = std::shared_ptr<MappedControl>;

    MappedControl(MapperContext::Pointer context, QWidget *widget);
    virtual ~MappedControl();
    Q_DISABLE_COPY(MappedControl)

    /// The object whose signals report the user's changes; null when it is destroyed.
    virtual QObject *object() const;

    /// Adapts the widget to the parameter when it is mapped, and shows the value.
    virtual void prepare() { show(); }

    /// Shows the value and the limits. Precondition: the object exists.
    virtual void show() {}

    virtual void connectSignals() {}

    /// Enables or disables the widget regardless of the parameter.
    virtual void setEnabled(bool isEnabled);

    /// The same, except that choices that are not available stay disabled.
    virtual void setUsable(bool isUsable) { setEnabled(isUsable); }

    /// Sets the tool tip; an empty text removes it.
    virtual void explain(const QString &toolTip);

    void endConnections() { m_connections.end(); }

protected:
    const MapperContext::Pointer m_context;
    const QPointer<QWidget> m_widget;
    Connections m_connections;
};

} // namespace OrvGui
