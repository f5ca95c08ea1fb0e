// SPDX-License-Identifier: MIT
#pragma once

#include "base/featuremetatype.h"
#include "browser/featuresearch.h"
#include "browser/selectorplace.h"

#include <QHash>
#include <QObject>

#include <functional>

class GenParamTreeModel;

namespace OrvGui {

/// The changes of a tree's features since it was opened: the changed features with their previous
/// values, and the features whose last write was refused.
///
/// A feature with selectors has one value for each selection.
class FeatureMarks : public QObject
{
    Q_OBJECT

public:
    struct Change
    {
        GenApi::IValue *feature = nullptr;
        SelectorPlaces places;
        QString before; ///< as GenICam's text
    };

    /// Follows the writes of the model, which must outlive this object.
    explicit FeatureMarks(GenParamTreeModel &model, QObject *parent = nullptr);

    bool isChanged() const { return !m_changes.isEmpty(); }

    /// The changed features, at any selection.
    FeatureSearch::Features changedFeatures() const;
    bool wasChanged(const GenApi::IValue *feature) const { return m_changes.contains(feature); }

    /// Whether the value at the present selection was changed. Causes no transfer.
    bool isShownChanged(const GenApi::IValue *feature) const;

    /// The previous values for a tool tip; empty for a feature that was not changed.
    QString earlierText(const GenApi::IValue *feature) const;

    /// The reason why the last write was refused; null if it was accepted.
    QString refusal(const GenApi::IValue *feature) const { return m_refusals.value(feature); }

    /// Writes the previous values back, the last change first; null for all features. A feature
    /// that refuses is marked and stays changed.
    void putBack(const GenApi::IValue *feature = nullptr);

    /// For a write that bypassed the model. The format of the texts may differ from the model's.
    void noteForeignWrite(GenApi::IValue *feature, const SelectorPlaces &places,
                          const QString &before, const QString &after);
    void noteRefusal(GenApi::IValue *feature, const QString &reason);

signals:
    /// The marks of the feature have changed.
    void changed(GenApi::IValue *feature);

private:
    void noteWrite(GenApi::IValue *feature, const QString &before, const QString &after);
    void noteWrite(GenApi::IValue *feature, const SelectorPlaces &places, const QString &before,
                   const QString &after, const std::function<bool(const QString &)> &isBackAt);
    void putBack(const Change &change);

    GenParamTreeModel &m_model;
    QHash<const GenApi::IValue *, QVector<Change>> m_changes;
    /// The changed features; the most recently changed one last.
    QVector<const GenApi::IValue *> m_order;
    QHash<const GenApi::IValue *, QString> m_refusals;
};

} // namespace OrvGui
