// SPDX-License-Identifier: MIT
#pragma once

#include "xwindow.h"

#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

/// Operates a program through its windows, with mouse and keyboard. The destructor kills the
/// program.
class ProgramOnScreen : public QProcess
{
public:
    ProgramOnScreen() { setProcessChannelMode(ForwardedErrorChannel); }
    ~ProgramOnScreen() override { end(); }

    void end()
    {
        kill();
        waitForFinished();
    }

    /// The exit status; negative if the program does not end, or crashes.
    int status()
    {
        if (state() == Running && !waitForFinished(10000))
            return -1;
        return exitStatus() == NormalExit ? exitCode() : -2;
    }

    /// Waits for a window and gives it the keyboard focus, since no window manager does. The result
    /// is 0 if the window does not appear.
    bool waitForWindow(const QString &title)
    {
        const QString pattern = '^' + QRegularExpression::escape(title) + '$';
        const auto look = [&] {
            window = xdotool({"search", "--onlyvisible", "--name", pattern}).toUInt();
            return window != 0;
        };
        if (QTest::qWaitFor(look, 10000))
            xdotool({"windowfocus", "--sync", QString::number(window)});
        return window != 0;
    }

    void closeWindow() { screen.askToClose(window); }
    QImage picture() const { return screen.picture(window); }

    static void press(const QStringList &keys)
    {
        xdotool(QStringList{"key", "--delay", "20"} + keys);
    }
    static void click(int x, int y)
    {
        xdotool({"mousemove", QString::number(x), QString::number(y), "click", "1"});
    }

    XView screen; ///< an open connection keeps the server from resetting between two programs
    xcb_window_t window = 0; ///< the last result of waiting

private:
    /// The first line of the program's output.
    static QString xdotool(const QStringList &arguments)
    {
        QProcess process;
        process.start("xdotool", arguments);
        process.waitForFinished();
        return QString::fromUtf8(process.readLine()).trimmed();
    }
};
