// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QObject>

/// Measures on the thread that makes it for how long a timer of 5 ms does not get its turn, and
/// what the thread did in that time: work, wait for a processor, or wait for something else.
class GuiMeter : public QObject
{
    Q_OBJECT

public:
    /// In milliseconds.
    struct Gaps
    {
        double longest = 0;     ///< between two turns
        double work = 0;        ///< the most processor time of the thread between two turns
        double longestWait = 0; ///< the longest part of a gap that was neither work nor the want of
                                ///< a free processor; what the timer itself waits is not counted
        double beyond = 0;      ///< the sum of what was beyond 5 ms
    };

    /// In milliseconds, of the thread.
    struct Clocks
    {
        double work = 0;     ///< processor time
        double runQueue = 0; ///< time for which it was ready, but had no processor
    };

    static Clocks now();

    GuiMeter();

    /// Since the last call.
    Gaps take();

    void setEnabled(bool isEnabled);

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void note();

    QElapsedTimer m_sinceTurn;
    Clocks m_lastTurn;
    Gaps m_gaps;
    int m_timer = 0;
};
