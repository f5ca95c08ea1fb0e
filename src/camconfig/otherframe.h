// SPDX-License-Identifier: MIT
#pragma once

#include "camconfig/framenumbers.h"

#include <QByteArray>

namespace OrvGenParam {
class Array;
}

namespace OrvGui {

/// What a camera does in the frame that is not selected, read by moving the frame selector to it
/// and back.
///
/// While the selector is away, whatever is written to the camera goes to the wrong frame. So this
/// is for a camera that has no other user yet, on the thread that opens it; a window moves the
/// selector of its camera without letting go of the GUI thread.
class OtherFrame
{
public:
    static constexpr const char *frameA = "FrameA";
    static constexpr const char *frameB = "FrameB";

    /// Nothing is known afterwards when the camera has not let all be read, has not taken the
    /// selector back, or cannot be looked at without transfers.
    void read(const OrvGenParam::Array &array);

    /// Whether the numbers are known, and of the other frame than this one.
    bool isBeside(const QByteArray &selected) const;

    const FrameNumbers &numbers() const { return m_numbers; }

private:
    QByteArray m_selected; ///< empty while nothing is known
    FrameNumbers m_numbers;
};

} // namespace OrvGui
