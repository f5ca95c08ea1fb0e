// SPDX-License-Identifier: MIT
#pragma once

#include "base/connections.h"
#include "camconfig/mappercontext.h"

namespace OrvGui {

/// A widget that is bound to a parameter: shows its value and writes what the user enters.
///
/// Derive from it for each kind of widget. This class alone only enables, disables and explains the
/// widget. Receivers of a widget's signals may end the binding or destroy the mapper: a function
/// that uses the control after it has changed the widget must hold the control by
/// `shared_from_this`, and stop when its `Showing` is over.
class MappedControl : public std::enable_shared_from_this<MappedControl>
{
public:
    using Pointer = std::shared_ptr<MappedControl>;

    MappedControl(MapperContext::Pointer context, QWidget *widget);
    virtual ~MappedControl();
    Q_DISABLE_COPY(MappedControl)

    /// The sender of the user's changes; null when it is destroyed.
    virtual QObject *object() const;

    /// Fits the widget to the parameter when it is mapped, and shows the value.
    virtual void prepare() { show(); }

    /// Shows the value and the limits. The object exists.
    virtual void show() {}

    virtual void connectSignals() {}

    /// Enables or disables the widget regardless of the parameter.
    virtual void setEnabled(bool isEnabled);

    /// The same, but what cannot be chosen at this moment stays disabled.
    virtual void setUsable(bool isUsable) { setEnabled(isUsable); }

    /// Sets the tool tip; an empty one is removed.
    virtual void explain(const QString &toolTip);

    void endConnections() { m_connections.end(); }

protected:
    const MapperContext::Pointer m_context;
    const QPointer<QWidget> m_widget;
    Connections m_connections;
};

} // namespace OrvGui
