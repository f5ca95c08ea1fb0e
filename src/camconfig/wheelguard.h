// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QWidget;

namespace OrvGui {

/// Keeps the wheel from changing a value while the user scrolls: combo boxes, spin boxes, sliders
/// and tab bars without the focus pass wheel events to their parents.
///
/// The wheel does not focus them, either. Widgets and guard may be destroyed in any order.
class WheelGuard : public QObject
{
public:
    /// Guards the widget and its children; of a `QTabWidget` the tab bar, not the pages.
    void guard(QWidget *widget);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void guardOne(QWidget *widget);
};

} // namespace OrvGui
