// SPDX-License-Identifier: MIT
#include "guimeter.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <utility>

namespace {

constexpr int period = 5; // ms

double milliseconds(qint64 nanoseconds)
{
    return static_cast<double>(nanoseconds) / 1e6;
}

} // namespace

GuiMeter::GuiMeter()
{
    setEnabled(true);
}

void GuiMeter::setEnabled(bool isEnabled)
{
    if (isEnabled == (m_timer != 0))
        return;
    if (isEnabled) {
        m_timer = startTimer(period, Qt::PreciseTimer);
        m_sinceTurn.start();
        m_lastTurn = now();
        m_gaps = {};
    } else {
        killTimer(std::exchange(m_timer, 0));
    }
}

GuiMeter::Gaps GuiMeter::take()
{
    note();
    return std::exchange(m_gaps, {});
}

void GuiMeter::timerEvent(QTimerEvent *)
{
    note();
}

void GuiMeter::note()
{
    const double gap = milliseconds(m_sinceTurn.nsecsElapsed());
    const Clocks turn = now();
    m_sinceTurn.start();
    const double work = turn.work - m_lastTurn.work;
    const double runQueue = turn.runQueue - m_lastTurn.runQueue;
    m_lastTurn = turn;

    m_gaps.longest = std::max(m_gaps.longest, gap);
    m_gaps.work = std::max(m_gaps.work, work);
    m_gaps.longestWait = std::max(m_gaps.longestWait, gap - period - work - runQueue);
    m_gaps.beyond += std::max(0.0, gap - period);
}

GuiMeter::Clocks GuiMeter::now()
{
    timespec time = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    Clocks clocks;
    clocks.work = double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
    // The scheduler's figures: nanoseconds on a processor, nanoseconds ready to run, time slices.
    if (std::FILE *file = std::fopen("/proc/thread-self/schedstat", "r")) {
        double ready = 0;
        if (std::fscanf(file, "%*s %lf", &ready) == 1)
            clocks.runQueue = ready / 1e6;
        std::fclose(file);
    }
    return clocks;
}
