// SPDX-License-Identifier: MIT
#pragma once

#include "action.h"

#include <GenApi/INodeMap.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>
#include <QTextStream>

/// Carries out actions with a node map, one after the other.
///
/// What only reads goes on after a failure; after a change that was refused nothing more is done,
/// since it could rely on it. An interrupt (SIGINT, SIGTERM) ends the action under way once its
/// selectors are back.
class ActionRunner
{
    Q_DECLARE_TR_FUNCTIONS(ActionRunner)

public:
    enum Models { SameModel, AnyModel };

    /// `models` says of which cameras files are loaded.
    ActionRunner(GenApi::INodeMap &map, Models models);
    ~ActionRunner();

    /// False when something was refused, or differs from a file.
    bool run(const Actions &actions);

    /// The results: names and values, differences; a tab between the columns.
    QString text() const { return m_text; }

    /// What was refused and why, one a line.
    QStringList complaints() const { return m_complaints; }

    /// All of it as a document.
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
