// SPDX-License-Identifier: MIT
#include "history/samplering.h"

#include <cmath>

namespace OrvGui {

void SampleRing::add(qint64 time, double value)
{
    if (m_samples.isEmpty())
        m_samples.resize(capacity);
    while (m_size > 0 && at(m_size - 1).time > time)
        --m_size;
    while (m_size > 0 && (m_size == capacity || at(0).time < time - span)) {
        m_first = (m_first + 1) % capacity;
        --m_size;
    }
    m_samples[(m_first + m_size) % capacity] = {time, value};
    ++m_size;
}

void SampleRing::clear()
{
    m_first = m_size = 0;
}

const SampleRing::Sample &SampleRing::at(int index) const
{
    Q_ASSERT(index >= 0 && index < m_size);
    return m_samples.at((m_first + index) % capacity);
}

bool SampleRing::isAfterGap(int index) const
{
    if (index == 0)
        return true;
    const Sample &former = at(index - 1);
    return std::isnan(former.value) || at(index).time - former.time > longestGap;
}

int SampleRing::nearest(qint64 time) const
{
    int found = -1;
    for (int i = 0; i < m_size; ++i) {
        if (std::isnan(at(i).value))
            continue;
        if (found < 0 || qAbs(at(i).time - time) < qAbs(at(found).time - time))
            found = i;
    }
    return found;
}

SampleRing::Summary SampleRing::summary() const
{
    Summary summary;
    double sum = 0;
    for (int i = 0; i < m_size; ++i) {
        const double value = at(i).value;
        if (std::isnan(value))
            continue;
        summary.min = summary.count == 0 ? value : qMin(summary.min, value);
        summary.max = summary.count == 0 ? value : qMax(summary.max, value);
        sum += value;
        ++summary.count;
    }
    summary.mean = summary.count > 0 ? sum / summary.count : 0;
    return summary;
}

} // namespace OrvGui
