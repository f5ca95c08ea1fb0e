// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/**
 * Arithmetic shared by the value widgets: the step grid that starts at a minimum, and conversions
 * that are defined for every input.
 */
namespace ValueGrid {

/** Truncates toward zero; what does not fit becomes the nearest end, "not a number" the lower one.
 */
qint64 truncated(double number);

/** The nearest int. */
int toInt(qint64 number);
int toInt(double number);

/**
 * The grid value nearest to \a value: minimum plus a multiple of \a step, at most \a maximum. Half
 * a step (rounded down) is rounded up. The two ends are not moved, and a step of 0 gives the
 * minimum.
 */
int snapped(int value, int minimum, int maximum, int step);

/** The remainder of \a distance after whole steps, in steps; 0 when it cannot be determined. */
double stepFraction(double distance, double step);

} // namespace ValueGrid
