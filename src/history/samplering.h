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
        double value; ///< NaN where there was none
    };
    struct Summary
    {
        int count = 0; ///< of the numbers; if 0, the other members are undefined
        double min = 0;
        double max = 0;
        double mean = 0;
    };

    static constexpr qint64 span = 600 * 1000; ///< ms
    static constexpr qint64 longestGap = 3500; ///< ms between neighbours that belong together
    static constexpr int capacity = 1200;      ///< twice the usual number in that time

    /// Drops samples that are older than the span, and later ones: the clock has been set back.
    void add(qint64 time, double value);
    void clear();

    int size() const { return m_size; }

    /// The oldest one is 0.
    const Sample &at(int index) const;

    /// Whether nothing connects the sample with the one before.
    bool isAfterGap(int index) const;

    /// The one that is next to the time, of those with a number; -1 if there is none.
    int nearest(qint64 time) const;

    Summary summary() const;

private:
    QVector<Sample> m_samples;
    int m_first = 0;
    int m_size = 0;
};

} // namespace OrvGui
