// SPDX-License-Identifier: MIT
#include "settings/featurevalue.h"

#include "base/cameratext.h"
#include "base/genicamstring.h"
#include "genparamtree/fixintegerrepresentation.h"
#include "genparamtree/genparamtreemodel_p.h"

#include <QStringList>

#include <cmath>

namespace OrvGui {

namespace {

/// The largest relative difference of equal floating-point numbers; some tools write six digits
/// only.
constexpr double equalShare = 1e-6;

[[noreturn]] void refuse(const QString &why)
{
    throw GenICam::InvalidArgumentException(why.toUtf8().constData(), __FILE__, __LINE__);
}

GenApi::EInterfaceType typeOf(GenApi::IValue *feature)
{
    return feature->GetNode()->GetPrincipalInterfaceType();
}

/// The fewest digits that preserve the number.
QString exactText(double value)
{
    QString text;
    for (int digits = 6; digits <= 17; ++digits) {
        text = QString::number(value, 'g', digits);
        if (text.toDouble() == value)
            break;
    }
    return text;
}

QString stringText(GenApi::IString *feature)
{
    const GenICam::gcstring value = feature->GetValue();
    const QByteArray bytes(value.c_str(), static_cast<int>(value.length()));
    const QString text = QString::fromUtf8(bytes);
    if (text.toUtf8() != bytes)
        refuse(FeatureValue::tr("The text is not in UTF-8."));
    return text;
}

bool isTrue(const QString &text)
{
    const QString word = text.trimmed();
    return word == QLatin1String("1") ||
           word.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0;
}

bool isFalse(const QString &text)
{
    const QString word = text.trimmed();
    return word == QLatin1String("0") ||
           word.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0;
}

/// Groups of one byte.
bool bytesOf(const QStringList &groups, int count, int base, quint64 *value)
{
    *value = 0;
    for (const QString &group : groups) {
        bool isNumber = false;
        const uint number = group.toUInt(&isNumber, base);
        if (!isNumber || number > 255)
            return false;
        *value = *value << 8 | number;
    }
    return groups.size() == count;
}

bool integerOf(const QString &text, qint64 *value)
{
    const QString number = text.trimmed();
    bool isNumber = false;
    *value = number.toLongLong(&isNumber, 10);
    if (isNumber)
        return true;
    quint64 bits = 0;
    if (number.startsWith(QLatin1String("0x"), Qt::CaseInsensitive))
        bits = number.mid(2).toULongLong(&isNumber, 16);
    else
        isNumber = bytesOf(number.split(QLatin1Char('.')), 4, 10, &bits) ||
                   bytesOf(number.split(QLatin1Char(':')), 6, 16, &bits);
    *value = static_cast<qint64>(bits);
    return isNumber;
}

double floatOf(const QString &text)
{
    bool isNumber = false;
    const double value = text.trimmed().toDouble(&isNumber);
    if (!isNumber || !std::isfinite(value))
        refuse(FeatureValue::tr("'%1' is no number.").arg(cameraText(text, LongestName)));
    return value;
}

void writeInteger(GenApi::IInteger *feature, const QString &text)
{
    qint64 value = 0;
    if (!integerOf(text, &value))
        refuse(FeatureValue::tr("'%1' is no integer.").arg(cameraText(text, LongestName)));
    feature->SetValue(value, true);
}

void writeBoolean(GenApi::IBoolean *feature, const QString &text)
{
    if (!isTrue(text) && !isFalse(text))
        refuse(
            FeatureValue::tr("'%1' is neither true nor false.").arg(cameraText(text, LongestName)));
    feature->SetValue(isTrue(text), true);
}

/// Accepts the entry's name, and its number, which some tools write.
GenApi::IEnumEntry *entryOf(GenApi::IEnumeration *feature, const QString &text)
{
    if (GenApi::IEnumEntry *entry = feature->GetEntryByName(toUtf8(text.trimmed())))
        return entry;
    qint64 number = 0;
    return integerOf(text, &number) ? feature->GetEntry(number) : nullptr;
}

void writeEnumeration(GenApi::IEnumeration *feature, const QString &text)
{
    const GenApi::IEnumEntry *entry = entryOf(feature, text);
    if (!entry)
        refuse(FeatureValue::tr("There is no entry '%1'.").arg(cameraText(text, LongestName)));
    feature->FromString(entry->GetSymbolic(), true);
}

bool areSameNumbers(const QString &left, const QString &right)
{
    bool areNumbers[2] = {};
    const double a = left.trimmed().toDouble(&areNumbers[0]);
    const double b = right.trimmed().toDouble(&areNumbers[1]);
    return areNumbers[0] && areNumbers[1] && std::isfinite(a) && std::isfinite(b) &&
           std::fabs(a - b) <= equalShare * std::fmax(std::fabs(a), std::fabs(b));
}

bool areSameIntegers(const QString &left, const QString &right)
{
    qint64 values[2] = {};
    return integerOf(left, &values[0]) && integerOf(right, &values[1]) && values[0] == values[1];
}

bool areSameEntries(GenApi::IEnumeration *feature, const QString &left, const QString &right)
{
    try {
        const GenApi::IEnumEntry *entry = entryOf(feature, left);
        return entry && entry == entryOf(feature, right);
    } catch (const GenICam::GenericException &) {
        return false;
    }
}

QString bareDigits(const QString &bytes)
{
    const QString digits = bytes.trimmed().toLower();
    return digits.startsWith(QLatin1String("0x")) ? digits.mid(2) : digits;
}

template<typename Number>
QString limitsOf(Number *number)
{
    return FeatureValue::tr("The camera takes values from %1 to %2.")
        .arg(exactText(double(number->GetMin())), exactText(double(number->GetMax())));
}

QString accessReason(GenApi::EAccessMode mode)
{
    switch (mode) {
    case GenApi::NI:
        return FeatureValue::tr("The camera does not have it.");
    case GenApi::NA:
        return FeatureValue::tr("It is not available now.");
    case GenApi::RO:
        return FeatureValue::tr("It cannot be changed now.");
    case GenApi::WO:
        return FeatureValue::tr("It cannot be read.");
    default:
        return QString();
    }
}

/// The range of a number; empty for other features.
QString rangeReason(GenApi::IValue *feature)
{
    if (auto *integer = dynamic_cast<GenApi::IInteger *>(feature)) {
        const int64_t step =
            integer->GetIncMode() == GenApi::fixedIncrement ? integer->GetInc() : 1;
        const QString text = FeatureValue::tr("The camera takes values from %1 to %2.")
                                 .arg(integer->GetMin())
                                 .arg(integer->GetMax());
        return step > 1 ? text + QLatin1Char(' ') + FeatureValue::tr("The step is %1.").arg(step)
                        : text;
    }
    if (auto *number = dynamic_cast<GenApi::IFloat *>(feature))
        return limitsOf(number);
    return QString();
}

} // namespace

bool FeatureValue::exists(GenApi::IValue *feature)
{
    switch (typeOf(feature)) {
    case GenApi::intfIInteger:
    case GenApi::intfIBoolean:
    case GenApi::intfIFloat:
    case GenApi::intfIString:
    case GenApi::intfIEnumeration:
    case GenApi::intfIRegister:
        return true;
    default:
        return false;
    }
}

QString FeatureValue::text(GenApi::IValue *feature)
{
    switch (typeOf(feature)) {
    case GenApi::intfIInteger:
        return QString::number(
            static_cast<qlonglong>(GenApi::CIntegerPtr(feature)->GetValue(false, false)));
    case GenApi::intfIBoolean:
        return QString::number(GenApi::CBooleanPtr(feature)->GetValue(false, false) ? 1 : 0);
    case GenApi::intfIFloat:
        return exactText(GenApi::CFloatPtr(feature)->GetValue(false, false));
    case GenApi::intfIString:
        return stringText(GenApi::CStringPtr(feature));
    default:
        return fromUtf8(feature->ToString(false, false));
    }
}

void FeatureValue::write(GenApi::IValue *feature, const QString &text)
{
    switch (typeOf(feature)) {
    case GenApi::intfIInteger:
        return writeInteger(GenApi::CIntegerPtr(feature), text);
    case GenApi::intfIBoolean:
        return writeBoolean(GenApi::CBooleanPtr(feature), text);
    case GenApi::intfIFloat:
        return GenApi::CFloatPtr(feature)->SetValue(floatOf(text), true);
    case GenApi::intfIString:
        return GenApi::CStringPtr(feature)->SetValue(toUtf8(text), true);
    case GenApi::intfIEnumeration:
        return writeEnumeration(GenApi::CEnumerationPtr(feature), text);
    case GenApi::intfIRegister:
        return feature->FromString(toUtf8(text), true);
    default:
        refuse(tr("It has no value."));
    }
}

QString FeatureValue::shownText(GenApi::IValue *feature)
{
    return GenParamTreeModelPrivate::valueData(feature, Qt::DisplayRole).toString();
}

void FeatureValue::writeShown(GenApi::IValue *feature, const QString &text)
{
    auto *integer = dynamic_cast<GenApi::IInteger *>(feature);
    const QString marked = QLatin1String("0x") + text.trimmed();
    qint64 number = 0;
    const bool isHex = typeOf(feature) == GenApi::intfIInteger &&
                       FixIntegerRepresentation(integer) == GenApi::HexNumber &&
                       integerOf(marked, &number);
    write(feature, isHex ? marked : text);
}

bool FeatureValue::areSame(GenApi::IValue *feature, const QString &left, const QString &right)
{
    if (left == right)
        return true;
    switch (feature ? typeOf(feature) : GenApi::intfIValue) {
    case GenApi::intfIValue:
        return areSameIntegers(left, right) || areSameNumbers(left, right);
    case GenApi::intfIInteger:
        return areSameIntegers(left, right);
    case GenApi::intfIFloat:
        return areSameNumbers(left, right);
    case GenApi::intfIBoolean:
        return (isTrue(left) && isTrue(right)) || (isFalse(left) && isFalse(right));
    case GenApi::intfIEnumeration:
        return areSameEntries(GenApi::CEnumerationPtr(feature), left, right);
    case GenApi::intfIRegister:
        return bareDigits(left) == bareDigits(right);
    default:
        return false;
    }
}

QString FeatureValue::reason(GenApi::IValue *feature, const GenICam::GenericException &exception)
{
    const QString description = cameraText(exception.GetDescription());
    if (dynamic_cast<const GenICam::TimeoutException *>(&exception))
        return tr("The camera does not answer.");
    try {
        if (dynamic_cast<const GenICam::AccessException *>(&exception)) {
            const QString access = accessReason(feature->GetAccessMode());
            return access.isEmpty() ? description : access;
        }
        if (dynamic_cast<const GenICam::OutOfRangeException *>(&exception)) {
            const QString range = rangeReason(feature);
            return range.isEmpty() ? description : range;
        }
    } catch (const GenICam::GenericException &) {
        // The error of the camera is sufficient.
    }
    return description;
}

QString FeatureValue::refusal(GenApi::IValue *feature)
{
    const GenApi::EAccessMode mode = feature->GetAccessMode();
    return GenApi::IsWritable(mode) ? QString() : accessReason(mode);
}

QString FeatureValue::missing(const QString &name)
{
    return tr("The camera has no '%1'.").arg(name);
}

} // namespace OrvGui
