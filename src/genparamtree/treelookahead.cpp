// SPDX-License-Identifier: MIT
#include "genparamtree/treelookahead.h"

#include "genparamtree/featurecell.h"
#include "genparamtree/genparamtreemodel_p.h"
#include "genparamtree/parameterdescription.h"

#include <GenApi/GenApi.h>

#include <QLocale>

#include <algorithm>
#include <utility>

namespace OrvGui {

namespace {

using Ask = TreeLookAhead::Ask;

/// The pause before a value is read again, in ms, when it became invalid during or just after a
/// read.
constexpr int repetitionPause = 100;

/// The interval at which partial results of a read are shown, in ms.
constexpr int progressPeriod = 100;

/// How long a new request waits for the running one, in ms. A request that replaces the running one
/// reads its remaining values again.
constexpr int replacementPause = 300;

bool covers(const std::map<GenApi::IValue *, TreeLookAhead::Extent> &extents,
            GenApi::IValue *feature, TreeLookAhead::Extent extent)
{
    const auto found = extents.find(feature);
    return found != extents.end() && found->second >= extent;
}

void merge(GenApi::IValue *feature, TreeLookAhead::Extent extent,
           std::map<GenApi::IValue *, TreeLookAhead::Extent> *extents)
{
    TreeLookAhead::Extent &merged = extents->emplace(feature, extent).first->second;
    merged = std::max(merged, extent);
}

void readCell(GenApi::IValue *feature)
{
    featureText(feature, GenParamTreeModelPrivate::valueData(feature, Qt::DisplayRole), QLocale());
}

template<typename Number>
void addLimits(Number *number, std::vector<Ask> *asks)
{
    if (!number)
        return;
    asks->push_back([number] { number->GetMin(); });
    asks->push_back([number] { number->GetMax(); });
    asks->push_back([number] {
        const GenApi::EIncMode mode = number->GetIncMode();
        if (mode == GenApi::listIncrement)
            number->GetListOfValidValues(true);
        else if (mode == GenApi::fixedIncrement)
            number->GetInc();
    });
}

void addEntries(GenApi::IEnumeration *enumeration, std::vector<Ask> *asks)
{
    if (!enumeration)
        return;
    GenApi::NodeList_t entries;
    enumeration->GetEntries(entries);
    for (size_t i = 0; i < entries.size(); ++i)
        asks->push_back([entry = entries[i]] { entry->GetAccessMode(); });
}

/// Adds a separate function for each value that can be read independently of the others.
void addAsks(GenApi::IValue *feature, TreeLookAhead::Extent extent, std::vector<Ask> *asks)
{
    asks->push_back([feature] { readCell(feature); });
    // The access mode of a cell depends on locks, its value does not.
    if (feature->GetNode()->GetPrincipalInterfaceType() != GenApi::intfICommand)
        asks->push_back([feature] { feature->ToString(); });
    if (extent != TreeLookAhead::Everything)
        return;
    addLimits(dynamic_cast<GenApi::IInteger *>(feature), asks);
    addLimits(dynamic_cast<GenApi::IFloat *>(feature), asks);
    addEntries(dynamic_cast<GenApi::IEnumeration *>(feature), asks);
    asks->push_back([feature] { escapedDescription(feature); });
}

} // namespace

TreeLookAhead *TreeLookAhead::create(GenApi::INodeMap *map, std::function<Features()> shown,
                                     QObject *parent)
{
    auto *lookAhead = dynamic_cast<OrvGenParam::LookAhead *>(map);
    return lookAhead ? new TreeLookAhead(*lookAhead, std::move(shown), parent) : nullptr;
}

TreeLookAhead::TreeLookAhead(OrvGenParam::LookAhead &map, std::function<Features()> shown,
                             QObject *parent)
    : QObject(parent), m_map(map), m_shown(std::move(shown))
{
    m_start.setSingleShot(true);
    connect(&m_start, &QTimer::timeout, this, &TreeLookAhead::startFetch);
    m_progress.setInterval(progressPeriod);
    connect(&m_progress, &QTimer::timeout, this, &TreeLookAhead::arrived);
}

bool TreeLookAhead::look(GenApi::IValue *feature, Extent extent, const Ask &ask)
{
    if (m_map.look(ask))
        return true;
    note(feature, extent);
    return false;
}

bool TreeLookAhead::knowsEverything(GenApi::IValue *feature)
{
    std::vector<Ask> asks;
    addAsks(feature, Everything, &asks);
    return look(feature, Everything, [&asks] {
        for (const Ask &ask : asks) {
            try {
                ask();
            } catch (const GenICam::GenericException &) {
                // The failure of the node is cached, too.
            }
        }
    });
}

void TreeLookAhead::note(GenApi::IValue *feature, Extent extent)
{
    merge(feature, extent, &m_missed);
    const bool isRepetition = !m_isUnderWay && m_sinceEnd.isValid() &&
                              m_sinceEnd.elapsed() < repetitionPause &&
                              covers(m_asked, feature, extent);
    const int pause = isRepetition ? repetitionPause : 0;
    if (!m_start.isActive() || pause < m_start.interval())
        m_start.start(pause);
}

void TreeLookAhead::startFetch()
{
    Extents missed = std::exchange(m_missed, {});
    if (!m_isUnderWay)
        return fetch(std::move(missed));
    const bool isComing = std::all_of(missed.begin(), missed.end(), [this](const auto &entry) {
        return covers(m_asked, entry.first, entry.second);
    });
    if (isComing)
        return;
    Extents shown = stillShown();
    if (!shown.empty() && m_sinceStart.elapsed() < replacementPause) {
        m_missed = std::move(missed);
        m_start.start(progressPeriod);
        return;
    }
    for (const auto &[feature, extent] : missed)
        merge(feature, extent, &shown);
    fetch(std::move(shown));
}

/// The requested features that are visible on the screen.
TreeLookAhead::Extents TreeLookAhead::stillShown() const
{
    const Features features = m_shown();
    Extents shown;
    for (const auto &asked : m_asked) {
        if (features.count(asked.first))
            shown.insert(asked);
    }
    return shown;
}

void TreeLookAhead::fetch(Extents extents)
{
    std::vector<Ask> asks;
    for (const auto &[feature, extent] : extents)
        addAsks(feature, extent, &asks);
    m_asked = std::move(extents);
    m_isUnderWay = true;
    m_sinceStart.start();
    m_progress.start();
    m_request = m_map.fetch(std::move(asks), [this] { finish(); });
}

void TreeLookAhead::finish()
{
    m_isUnderWay = false;
    m_progress.stop();
    m_sinceEnd.start();
    if (!m_missed.empty())
        m_start.start(0);
    emit arrived(); // a receiver may destroy this object
}

} // namespace OrvGui
