// SPDX-License-Identifier: MIT
#pragma once

class QtOrvSpinBox;

namespace OrvGui {

/// Sets the size of a vertical pop-up slider: the width is the height of the spin box, the height
/// is the width of the spin box without its caption.
void fitUprightSlider(QtOrvSpinBox *spinBox);

} // namespace OrvGui
