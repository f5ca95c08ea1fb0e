// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/GenApi.h>

#include <QStringList>

#include <functional>

/// Runs the steps of a text on features; blanks separate the steps:
/// `Name=Value` sets a value or executes a command, `Name!Value` must be refused, `Name?Value`
/// expects a value (of a command: 1 when it is done), `Name:RW` an access mode, and `+0.5` advances
/// the time by that many seconds. `Name.Min`, `.Max` and `.Inc` can be expected as well;
/// enumerations also accept numbers.
class FeatureSteps
{
public:
    /// `pass` advances the time of a camera whose values change by themselves; cached values are
    /// then not used.
    explicit FeatureSteps(GenApi::INodeMap &map, std::function<void(double)> pass = {})
        : m_map(map), m_pass(std::move(pass))
    {
    }

    /// The first failed step, with its actual result; empty if there is none.
    QString run(const QString &steps)
    {
        for (const QString &step : steps.split(' ')) {
            if (step[0] == '+') {
                m_pass(step.mid(1).toDouble());
                continue;
            }
            int at = 0;
            while (at < step.size() && !QString("=!?:").contains(step[at]))
                ++at;
            const QString result = execute(step.left(at), step.mid(at, 1), step.mid(at + 1));
            if (!result.isEmpty())
                return step + ": " + result;
        }
        return QString();
    }

private:
    QString execute(const QString &name, const QString &verb, const QString &text)
    {
        if (m_pass)
            m_map.InvalidateNodes();
        const QByteArray feature = name.section('.', 0, 0).toUtf8();
        GenApi::INode *node = m_map.GetNode(feature.constData());
        if (!node)
            return "there is none";
        try {
            if (verb == ":")
                return differs(modes[node->GetAccessMode()], text);
            if (verb == "?")
                return differs(ask(node, name.section('.', 1), isNumber(text)), text);
            set(node, text);
        } catch (const GenICam::GenericException &e) {
            return verb == "!" ? QString() : QString::fromUtf8(e.GetDescription());
        }
        return verb == "!" ? "was accepted" : QString();
    }

    static QString differs(const QString &found, const QString &expected)
    {
        return found == expected ? QString() : "it is " + found;
    }

    static bool isNumber(const QString &text) { return !text.isEmpty() && text[0].isDigit(); }

    static void set(GenApi::INode *node, const QString &text)
    {
        const GenApi::CCommandPtr command(node);
        const GenApi::CEnumerationPtr enumeration(node);
        if (command.IsValid())
            command->Execute();
        else if (enumeration.IsValid() && isNumber(text))
            enumeration->SetIntValue(text.toInt());
        else
            GenApi::CValuePtr(node)->FromString(text.toUtf8().constData());
    }

    static QString ask(GenApi::INode *node, const QString &property, bool isAskedAsNumber)
    {
        const GenApi::CCommandPtr command(node);
        const GenApi::CEnumerationPtr enumeration(node);
        const GenApi::CIntegerPtr integer(node);
        const GenApi::CFloatPtr real(node);
        if (command.IsValid())
            return command->IsDone() ? "1" : "0";
        if (enumeration.IsValid() && isAskedAsNumber)
            return QString::number(enumeration->GetIntValue());
        if (integer.IsValid() && property.isEmpty())
            return QString::number(integer->GetValue());
        if (property.isEmpty())
            return QString::fromUtf8(GenApi::CValuePtr(node)->ToString().c_str());
        if (integer.IsValid())
            return limit(*integer, property);
        return limit(*real, property);
    }

    template<class Number>
    static QString limit(Number &number, const QString &property)
    {
        return QString::number(property == "Min"   ? number.GetMin()
                               : property == "Max" ? number.GetMax()
                                                   : number.GetInc());
    }

    GenApi::INodeMap &m_map;
    const std::function<void(double)> m_pass;
    const QStringList modes{"NI", "NA", "WO", "RO", "RW"};
};
