// SPDX-License-Identifier: MIT
#pragma once

#include "history/camerahistory.h"

#include <QCoreApplication>

class QLabel;
class QLineEdit;
class QWidget;
class Ui_OrvCamConfigMainWindow;

namespace OrvGenParam {
class Array;
}

namespace OrvGui {

struct FrameNumbers;

/// The status panel of the main window: a column of numbers for each frame of the camera, the
/// temperature, and the history of both. Shows what it is given; reads nothing.
class FramesPanel
{
    Q_DECLARE_TR_FUNCTIONS(OrvGui::OrvCamConfig)

public:
    using Frame = CameraHistory::Frame;

    /// The form, which is complete, must outlive the panel. The windows of the history belong to
    /// `window`.
    FramesPanel(const Ui_OrvCamConfigMainWindow &ui, QWidget *window);

    /// Two columns, or a wide one for cameras without frames.
    void layOut(bool hasFrames);

    /// Describes the features in the tool tips; null for none.
    void explain(const OrvGenParam::Array *array);

    /// Dims the column of a frame that is not output: its numbers are those of former images.
    void setOld(Frame frame, bool isOld);

    /// Show numbers and add them to the history.
    void show(Frame frame, const FrameNumbers &numbers);
    void showTemperature(const QString &degrees);

    /// The history keeps its numbers.
    void clear();

    CameraHistory &history() { return m_history; }

private:
    enum Row { Size, FrameRate, FrameTime, Exposure, RowCount };

    struct Column
    {
        QLabel *head;
        QLineEdit *fields[RowCount];
    };

    void placeWide(QWidget *widget, int row, int columns);
    void limitWidth(QLineEdit *field, bool isLimited);

    const Ui_OrvCamConfigMainWindow &m_ui;
    const QWidget *const m_window;
    CameraHistory m_history;
    const Column m_columns[CameraHistory::FrameCount];
};

} // namespace OrvGui
