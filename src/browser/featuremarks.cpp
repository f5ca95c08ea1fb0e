// SPDX-License-Identifier: MIT
#include "browser/featuremarks.h"

#include "base/genicamstring.h"
#include "genparamtree/genparamtreemodel.h"
#include "settings/featurevalue.h"

#include <GenApi/GenApi.h>

#include <QPointer>

#include <algorithm>
#include <utility>

namespace OrvGui {

namespace {

QString unitOf(const GenApi::IValue *feature)
{
    auto *value = const_cast<GenApi::IValue *>(feature);
    if (auto *integer = dynamic_cast<GenApi::IInteger *>(value))
        return fromUtf8(integer->GetUnit());
    if (const auto *number = dynamic_cast<GenApi::IFloat *>(value))
        return fromUtf8(number->GetUnit());
    return QString();
}

QString withUnit(const QString &value, const QString &unit)
{
    return unit.isEmpty() ? value : value + QLatin1Char(' ') + unit;
}

QString nameOf(GenApi::IValue *feature)
{
    GenApi::INode *node = feature->GetNode();
    const GenICam::gcstring displayName = node->GetDisplayName();
    return fromUtf8(displayName.empty() ? node->GetName(false) : displayName);
}

QString textOf(const SelectorPlaces &places)
{
    QStringList texts;
    for (const SelectorPlace &place : places)
        texts << FeatureMarks::tr("%1: %2").arg(nameOf(place.selector), place.value);
    return texts.join(QStringLiteral(", "));
}

} // namespace

FeatureMarks::FeatureMarks(GenParamTreeModel &model, QObject *parent)
    : QObject(parent), m_model(model)
{
    connect(&model, &GenParamTreeModel::written, this,
            [this](GenApi::IValue *feature, const QString &before, const QString &after) {
                noteWrite(feature, before, after);
            });
    connect(&model, &GenParamTreeModel::refused, this, &FeatureMarks::noteRefusal);
}

FeatureSearch::Features FeatureMarks::changedFeatures() const
{
    return FeatureSearch::Features(m_order.begin(), m_order.end());
}

bool FeatureMarks::isShownChanged(const GenApi::IValue *feature) const
{
    const auto found = m_changes.constFind(feature);
    if (found == m_changes.constEnd())
        return false;
    return std::any_of(found->begin(), found->end(), [this](const Change &change) {
        return std::all_of(change.places.begin(), change.places.end(),
                           [this](const SelectorPlace &place) {
                               const QString now = m_model.knownText(place.selector);
                               return now.isNull() || now == place.value;
                           });
    });
}

QString FeatureMarks::earlierText(const GenApi::IValue *feature) const
{
    QStringList lines;
    try {
        for (const Change &change : m_changes.value(feature)) {
            const QString value = withUnit(change.before, unitOf(feature));
            lines << (change.places.isEmpty()
                          ? tr("Earlier value: %1").arg(value)
                          : tr("Earlier value: %1 (%2)").arg(value, textOf(change.places)));
        }
    } catch (const GenICam::GenericException &) {
        return QString();
    }
    return lines.join(QStringLiteral("; "));
}

void FeatureMarks::noteWrite(GenApi::IValue *feature, const QString &before, const QString &after)
{
    noteWrite(feature, placesOf(feature, m_model), before, after,
              [&](const QString &earlier) { return earlier == after; });
}

void FeatureMarks::noteForeignWrite(GenApi::IValue *feature, const SelectorPlaces &places,
                                    const QString &before, const QString &after)
{
    noteWrite(feature, places, before, after, [&](const QString &earlier) {
        return FeatureValue::areSame(feature, earlier, after);
    });
}

void FeatureMarks::noteWrite(GenApi::IValue *feature, const SelectorPlaces &places,
                             const QString &before, const QString &after,
                             const std::function<bool(const QString &)> &isBackAt)
{
    m_refusals.remove(feature);
    QVector<Change> &changes = m_changes[feature];
    const auto known = std::find_if(changes.begin(), changes.end(),
                                    [&](const Change &change) { return change.places == places; });
    if (known == changes.end()) {
        if (!before.isNull() && before != after)
            changes.append({feature, places, before});
    } else if (isBackAt(known->before)) {
        changes.erase(known);
    }
    m_order.removeAll(feature);
    if (changes.isEmpty())
        m_changes.remove(feature);
    else
        m_order.append(feature);
    emit changed(feature);
}

void FeatureMarks::noteRefusal(GenApi::IValue *feature, const QString &reason)
{
    m_refusals.insert(feature, reason);
    emit changed(feature);
}

void FeatureMarks::putBack(const GenApi::IValue *feature)
{
    // A host may close the tree in its handler of the write.
    const QPointer<FeatureMarks> alive(this);
    QVector<Change> changes;
    for (const GenApi::IValue *changed : std::as_const(m_order)) {
        if (!feature || changed == feature)
            changes += m_changes.value(changed);
    }
    std::reverse(changes.begin(), changes.end());
    for (const Change &change : std::as_const(changes)) {
        if (alive)
            putBack(change);
    }
}

void FeatureMarks::putBack(const Change &change)
{
    const QPointer<FeatureMarks> alive(this);
    QString reason;
    try {
        SelectorMove move;
        moveTo(change.places, &move);
        m_model.writeText(change.feature, change.before);
    } catch (const GenICam::GenericException &exception) {
        reason = fromUtf8(GenICam::gcstring(exception.GetDescription()));
    }
    if (!alive)
        return;
    if (!reason.isEmpty())
        noteRefusal(change.feature, reason);
    else
        // Its cells ignored the notification while a selector was moved.
        emit changed(change.feature);
}

} // namespace OrvGui
