// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/Container.h>
#include <GenApi/IBase.h>

namespace GenApi_3_0 {

/// A feature that may select other features or be selected by them.
struct GENAPI_DECL ISelector : virtual public IBase
{
    virtual bool IsSelector() const = 0;

    /// Replaces the content of the list.
    virtual void GetSelectedFeatures(FeatureList_t &Features) const = 0;
    virtual void GetSelectingFeatures(FeatureList_t &Features) const = 0;
};

} // namespace GenApi_3_0
