// SPDX-License-Identifier: MIT
#pragma once

#include "camconfig/framenumbers.h"

#include <QByteArray>

namespace OrvGenParam {
class Array;
}

namespace OrvGui {

/// The numbers of the frame that is not selected, read by moving the frame selector and restoring
/// it.
///
/// While the selector is moved, a write to the camera changes the wrong frame. Use this on the
/// opening thread for a camera that has no other user yet, or in a window that does not return to
/// the event loop in between.
class OtherFrame
{
public:
    static constexpr const char *frameA = "FrameA";
    static constexpr const char *frameB = "FrameB";

    /// Nothing is known afterwards when a read has failed, when the selector could not be restored,
    /// or when the camera cannot be read without transfers.
    void read(const OrvGenParam::Array &array);

    /// Whether the numbers are known and belong to another frame than this one.
    bool isBeside(const QByteArray &selected) const;

    const FrameNumbers &numbers() const { return m_numbers; }

private:
    QByteArray m_selected; ///< empty when the numbers are not known
    FrameNumbers m_numbers;
};

} // namespace OrvGui
