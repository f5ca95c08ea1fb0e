// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>
#include <QString>

class QDoubleSpinBox;
class QSpinBox;

/**
 * Numbers as the user reads and types them: with the digits and signs of the locale, and without
 * group separators, as spin boxes show them.
 */
namespace NumberText {

QString of(int number, const QLocale &locale);
QString of(double number, int decimals, const QLocale &locale);

/**
 * Reads a text that is a number and nothing else; false when it is not. A decimal point is read
 * beside the locale's sign. Group separators count only where the locale puts them, so that a
 * number with the decimal sign of another locale is not taken for one a thousand times larger.
 */
bool read(const QSpinBox *box, const QString &text, int *number);
bool read(const QDoubleSpinBox *box, const QString &text, double *number);

/**
 * Replaces a decimal point by the locale's sign, which is all that QDoubleSpinBox takes. The text
 * has the prefix and the suffix of the box.
 */
void localizePoint(const QDoubleSpinBox *box, QString &text);

} // namespace NumberText
