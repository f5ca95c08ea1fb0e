// SPDX-License-Identifier: MIT
#pragma once

class QComboBox;
class QString;

/**
 * Gives assistive technology the name and the value of a value widget and of its parts, and the
 * name of a list.
 *
 * Without it a screen reader would read the position of a slider instead of its value, a part of a
 * compound widget would not know the widget's name, and neither would a list without a label.
 */
namespace ValueAccessibility {

/** Called by every value widget; works once and undoes itself when the library is unloaded. */
void install();

/**
 * Names a list that is no label's buddy. Where labels have names, Qt 5 takes what a list shows for
 * its name and ignores its accessible name.
 */
void setName(QComboBox *list, const QString &name);

} // namespace ValueAccessibility
