// SPDX-License-Identifier: MIT
#pragma once

#include "camconfig/framenumbers.h"

#include <QByteArray>

namespace OrvGenParam {
class Array;
}

namespace OrvGui {

/// The numbers of the frame that is not selected, read by moving the frame selector to it and back.
///
/// While the selector is moved, a write to the camera changes the wrong frame. Use this for a
/// camera that has no other user yet, on the thread that opens it; a window moves the selector of
/// its camera without returning to the event loop.
class OtherFrame
{
public:
    static constexpr const char *frameA = "FrameA";
    static constexpr const char *frameB = "FrameB";

    /// No numbers are known afterwards when a read has failed, when the selector could not be
    /// restored, or when the camera cannot be read without transfers.
    void read(const OrvGenParam::Array &array);

    /// Whether the numbers are known, and of the other frame than this one.
    bool isBeside(const QByteArray &selected) const;

    const FrameNumbers &numbers() const { return m_numbers; }

private:
    QByteArray m_selected; ///< empty while nothing is known
    FrameNumbers m_numbers;
};

} // namespace OrvGui
