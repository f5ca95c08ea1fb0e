// SPDX-License-Identifier: MIT
#pragma once

#include "history/samplering.h"

#include <QPointer>
#include <QString>

class QWidget;

namespace OrvGui {

class HistoryCaption;
class HistoryWindow;

/// The history of the numbers that a window shows for its camera, with the windows that show it.
///
/// Pass each number when it has been read; this class reads nothing.
class CameraHistory
{
public:
    enum Quantity { FrameRate, FrameTime, Exposure, Temperature, QuantityCount };
    enum Frame { FrameA, FrameB, FrameCount };

    /// `parent` becomes the parent of the windows.
    explicit CameraHistory(QWidget *parent);

    /// A click on the caption opens the history. `unit` is displayed beside the number.
    void open(HistoryCaption *caption, Quantity quantity, const QString &unit);

    /// The names of two frames; null for a camera without frames.
    void setFrames(const QString &a, const QString &b);

    /// The texts that are shown now; an empty text means no number.
    void add(Quantity quantity, Frame frame, const QString &number);
    void clear();
    void closeWindows();

private:
    void show(Quantity quantity, const QString &name, const QString &unit);
    void setSeries(Quantity quantity);

    QWidget *const m_parent;
    QString m_frames[FrameCount];
    SampleRing m_rings[QuantityCount][FrameCount];
    QPointer<HistoryWindow> m_windows[QuantityCount];
};

} // namespace OrvGui
