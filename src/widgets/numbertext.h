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
 * Reads a text that is a number and nothing else; returns false otherwise. A decimal point is
 * accepted as well as the locale's decimal sign. Group separators are accepted only in the
 * positions of the locale, so that the decimal sign of another locale does not make a number a
 * thousand times larger.
 */
bool read(const QSpinBox *box, const QString &text, int *number);
bool read(const QDoubleSpinBox *box, const QString &text, double *number);

/**
 * Replaces a decimal point by the locale's decimal sign, the only one that QDoubleSpinBox accepts.
 * The text includes the prefix and the suffix of the box.
 */
void localizePoint(const QDoubleSpinBox *box, QString &text);

} // namespace NumberText
