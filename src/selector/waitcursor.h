// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>

/// Shows the hourglass while it lives: the camera system keeps the GUI thread waiting.
class WaitCursor
{
public:
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor &) = delete;
    WaitCursor &operator=(const WaitCursor &) = delete;
};
