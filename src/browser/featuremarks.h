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

/// What has become of the features of a tree since it was opened: which were changed, and from
/// which value, and which have refused their last write.
///
/// The values of a feature that is selected differ by where its selectors were.
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

    /// Follows the writes of the model, which must outlive it.
    explicit FeatureMarks(GenParamTreeModel &model, QObject *parent = nullptr);

    bool isChanged() const { return !m_changes.isEmpty(); }

    /// Of the features that have been changed, wherever their selectors are now.
    FeatureSearch::Features changedFeatures() const;
    bool wasChanged(const GenApi::IValue *feature) const { return m_changes.contains(feature); }

    /// Whether the value that the tree shows was changed. Takes no transfer.
    bool isShownChanged(const GenApi::IValue *feature) const;

    /// The earlier values, for a tool tip; empty for a feature that was not changed.
    QString earlierText(const GenApi::IValue *feature) const;

    /// Why the last write was refused; null if it was not.
    QString refusal(const GenApi::IValue *feature) const { return m_refusals.value(feature); }

    /// Writes the earlier values back, the last change first; null means all features. What is
    /// refused is marked, and stays changed.
    void putBack(const GenApi::IValue *feature = nullptr);

    /// For a write that went past the model. The texts may be written otherwise than the model's.
    void noteForeignWrite(GenApi::IValue *feature, const SelectorPlaces &places,
                          const QString &before, const QString &after);
    void noteRefusal(GenApi::IValue *feature, const QString &reason);

signals:
    /// The marks of the feature are others than before.
    void changed(GenApi::IValue *feature);

private:
    void noteWrite(GenApi::IValue *feature, const QString &before, const QString &after);
    void noteWrite(GenApi::IValue *feature, const SelectorPlaces &places, const QString &before,
                   const QString &after, const std::function<bool(const QString &)> &isBackAt);
    void putBack(const Change &change);

    GenParamTreeModel &m_model;
    QHash<const GenApi::IValue *, QVector<Change>> m_changes;
    QVector<const GenApi::IValue *> m_order; ///< of the changed features; the last change last
    QHash<const GenApi::IValue *, QString> m_refusals;
};

} // namespace OrvGui
