// SPDX-License-Identifier: MIT
#include "actions.h"

#include <GenApi/GenApi.h>
#include <base/cameratext.h>
#include <orvcamerasettings.h>

#include <QJsonDocument>

#include <csignal>

using OrvGui::OrvCameraSettings;

namespace {

/// The integers up to which JSON numbers are exact.
constexpr int64_t largestExact = int64_t(1) << 53;

volatile std::sig_atomic_t isInterrupted = 0;

/// The first signal ends the program cleanly, the second one at once.
void noteInterrupt(int number)
{
    isInterrupted = 1;
    std::signal(number, SIG_DFL);
}

bool mayContinue(int, int)
{
    return !isInterrupted;
}

/// A value as a single line.
QString column(QString text)
{
    for (const QChar lineBreak : {QChar('\n'), QChar('\r'), QChar('\t')})
        text.replace(lineBreak, ' ');
    return OrvGui::printable(text); // a terminal interprets control characters
}

QString word(Action::Kind kind)
{
    static const char *const words[] = {"get", "set", "execute", "save", "load", "compare"};
    return QString::fromLatin1(words[kind]);
}

QJsonValue orNull(const QString &text)
{
    return text.isNull() ? QJsonValue() : QJsonValue(text);
}

QJsonArray problemsOf(const OrvCameraSettings::Result &result)
{
    QJsonArray problems;
    for (const auto &problem : result.problems)
        problems.append(QJsonObject{{"feature", problem.feature},
                                    {"value", orNull(problem.value)},
                                    {"error", problem.reason}});
    return problems;
}

QJsonArray differencesOf(const OrvCameraSettings::Result &result)
{
    QJsonArray differences;
    for (const auto &one : result.differences)
        differences.append(QJsonObject{
            {"feature", one.feature}, {"file", orNull(one.left)}, {"camera", orNull(one.right)}});
    return differences;
}

} // namespace

ActionRunner::ActionRunner(GenApi::INodeMap &map, Models models) : m_map(map), m_models(models)
{
    isInterrupted = 0;
    std::signal(SIGINT, noteInterrupt);
    std::signal(SIGTERM, noteInterrupt);
}

ActionRunner::~ActionRunner()
{
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
}

bool ActionRunner::run(const Actions &actions)
{
    for (const Action &action : actions) {
        const bool isDone = run(action);
        m_isGood &= isDone;
        const bool changesNothing = action.kind == Action::Get || action.kind == Action::Compare;
        if ((!isDone && !changesNothing) || isInterrupted)
            break;
    }
    m_isGood &= !isInterrupted;
    return m_isGood;
}

bool ActionRunner::run(const Action &action)
{
    const bool isOfFile = action.kind == Action::Save || action.kind == Action::Load ||
                          action.kind == Action::Compare;
    QJsonObject result{{"action", word(action.kind)},
                       {isOfFile ? "file" : "feature", action.subject}};
    bool isDone = false;
    switch (action.kind) {
    case Action::Get:
        isDone = get(action.subject, &result);
        break;
    case Action::Set:
        isDone = set(action, &result);
        break;
    case Action::Execute:
        isDone = execute(action.subject, &result);
        break;
    case Action::Save:
        isDone = useFile(action, &result, [&] {
            return OrvCameraSettings::save(m_map, action.subject, mayContinue);
        });
        break;
    case Action::Load:
        isDone = useFile(action, &result, [&] {
            return OrvCameraSettings::load(m_map, action.subject,
                                           m_models == AnyModel ? OrvCameraSettings::AnyModel
                                                                : OrvCameraSettings::SameModel,
                                           mayContinue);
        });
        break;
    case Action::Compare:
        isDone = useFile(action, &result, [&] {
            return OrvCameraSettings::compare(m_map, action.subject, mayContinue);
        });
        break;
    }
    result["ok"] = isDone;
    m_results.append(result);
    return isDone;
}

void ActionRunner::complain(const QString &subject, const QString &reason)
{
    m_complaints << column(subject) + QStringLiteral(": ") + column(reason);
}

bool ActionRunner::get(const QString &feature, QJsonObject *result)
{
    QString error;
    const QString text = OrvCameraSettings::value(m_map, feature, &error);
    if (!error.isEmpty()) {
        complain(feature, error);
        result->insert("error", error);
        return false;
    }
    m_text += column(feature) + QLatin1Char('\t') + column(text) + QLatin1Char('\n');
    result->insert("value", typed(feature, text));
    result->insert("text", text);
    return true;
}

/// Numbers and booleans as JSON types, other values as the tree shows them.
QJsonValue ActionRunner::typed(const QString &feature, const QString &text) const
{
    try {
        GenApi::INode *node = m_map.GetNode(feature.toUtf8().constData());
        switch (node->GetPrincipalInterfaceType()) {
        case GenApi::intfIInteger: {
            const int64_t value = GenApi::CIntegerPtr(node)->GetValue();
            if (value >= -largestExact && value <= largestExact)
                return static_cast<double>(value);
            return QString::number(static_cast<qlonglong>(value));
        }
        case GenApi::intfIFloat:
            return text.toDouble();
        case GenApi::intfIBoolean:
            return text == QLatin1String("true");
        default:
            return text;
        }
    } catch (const GenICam::GenericException &) {
        return text;
    }
}

bool ActionRunner::set(const Action &action, QJsonObject *result)
{
    QString error;
    result->insert("value", action.value);
    if (OrvCameraSettings::setValue(m_map, action.subject, action.value, &error))
        return true;
    complain(action.subject, error);
    result->insert("error", error);
    return false;
}

bool ActionRunner::execute(const QString &feature, QJsonObject *result)
{
    QString error;
    if (OrvCameraSettings::execute(m_map, feature, &error))
        return true;
    complain(feature, error);
    result->insert("error", error);
    return false;
}

template<typename Act>
bool ActionRunner::useFile(const Action &action, QJsonObject *json, Act act)
{
    const OrvCameraSettings::Result result = act();
    QString error = result.isCancelled ? tr("Cancelled.") : result.error;
    if (result.isOfOtherModel)
        error += QLatin1Char(' ') + tr("Use --any-model to load it nevertheless.");
    if (!error.isEmpty()) {
        complain(action.subject, error);
        json->insert("error", error);
    }
    for (const auto &problem : result.problems)
        complain(problem.feature, problem.reason);
    for (const QString &name : result.missing)
        complain(name, tr("The camera does not have it."));
    for (const auto &one : result.differences)
        m_text += column(one.feature) + QLatin1Char('\t') + column(one.left) + QLatin1Char('\t') +
                  column(one.right) + QLatin1Char('\n');
    json->insert("count", result.count);
    json->insert("problems", problemsOf(result));
    json->insert("missing", QJsonArray::fromStringList(result.missing));
    if (action.kind == Action::Compare)
        json->insert("differences", differencesOf(result));
    // A file is also saved when some values of the camera cannot be read.
    const bool isPartly = action.kind == Action::Save && error.isEmpty();
    return isPartly || (result.isComplete() && result.differences.isEmpty());
}

QByteArray ActionRunner::json(const QString &camera) const
{
    return QJsonDocument(QJsonObject{{"camera", camera}, {"ok", m_isGood}, {"results", m_results}})
        .toJson();
}
