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
 * The grid value next to \a value: minimum plus a multiple of \a step, at most \a maximum. From
 * half a step (rounded down) on it is the next one up. The two ends are never moved, and a step of
 * 0 leads to the minimum.
 */
int snapped(int value, int minimum, int maximum, int step);

/** What \a distance exceeds a whole number of steps by, in steps; 0 when there is no telling. */
double stepFraction(double distance, double step);

} // namespace ValueGrid
