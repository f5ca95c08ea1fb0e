// SPDX-License-Identifier: MIT
#include "widgets/numbertext.h"

#include <QDoubleSpinBox>
#include <QSpinBox>

namespace NumberText {

namespace {

QLocale ungrouped(QLocale locale)
{
    locale.setNumberOptions(locale.numberOptions() | QLocale::OmitGroupSeparator);
    return locale;
}

} // namespace

QString of(int number, const QLocale &locale)
{
    return ungrouped(locale).toString(number);
}

QString of(double number, int decimals, const QLocale &locale)
{
    return ungrouped(locale).toString(number, 'f', decimals);
}

bool read(const QSpinBox *box, const QString &text, int *number)
{
    bool ok = false;
    *number = text.toInt(&ok, box->displayIntegerBase());
    if (!ok)
        *number = box->locale().toInt(text, &ok);
    return ok;
}

bool read(const QDoubleSpinBox *box, const QString &text, double *number)
{
    // In a locale with group separators the point may be one.
    const bool localeFirst = box->isGroupSeparatorShown();
    bool ok = false;
    *number = localeFirst ? box->locale().toDouble(text, &ok) : text.toDouble(&ok);
    if (!ok)
        *number = localeFirst ? text.toDouble(&ok) : box->locale().toDouble(text, &ok);
    return ok;
}

void localizePoint(const QDoubleSpinBox *box, QString &text)
{
    const QLatin1Char point('.');
    const QString sign(box->locale().decimalPoint());
    const QString group(box->locale().groupSeparator());
    const int start = int(box->prefix().size());
    const QString number = text.mid(start, text.size() - start - box->suffix().size());
    const bool isGroup = box->isGroupSeparatorShown() && group == point;
    if (number.count(point) == 1 && !number.contains(sign) && !isGroup)
        text.replace(start + number.indexOf(point), 1, sign);
}

} // namespace NumberText
