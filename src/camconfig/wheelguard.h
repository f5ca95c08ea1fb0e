// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QWidget;

namespace OrvGui {

/// Keeps the wheel from changing a value that the user only scrolls past: combo boxes, spin boxes,
/// sliders and tab bars without the focus leave it to what they stand in.
///
/// The wheel does not give them the focus, either. The widgets need not outlive the guard, nor it
/// them.
class WheelGuard : public QObject
{
public:
    /// Guards the widget and what it consists of; of a `QTabWidget` the tab bar, not the pages.
    void guard(QWidget *widget);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void guardOne(QWidget *widget);
};

} // namespace OrvGui
