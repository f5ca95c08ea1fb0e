// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace OrvGenParam {
class Array;
class Int;
} // namespace OrvGenParam

namespace OrvGui {

class FeatureReader;

/// What a camera does in the frame that is selected, as text: empty where the camera lacks the
/// feature or does not let it be read.
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
