// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVector>

class QImage;
class QWidget;

/// Finds faults in the look of a window. The window's texts are recorded while it paints itself,
/// and compared with the room that the style leaves for them and with the pixels below them.
namespace Looks {

struct Fault
{
    enum Kind {
        Pale,     ///< less contrast than WCAG requires; disabled texts are exempt
        Cut,      ///< a text that is not completely visible
        CutCell,  ///< the same in a cell of an item view, whose columns can be widened
        Squeezed, ///< a widget that extends beyond its parent
        OffScreen ///< a window that extends beyond the usable area of its screen
    };

    Kind kind;
    QString widget; ///< its name and class
    QString detail;

    QString toString() const;
};

/// Expects the window to be shown. Tool windows and menus are checked by calls of their own only.
QVector<Fault> faultsOf(QWidget &window);

/// The picture in which the faults are found.
QImage pictureOf(QWidget &window);

/// Name and class. For a widget without a name, those of the nearest named parent are added.
QString nameOf(const QWidget &widget);

} // namespace Looks
