// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QString>

/// A line on the terminal that shows the progress of opening a camera while an instance exists;
/// nothing is printed without a terminal. Detects an opening without progress.
class OpeningLine
{
    Q_DECLARE_TR_FUNCTIONS(OpeningLine)

public:
    static constexpr int longestStandstill = 60000; ///< ms

    explicit OpeningLine(const QString &camera);
    ~OpeningLine();
    OpeningLine(const OpeningLine &) = delete;
    OpeningLine &operator=(const OpeningLine &) = delete;

    /// Shows the downloaded share of the description; -1 for none. Returns false when there is no
    /// progress for too long.
    bool show(int percent);
    bool hasStalled() const;

private:
    const QString m_camera;
    const bool m_isTerminal;
    bool m_isShown = false;
    int m_percent = -1;
    QElapsedTimer m_sinceChange;
};
