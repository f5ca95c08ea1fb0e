// SPDX-License-Identifier: MIT
#pragma once

class QtOrvSpinBox;

namespace OrvGui {

/// Gives the slider that pops up upright the height of the spin box as its width, and as its height
/// the width of the spin box without its caption.
void fitUprightSlider(QtOrvSpinBox *spinBox);

} // namespace OrvGui
