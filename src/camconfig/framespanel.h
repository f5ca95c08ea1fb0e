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
/// temperature, and the history of both. Displays the given values; reads nothing.
class FramesPanel
{
    Q_DECLARE_TR_FUNCTIONS(OrvGui::OrvCamConfig)

public:
    using Frame = CameraHistory::Frame;

    /// The form must be set up and must outlive the panel. `window` is the parent of the history
    /// windows.
    FramesPanel(const Ui_OrvCamConfigMainWindow &ui, QWidget *window);

    /// Shows two columns, or a wide one for cameras without frames.
    void layOut(bool hasFrames);

    /// Sets the descriptions of the features as tool tips; null for none.
    void explain(const OrvGenParam::Array *array);

    /// Dims the column of a frame that is not output; its numbers belong to earlier images.
    void setOld(Frame frame, bool isOld);

    /// Show numbers and add them to the history.
    void show(Frame frame, const FrameNumbers &numbers);
    void showTemperature(const QString &degrees);

    /// Clears the numbers; the history keeps its own.
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
