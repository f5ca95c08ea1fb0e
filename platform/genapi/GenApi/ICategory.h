// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/Container.h>
#include <GenApi/IValue.h>

namespace GenApi_3_0 {

/// A group of features.
struct GENAPI_DECL ICategory : virtual public IValue
{
    /// The features in the order of the description. Replaces the content of `Features`.
    virtual void GetFeatures(FeatureList_t &Features) const = 0;
};

} // namespace GenApi_3_0
