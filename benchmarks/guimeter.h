// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QObject>

/// Measures how late the ticks of a 5 ms timer are on the current thread, and what the thread did
/// in between: use the processor, wait for a free processor, or wait for something else.
class GuiMeter : public QObject
{
    Q_OBJECT

public:
    /// In milliseconds.
    struct Gaps
    {
        double longest = 0;     ///< between two ticks
        double work = 0;        ///< the most processor time of the thread between two ticks
        double longestWait = 0; ///< the longest wait other than for a processor or the timer
        double beyond = 0;      ///< the sum of all times beyond 5 ms
    };

    /// Times of the thread in milliseconds.
    struct Clocks
    {
        double work = 0;     ///< processor time
        double runQueue = 0; ///< time for which it was ready, but had no processor
    };

    static Clocks now();

    GuiMeter();

    /// Returns the measurements since the last call.
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
