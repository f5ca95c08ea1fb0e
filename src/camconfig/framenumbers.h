// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace OrvGenParam {
class Array;
class Int;
} // namespace OrvGenParam

namespace OrvGui {

class FeatureReader;

/// The state of the selected frame as texts: empty where the camera lacks the feature or it cannot
/// be read.
struct FrameNumbers
{
    QString width;
    QString height;
    QString frameTime;
    QString exposure;
    bool hasTimedOut = false; ///< one of them

    static FrameNumbers read(const FeatureReader &reader, const OrvGenParam::Array &array);

    /// One number. Sets the flag when the camera does not answer, and leaves it alone otherwise.
    static QString text(const FeatureReader &reader, const OrvGenParam::Int *param,
                        bool &hasTimedOut);
};

} // namespace OrvGui
