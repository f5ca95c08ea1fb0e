// SPDX-License-Identifier: MIT
#include "genparamtree/parameterdescription.h"

#include "base/cameratext.h"
#include "base/genicamstring.h"
#include "genparamtree/genparamtreemodel.h"
#include "genparamtree/treelookahead.h"

#include <GenApi/GenApi.h>

#include <QStringList>

namespace {

/// How the camera's texts are encoded in a description.
typedef QString (*CameraText)(const GenICam::gcstring &);

QString escaped(const GenICam::gcstring &text)
{
    return OrvGui::cameraText(fromUtf8OrLatin1(text).simplified()).toHtmlEscaped();
}

QString typeName(GenApi::EInterfaceType type)
{
    switch (type) {
    case GenApi::intfIInteger:
        return GenParamTreeModel::tr("Integer");
    case GenApi::intfIBoolean:
        return GenParamTreeModel::tr("Boolean");
    case GenApi::intfICommand:
        return GenParamTreeModel::tr("Command");
    case GenApi::intfIFloat:
        return GenParamTreeModel::tr("Float");
    case GenApi::intfIString:
        return GenParamTreeModel::tr("String");
    case GenApi::intfIEnumeration:
        return GenParamTreeModel::tr("Enumeration");
    default:
        return QString();
    }
}

QStringList selectorNames(GenApi::IValue *value, CameraText cameraText)
{
    QStringList names;
    const GenApi::CSelectorPtr selected(value);
    if (!selected)
        return names;
    GenApi::FeatureList_t selectors;
    selected->GetSelectingFeatures(selectors);
    for (size_t i = 0; i < selectors.size(); ++i)
        names.append(cameraText(selectors[i]->GetNode()->GetDisplayName()));
    return names;
}

QString limitsLine(const QString &min, const QString &max)
{
    return GenParamTreeModel::tr("<i>Limits</i>: Min: %1, Max: %2").arg(min, max);
}

QString incrementLine(const QString &increment)
{
    return GenParamTreeModel::tr("<i>Increment</i>: %1").arg(increment);
}

QString validValuesLine(const QStringList &values)
{
    return GenParamTreeModel::tr("<i>Valid values</i>: %1").arg(values.join(QLatin1Char(',')));
}

QString numberText(int64_t value)
{
    return QString::number(static_cast<qlonglong>(value));
}

QString numberText(double value)
{
    return QStringLiteral("%1").arg(value);
}

QString validValueText(GenApi::IInteger &integer, int64_t value)
{
    if (integer.GetRepresentation() != GenApi::HexNumber)
        return numberText(value);
    return QLatin1String("0x") + QString::number(static_cast<qulonglong>(value), 16);
}

QString validValueText(GenApi::IFloat &, double value)
{
    return QString::number(value, 'g', 6);
}

template<typename Number>
QStringList numberLines(Number &number)
{
    const GenApi::EIncMode mode = number.GetIncMode();
    if (mode == GenApi::listIncrement) {
        const auto values = number.GetListOfValidValues(true);
        QStringList texts;
        for (size_t i = 0; i < values.size(); ++i)
            texts.append(validValueText(number, values[i]));
        return QStringList(validValuesLine(texts));
    }

    QStringList lines(limitsLine(numberText(number.GetMin()), numberText(number.GetMax())));
    if (mode == GenApi::fixedIncrement)
        lines.append(incrementLine(numberText(number.GetInc())));
    return lines;
}

QStringList entryLines(GenApi::IEnumeration &enumeration, CameraText cameraText)
{
    QStringList lines(GenParamTreeModel::tr("<i>Enumeration entries</i>:"));
    GenApi::NodeList_t entries;
    enumeration.GetEntries(entries);
    for (size_t i = 0; i < entries.size(); ++i) {
        const GenApi::CEnumEntryPtr entry(entries[i]);
        const qlonglong value = entry->GetValue();
        const QString hex = QString::number(value, 16).rightJustified(8, QLatin1Char('0'));
        lines.append(GenParamTreeModel::tr("\"%1\": %2 (0x%3)")
                         .arg(cameraText(entry->GetSymbolic()), QString::number(value), hex));
    }
    return lines;
}

QStringList typeSpecificLines(GenApi::IValue *value, GenApi::EInterfaceType type,
                              CameraText cameraText)
{
    switch (type) {
    case GenApi::intfIInteger:
        return numberLines(*GenApi::CIntegerPtr(value));
    case GenApi::intfIFloat:
        return numberLines(*GenApi::CFloatPtr(value));
    case GenApi::intfIEnumeration:
        return entryLines(*GenApi::CEnumerationPtr(value), cameraText);
    default:
        return QStringList();
    }
}

/// The lines that are the same for all kinds of feature and never change.
QStringList commonLines(GenApi::IValue *value, GenApi::EInterfaceType type, CameraText cameraText)
{
    const GenApi::CNodePtr node(value->GetNode());
    QStringList lines;
    lines.append(GenParamTreeModel::tr("<i>Name:</i> %1").arg(cameraText(node->GetDisplayName())));
    const QString typeText = typeName(type);
    if (!typeText.isEmpty())
        lines.append(GenParamTreeModel::tr("<i>Type:</i> %1").arg(typeText));
    const QStringList selectors = selectorNames(value, cameraText);
    if (!selectors.isEmpty())
        lines.append(
            GenParamTreeModel::tr("<i>Selectors:</i> %1").arg(selectors.join(QLatin1Char(','))));
    lines.append(
        GenParamTreeModel::tr("<i>Description:</i> %1").arg(cameraText(node->GetDescription())));
    const QString streamable =
        node->IsStreamable() ? GenParamTreeModel::tr("True") : GenParamTreeModel::tr("False");
    lines.append(GenParamTreeModel::tr("<i>Streamable:</i> %1").arg(streamable));
    return lines;
}

enum class Part { Common, Whole };

QString describe(GenApi::IValue *value, CameraText cameraText, Part part = Part::Whole)
{
    const GenApi::CNodePtr node(value->GetNode());
    const GenApi::EInterfaceType type = node->GetPrincipalInterfaceType();
    QStringList lines = commonLines(value, type, cameraText);
    if (part == Part::Whole)
        lines.append(typeSpecificLines(value, type, cameraText));
    return lines.join(QLatin1String("<br />"));
}

QString escapedPart(GenApi::IValue *value, Part part)
{
    try {
        return describe(value, escaped, part);
    } catch (const GenICam::GenericException &) {
        return QString();
    }
}

} // namespace

QString parameterDescription(GenApi::IValue *value)
{
    return describe(value, fromLatin1);
}

QString escapedDescription(GenApi::IValue *value)
{
    return escapedPart(value, Part::Whole);
}

namespace OrvGui {

bool knownDescription(GenApi::IValue *value, TreeLookAhead *lookAhead, QString *text)
{
    const auto ask = [&](Part part) {
        const auto describeIt = [&] { *text = escapedPart(value, part); };
        if (lookAhead)
            return lookAhead->look(value, TreeLookAhead::Everything, describeIt);
        describeIt();
        return true;
    };
    if (ask(Part::Whole))
        return true;
    ask(Part::Common);
    return false;
}

} // namespace OrvGui
