// SPDX-License-Identifier: MIT
#include "openingline.h"

#include <QTextStream>

#include <unistd.h>

#include <algorithm>

namespace {

const char *const clearedLine = "\r\x1b[K";

} // namespace

OpeningLine::OpeningLine(const QString &camera)
    : m_camera(camera), m_isTerminal(isatty(STDERR_FILENO) == 1)
{
    m_sinceChange.start();
}

OpeningLine::~OpeningLine()
{
    if (m_isShown)
        QTextStream(stderr) << clearedLine;
}

bool OpeningLine::show(int percent)
{
    const bool isNew = percent != m_percent;
    if (isNew)
        m_sinceChange.start();
    m_percent = percent;
    if (m_isTerminal && (isNew || !m_isShown)) {
        m_isShown = true;
        QTextStream(stderr)
            << clearedLine
            << tr("Opening the camera '%1': %2 %").arg(m_camera).arg(std::max(percent, 0));
    }
    return !hasStalled();
}

bool OpeningLine::hasStalled() const
{
    return m_sinceChange.hasExpired(longestStandstill);
}
