// SPDX-License-Identifier: MIT
#include "base/selectors.h"

#include <GenApi/GenApi.h>

#include <set>

namespace OrvGui {

namespace {

void collect(GenApi::IValue *feature, std::set<GenApi::IValue *> *seen,
             std::vector<GenApi::IValue *> *selectors)
{
    const auto *selected = dynamic_cast<GenApi::ISelector *>(feature);
    if (!selected)
        return;
    GenApi::FeatureList_t selecting;
    selected->GetSelectingFeatures(selecting);
    for (size_t i = 0; i < selecting.size(); ++i) {
        GenApi::IValue *selector = selecting[i];
        if (!selector || !seen->insert(selector).second)
            continue;
        collect(selector, seen, selectors);
        selectors->push_back(selector);
    }
}

} // namespace

std::vector<GenApi::IValue *> selectorsOf(GenApi::IValue *feature)
{
    std::vector<GenApi::IValue *> selectors;
    std::set<GenApi::IValue *> seen = {feature};
    collect(feature, &seen, &selectors);
    return selectors;
}

std::vector<GenApi::IValue *> selectedBy(GenApi::IValue *selector)
{
    std::vector<GenApi::IValue *> features;
    const auto *selecting = dynamic_cast<GenApi::ISelector *>(selector);
    if (!selecting)
        return features;
    GenApi::FeatureList_t list;
    selecting->GetSelectedFeatures(list);
    for (size_t i = 0; i < list.size(); ++i) {
        if (list[i] && list[i] != selector)
            features.push_back(list[i]);
    }
    return features;
}

bool isSelector(GenApi::IBase *feature)
{
    const auto *selector = dynamic_cast<GenApi::ISelector *>(feature);
    return selector && selector->IsSelector();
}

} // namespace OrvGui
