// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVector>

class QImage;
class QWidget;

/// Faults in the look of a window as it is painted: its texts are recorded while it paints itself,
/// and measured against what its style leaves for them and against the pixels below.
namespace Looks {

struct Fault
{
    enum Kind {
        Pale,     ///< less contrast than WCAG requires; disabled texts are exempt
        Cut,      ///< a text that is not seen whole
        CutCell,  ///< the same in a cell of an item view, whose columns the user can widen
        Squeezed, ///< a widget that reaches out of the one that it is in
        OffScreen ///< a window that reaches out of what can be used of its screen
    };

    Kind kind;
    QString widget; ///< its name and class
    QString detail;

    QString toString() const;
};

/// Expects the window to be shown. Looks at its tool windows and menus only when they are asked
/// for.
QVector<Fault> faultsOf(QWidget &window);

/// The picture in which the faults are found.
QImage pictureOf(QWidget &window);

/// Name and class; of a widget without a name, those of the nearest parent with one, too.
QString nameOf(const QWidget &widget);

} // namespace Looks
