// SPDX-License-Identifier: MIT
#ifndef VALUEACCESSIBILITY_H
#define VALUEACCESSIBILITY_H

/**
 * Gives assistive technology the name and the value of a value widget and of its parts.
 *
 * Without it a screen reader would hear the position of a slider instead of its value, and a part
 * of a compound widget would not know the widget's name.
 */
namespace ValueAccessibility {

/** Called by every value widget; works once and undoes itself when the library is unloaded. */
void install();

} // namespace ValueAccessibility

#endif
