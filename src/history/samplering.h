// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>
#include <QtGlobal>

namespace OrvGui {

/// The numbers of the last ten minutes, in a fixed amount of memory.
class SampleRing
{
public:
    struct Sample
    {
        qint64 time;  ///< ms since 1970
        double value; ///< NaN if there is no number
    };
    struct Summary
    {
        int count = 0; ///< of the numbers; if 0, the other members are undefined
        double min = 0;
        double max = 0;
        double mean = 0;
    };

    static constexpr qint64 span = 600 * 1000; ///< ms
    /// The largest distance in ms at which neighbours are connected by a line.
    static constexpr qint64 longestGap = 3500;
    static constexpr int capacity = 1200; ///< twice the usual number of samples in that time

    /// Drops samples that are older than the span, and samples with a later time than the new one:
    /// the clock was set back.
    void add(qint64 time, double value);
    void clear();

    int size() const { return m_size; }

    /// Index 0 is the oldest one.
    const Sample &at(int index) const;

    /// Whether there is a gap between the sample and the one before.
    bool isAfterGap(int index) const;

    /// The index of the sample with a number that is nearest to the time; -1 if there is none.
    int nearest(qint64 time) const;

    Summary summary() const;

private:
    QVector<Sample> m_samples;
    int m_first = 0;
    int m_size = 0;
};

} // namespace OrvGui
