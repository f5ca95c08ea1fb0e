// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>

#include <memory>

class QTemporaryDir;

/// Where the program's windows go: onto a display, or, when only text or a picture is wanted and
/// there is none, into memory. One per program.
class WindowSystem
{
public:
    enum class Need { Windows, Picture, Text };

    /// Ends the program with one line and status 1 when windows are needed and cannot be shown.
    /// The line is `complaint`, with Qt's reason for its "%1". A picture is then taken offscreen:
    /// the program is started again for that.
    WindowSystem(int &argc, char **argv, Need need, const QString &complaint);
    ~WindowSystem();

    QApplication &application() { return *m_application; }

private:
    void goOffscreen();

    std::unique_ptr<QTemporaryDir> m_runtimeFolder;
    std::unique_ptr<QApplication> m_application;
};
