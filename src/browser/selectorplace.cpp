// SPDX-License-Identifier: MIT
#include "browser/selectorplace.h"

#include "base/genicamstring.h"
#include "base/selectors.h"
#include "genparamtree/genparamtreemodel.h"

#include <GenApi/GenApi.h>

namespace OrvGui {

SelectorPlaces placesOf(GenApi::IValue *feature, const GenParamTreeModel &model)
{
    SelectorPlaces places;
    try {
        for (GenApi::IValue *selector : selectorsOf(feature))
            places.append({selector, model.text(selector)});
    } catch (const GenICam::GenericException &) {
        return {}; // the description contradicts itself
    }
    return places;
}

void moveTo(const SelectorPlaces &places, SelectorMove *move)
{
    for (const SelectorPlace &place : places)
        move->moveTo(place.selector, place.value);
}

} // namespace OrvGui
