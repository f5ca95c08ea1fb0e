// SPDX-License-Identifier: MIT
#include "selectorplace.h"

#include "genparamtree/genicamstring.h"
#include "genparamtree/genparamtreemodel.h"

#include <GenApi/GenApi.h>

#include <utility>

namespace OrvGui {

namespace {

void addSelectors(GenApi::IValue *feature, QVector<GenApi::IValue *> *selectors)
{
    auto *selected = dynamic_cast<GenApi::ISelector *>(feature);
    if (!selected)
        return;
    GenApi::FeatureList_t list;
    selected->GetSelectingFeatures(list);
    for (std::size_t i = 0; i < list.size(); ++i) {
        GenApi::IValue *selector = list[i];
        if (!selector || selector == feature || selectors->contains(selector))
            continue;
        // Before its own selectors are visited: a description may make them select each other.
        selectors->append(selector);
        const int place = int(selectors->size()) - 1;
        addSelectors(selector, selectors);
        selectors->append(selectors->takeAt(place));
    }
}

/// A write that was not answered may have arrived.
void write(const SelectorPlace &place)
{
    const auto set = [&] { place.selector->FromString(toUtf8(place.value), true); };
    try {
        set();
    } catch (const GenICam::GenericException &) {
        set();
    }
}

} // namespace

QVector<GenApi::IValue *> selectorsOf(GenApi::IValue *feature)
{
    QVector<GenApi::IValue *> selectors;
    try {
        addSelectors(feature, &selectors);
    } catch (const GenICam::GenericException &) {
        return {};
    }
    selectors.removeAll(feature);
    return selectors;
}

SelectorPlaces placesOf(GenApi::IValue *feature, const GenParamTreeModel &model)
{
    SelectorPlaces places;
    for (GenApi::IValue *selector : selectorsOf(feature))
        places.append({selector, model.text(selector)});
    return places;
}

QVector<GenApi::IValue *> selectedBy(GenApi::IValue *selector)
{
    QVector<GenApi::IValue *> features;
    try {
        auto *selecting = dynamic_cast<GenApi::ISelector *>(selector);
        if (!selecting)
            return features;
        GenApi::FeatureList_t list;
        selecting->GetSelectedFeatures(list);
        for (std::size_t i = 0; i < list.size(); ++i) {
            if (list[i] && list[i] != selector)
                features.append(list[i]);
        }
    } catch (const GenICam::GenericException &) {
    }
    return features;
}

SelectorMove::SelectorMove(const SelectorPlaces &places)
{
    try {
        for (const SelectorPlace &place : places) {
            const QString former = fromUtf8(place.selector->ToString(false, false));
            if (former == place.value)
                continue;
            if (!m_detour)
                m_detour.emplace();
            m_former.prepend({place.selector, former});
            place.selector->FromString(toUtf8(place.value), true);
        }
    } catch (...) {
        moveBack();
        throw;
    }
}

SelectorMove::~SelectorMove()
{
    moveBack();
}

void SelectorMove::moveBack()
{
    for (const SelectorPlace &place : std::as_const(m_former)) {
        try {
            write(place);
        } catch (const GenICam::GenericException &) {
            // The camera is gone, or keeps the selector where it is; the tree shows where.
        }
    }
    m_former.clear();
}

} // namespace OrvGui
