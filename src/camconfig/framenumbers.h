// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace OrvGenParam {
class Array;
class Int;
} // namespace OrvGenParam

namespace OrvGui {

class FeatureReader;

/// The state of the selected frame as texts. A text is empty when the camera lacks the feature or
/// it cannot be read.
struct FrameNumbers
{
    QString width;
    QString height;
    QString frameTime;
    QString exposure;
    bool hasTimedOut = false; ///< at least one read has timed out

    static FrameNumbers read(const FeatureReader &reader, const OrvGenParam::Array &array);

    /// One number. Sets the flag when the camera does not answer, and never clears it.
    static QString text(const FeatureReader &reader, const OrvGenParam::Int *param,
                        bool &hasTimedOut);
};

} // namespace OrvGui
