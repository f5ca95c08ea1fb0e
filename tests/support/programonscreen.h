// SPDX-License-Identifier: MIT
#pragma once

#include "xwindow.h"

#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

/// A program that is used by its windows, a mouse and a keyboard only. It is killed at the latest
/// with this object.
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

    /// Its exit status; less than 0 when it does not end, or crashes.
    int status()
    {
        if (state() == Running && !waitForFinished(10000))
            return -1;
        return exitStatus() == NormalExit ? exitCode() : -2;
    }

    /// Waits for a window and gives it the keyboard, as there is no window manager that does. The
    /// window is 0 when it does not come.
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

    XView screen;            ///< also keeps the server from starting anew between two programs
    xcb_window_t window = 0; ///< the last that was waited for

private:
    /// The first line of its output.
    static QString xdotool(const QStringList &arguments)
    {
        QProcess process;
        process.start("xdotool", arguments);
        process.waitForFinished();
        return QString::fromUtf8(process.readLine()).trimmed();
    }
};
