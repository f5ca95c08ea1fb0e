// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>

/// Shows the wait cursor while an instance exists and the camera system blocks the GUI thread.
class WaitCursor
{
public:
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor &) = delete;
    WaitCursor &operator=(const WaitCursor &) = delete;
};
