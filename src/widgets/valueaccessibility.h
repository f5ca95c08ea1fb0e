// SPDX-License-Identifier: MIT
#pragma once

class QComboBox;
class QString;

/**
 * Gives assistive technology the names and the values of value widgets and of their parts, and the
 * names of lists.
 *
 * Without it a screen reader would read the position of a slider instead of its value, and the
 * parts of a compound widget and lists without a label would have no name.
 */
namespace ValueAccessibility {

/** Called by every value widget. Has an effect once, and is undone when the library is unloaded. */
void install();

/**
 * Names a list that is not the buddy of a label. Where labels have names, Qt 5 uses the current
 * text of a list as its name and ignores its accessible name.
 */
void setName(QComboBox *list, const QString &name);

} // namespace ValueAccessibility
