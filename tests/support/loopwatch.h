// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QObject>

#include <atomic>
#include <chrono>
#include <ctime>
#include <fstream>
#include <thread>
#include <utility>

/// Measures the longest time for which a call blocked the event loop of this thread during the
/// object's lifetime. Computing time does not count, nor does the load of the machine: a second
/// thread, which only sleeps, measures how late it wakes up.
class LoopWatch : public QObject
{
public:
    LoopWatch()
    {
        m_last = Moment::now(m_lateness);
        startTimer(period, Qt::PreciseTimer);
    }

    ~LoopWatch() override
    {
        m_isOver = true;
        m_sleeper.join();
    }

    /// In milliseconds.
    double longestWait()
    {
        take();
        return m_longest;
    }

    /// Like `longestWait()`, and restarts the measurement.
    double takeLongestWait()
    {
        take();
        return std::exchange(m_longest, 0);
    }

protected:
    void timerEvent(QTimerEvent *) override { take(); }

private:
    static const int period = 5;

    struct Moment
    {
        double real;
        double busy;  ///< the thread's processor time and waits for a processor
        int lateness; ///< of the sleeping thread

        static Moment now(int lateness)
        {
            const auto milliseconds = [](clockid_t clock) {
                timespec time{};
                clock_gettime(clock, &time);
                return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
            };
            double computed = 0;
            double delayed = 0;
            std::ifstream("/proc/thread-self/schedstat") >> computed >> delayed;
            return {milliseconds(CLOCK_MONOTONIC),
                    milliseconds(CLOCK_THREAD_CPUTIME_ID) + delayed / 1e6, lateness};
        }
    };

    void take()
    {
        const Moment now = Moment::now(m_lateness);
        const double waited =
            now.real - m_last.real - (now.busy - m_last.busy) - (now.lateness - m_last.lateness);
        m_longest = qMax(m_longest, waited);
        m_last = now;
    }

    void sleep()
    {
        while (!m_isOver) {
            QElapsedTimer timer;
            timer.start();
            std::this_thread::sleep_for(std::chrono::milliseconds(period));
            if (timer.elapsed() > 20)
                m_lateness += int(timer.elapsed()) - period;
        }
    }

    std::atomic<int> m_lateness{0};
    std::atomic<bool> m_isOver{false};
    Moment m_last{};
    double m_longest = 0;
    std::thread m_sleeper{[this] { sleep(); }};
};
