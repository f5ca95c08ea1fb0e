// SPDX-License-Identifier: MIT
#include "browser/selectorreader.h"

#include "base/genicamstring.h"
#include "base/selectordetour.h"
#include "genparamtree/featurecell.h"
#include "genparamtree/genparamtreemodel_p.h"

#include <GenApi/GenApi.h>
#include <OrvGenParam/LookAhead.h>

#include <QLocale>

#include <vector>

namespace OrvGui {

namespace {

/// A table with more rows would be too large.
constexpr int64_t maxEntries = 64;

QString reasonOf(const GenICam::GenericException &exception)
{
    return fromUtf8(GenICam::gcstring(exception.GetDescription()));
}

QStringList entriesOf(GenApi::IEnumeration &selector)
{
    QStringList entries;
    GenApi::NodeList_t nodes;
    selector.GetEntries(nodes);
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        const auto *entry = dynamic_cast<GenApi::IEnumEntry *>(nodes[i]);
        if (entry && GenApi::IsAvailable(nodes[i]->GetAccessMode()))
            entries << fromUtf8(entry->GetSymbolic());
    }
    return entries;
}

QStringList entriesOf(GenApi::IInteger &selector)
{
    QStringList entries;
    if (selector.GetIncMode() == GenApi::listIncrement) {
        const auto values = selector.GetListOfValidValues(true);
        for (std::size_t i = 0; i < values.size() && i < std::size_t(maxEntries); ++i)
            entries << QString::number(values[i]);
        return entries;
    }
    const int64_t increment =
        selector.GetIncMode() == GenApi::fixedIncrement ? selector.GetInc() : 1;
    const int64_t min = selector.GetMin();
    const int64_t max = selector.GetMax();
    if (increment < 1 || max < min)
        return entries;
    // Unsigned, because the difference may exceed the range of a signed integer.
    const uint64_t steps = (static_cast<uint64_t>(max) - static_cast<uint64_t>(min)) /
                           static_cast<uint64_t>(increment);
    for (uint64_t i = 0; i <= steps && i < uint64_t(maxEntries); ++i)
        entries << QString::number(min + static_cast<int64_t>(i) * increment);
    return entries;
}

} // namespace

SelectorReader::SelectorReader(GenApi::INodeMap *nodeMap, GenApi::IValue *selector,
                               const QVector<GenApi::IValue *> &features, QObject *parent)
    : QThread(parent), m_nodeMap(nodeMap), m_selector(selector), m_features(features)
{
}

SelectorReader::~SelectorReader()
{
    requestInterruption();
    wait();
}

void SelectorReader::run()
{
    try {
        readRows();
    } catch (const GenICam::GenericException &exception) {
        m_failure = reasonOf(exception);
    }
}

void SelectorReader::readRows()
{
    const GenICam::gcstring former = m_selector->ToString(false, false);
    const SelectorDetour detour;
    for (const QString &entry : entries()) {
        if (isInterruptionRequested())
            break;
        m_rows.append(readRow(entry));
    }
    try {
        m_selector->FromString(former, true);
    } catch (const GenICam::GenericException &) {
        // Also after a write without an answer, which the camera may have executed.
        m_selector->FromString(former, true);
    }
}

QStringList SelectorReader::entries() const
{
    if (auto *enumeration = dynamic_cast<GenApi::IEnumeration *>(m_selector))
        return entriesOf(*enumeration);
    if (auto *integer = dynamic_cast<GenApi::IInteger *>(m_selector))
        return entriesOf(*integer);
    if (dynamic_cast<GenApi::IBoolean *>(m_selector))
        return {QStringLiteral("0"), QStringLiteral("1")};
    return {};
}

SelectorReader::Row SelectorReader::readRow(const QString &entry) const
{
    Row row;
    row.entry = entry;
    try {
        m_selector->FromString(toUtf8(entry), true);
    } catch (const GenICam::GenericException &exception) {
        row.refusal = reasonOf(exception);
        row.cells.resize(m_features.size());
        return row;
    }
    if (auto *lookAhead = dynamic_cast<OrvGenParam::LookAhead *>(m_nodeMap)) {
        std::vector<OrvGenParam::LookAhead::Ask> asks;
        for (GenApi::IValue *feature : m_features)
            asks.push_back([feature] {
                if (GenApi::IsReadable(feature->GetAccessMode()))
                    feature->ToString(false, false);
            });
        lookAhead->fetchNow(asks);
    }
    for (GenApi::IValue *feature : m_features)
        row.cells.append(read(feature));
    return row;
}

SelectorReader::Cell SelectorReader::read(GenApi::IValue *feature)
{
    Cell cell;
    try {
        const GenApi::EAccessMode mode = feature->GetAccessMode();
        cell.isWritable = GenApi::IsWritable(mode);
        cell.shown = featureText(
            feature, GenParamTreeModelPrivate::valueData(feature, Qt::DisplayRole), QLocale());
        if (GenApi::IsReadable(mode))
            cell.text = fromUtf8(feature->ToString(false, false));
    } catch (const GenICam::GenericException &exception) {
        cell.shown = reasonOf(exception);
    }
    return cell;
}

} // namespace OrvGui
