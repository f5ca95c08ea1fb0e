// SPDX-License-Identifier: MIT
#include "selectorplace.h"

#include "base/selectors.h"
#include "genparamtree/genicamstring.h"
#include "genparamtree/genparamtreemodel.h"

#include <GenApi/GenApi.h>

#include <utility>

namespace OrvGui {

namespace {

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

SelectorPlaces placesOf(GenApi::IValue *feature, const GenParamTreeModel &model)
{
    SelectorPlaces places;
    try {
        for (GenApi::IValue *selector : selectorsOf(feature))
            places.append({selector, model.text(selector)});
    } catch (const GenICam::GenericException &) {
        return {}; // the description is wrong there
    }
    return places;
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
