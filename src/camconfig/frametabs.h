// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>

#include <functional>

class QtOrvSliderSpinBox;
class QWidget;
class Ui_OrvCamConfigFrameABDialog;

namespace OrvGenParam {
class Array;
class Enum;
class Param;
} // namespace OrvGenParam

namespace OrvGui {

class FeatureReader;
class OrvCamConfigMapper;

/// The tabs of the frame dialog, which select the frame that a camera's features address, and the
/// widgets that depend on the output mode. While the camera outputs one frame only, that frame
/// stays selected and the numbers of frames are not bound.
///
/// There is one object per device. A write may destroy it; this cancels all pending work. The
/// arguments must outlive it.
class FrameTabs : public QObject
{
    Q_OBJECT

public:
    static constexpr const char *selectorName = "FrameAB_Selector";

    /// Writes nothing.
    FrameTabs(const Ui_OrvCamConfigFrameABDialog &ui, OrvCamConfigMapper &mapper,
              FeatureReader &reader, OrvGenParam::Array *array);

    /// Null where the camera lacks it.
    OrvGenParam::Enum *selector() const { return m_selector; }

    /// Connects the tabs and the output mode. Call it when both are bound, because binding
    /// disconnects other receivers.
    void follow();

    /// Applies the output mode that is shown. Returns false when a write has destroyed the object.
    bool applyMode();

    /// Shows the selected frame, and applies the output mode from the event loop.
    void prepareToShow();

    /// Moves the form to the page of the current tab.
    void placeForm();

    /// Discards pending input or a drag when another frame has been selected, because the input was
    /// meant for the previous frame.
    void dropInput();

signals:
    /// The user or a program has selected a frame, and the form is bound as the output mode
    /// requires.
    void turned();

private:
    void applyModeWhenKnown(const std::function<void()> &applied);
    void onTabChanged(int index);
    bool showOnly(int index);
    void showOnlyUnseen(int index);
    void bindLineTime(QtOrvSliderSpinBox *spinBox);
    void bindFrameCounts();
    void unbindFrameCounts();
    qint64 selectedFrame() const;

    const Ui_OrvCamConfigFrameABDialog &m_ui;
    OrvCamConfigMapper &m_mapper;
    FeatureReader &m_reader;
    OrvGenParam::Array *const m_array;
    OrvGenParam::Enum *const m_selector;
    QTimer m_timer; ///< restores the tab that the output mode allows
    qint64 m_selectedFrame = 0;
    QtOrvSliderSpinBox *m_lineTimeBox = nullptr; ///< the bound one of the two
    bool m_areFrameCountsBound = false;
};

} // namespace OrvGui
