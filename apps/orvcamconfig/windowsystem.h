// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>

#include <memory>

class QTemporaryDir;

/// The display for the program's windows or, when only text or a screenshot is requested and there
/// is none, an offscreen one. One instance per program.
class WindowSystem
{
public:
    enum class Need { Windows, Picture, Text };

    /// Exits with one line and status 1 when windows are needed and cannot be shown. The line is
    /// `complaint`, with Qt's reason for its "%1". For a screenshot, the program is started again
    /// with an offscreen display.
    WindowSystem(int &argc, char **argv, Need need, const QString &complaint);
    ~WindowSystem();

    QApplication &application() { return *m_application; }

private:
    void goOffscreen();

    std::unique_ptr<QTemporaryDir> m_runtimeFolder;
    std::unique_ptr<QApplication> m_application;
};
