// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QString>

/// A line on the terminal that shows the progress of opening a camera, as long as the object
/// lives; without a terminal there is none. Knows when an opening stands still.
class OpeningLine
{
    Q_DECLARE_TR_FUNCTIONS(OpeningLine)

public:
    static constexpr int longestStandstill = 60000; ///< ms

    explicit OpeningLine(const QString &camera);
    ~OpeningLine();
    OpeningLine(const OpeningLine &) = delete;
    OpeningLine &operator=(const OpeningLine &) = delete;

    /// Shows the share of the description that has come; -1 for none. False when it stands still.
    bool show(int percent);
    bool standsStill() const;

private:
    const QString m_camera;
    const bool m_isTerminal;
    bool m_isShown = false;
    int m_percent = -1;
    QElapsedTimer m_sinceChange;
};
