// SPDX-License-Identifier: MIT
#pragma once

#include "action.h"

#include <GenApi/INodeMap.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>
#include <QTextStream>

/// Executes actions with a node map, one after the other.
///
/// Actions that only read continue after a failure. After a refused change no further action is
/// executed, because it might depend on the change. An interrupt (SIGINT, SIGTERM) ends the running
/// action after its selectors are restored.
class ActionRunner
{
    Q_DECLARE_TR_FUNCTIONS(ActionRunner)

public:
    enum Models { SameModel, AnyModel };

    /// `models` selects the camera models whose files are loaded.
    ActionRunner(GenApi::INodeMap &map, Models models);
    ~ActionRunner();

    /// Returns false when something was refused, or differs from a file.
    bool run(const Actions &actions);

    /// The results: names and values, or differences; the columns are separated by tabs.
    QString text() const { return m_text; }

    /// The refusals with their reasons, one per line.
    QStringList complaints() const { return m_complaints; }

    /// All of it as a JSON document.
    QByteArray json(const QString &camera) const;

private:
    bool run(const Action &action);
    bool get(const QString &feature, QJsonObject *result);
    bool set(const Action &action, QJsonObject *result);
    bool execute(const QString &feature, QJsonObject *result);
    template<typename Act>
    bool useFile(const Action &action, QJsonObject *result, Act act);
    void complain(const QString &subject, const QString &reason);
    QJsonValue typed(const QString &feature, const QString &text) const;

    GenApi::INodeMap &m_map;
    const Models m_models;
    QString m_text;
    QStringList m_complaints;
    QJsonArray m_results;
    bool m_isGood = true;
};
