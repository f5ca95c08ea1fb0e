// SPDX-License-Identifier: MIT
#include "camconfig/frametabs.h"

#include "camconfig/exposuretime.h"
#include "camconfig/featurereader.h"
#include "camconfig/orvcamconfigmapper.h"
#include "ui_orvcamconfigframeabdialog.h"

#include <OrvGenParam/Array.h>

#include <QAbstractSlider>
#include <QDoubleSpinBox>
#include <QPointer>
#include <QSignalBlocker>

namespace OrvGui {

namespace {

constexpr char frameAsName[] = "NumberOfFrameAs";
constexpr char frameBsName[] = "NumberOfFrameBs";

OrvGenParam::Int *lineTimeOf(const OrvGenParam::Array *array)
{
    return array->GetInt(ExposureTime::featureOf(ExposureTime::LineTime));
}

} // namespace

FrameTabs::FrameTabs(const Ui_OrvCamConfigFrameABDialog &ui, OrvCamConfigMapper &mapper,
                     FeatureReader &reader, OrvGenParam::Array *array)
    : m_ui(ui)
    , m_mapper(mapper)
    , m_reader(reader)
    , m_array(array)
    , m_selector(array->GetEnum(selectorName))
    , m_selectedFrame(selectedFrame())
{
    m_timer.setSingleShot(true);
}

void FrameTabs::follow()
{
    m_ui.spBoxDualVideo->setEnabled(false);
    m_ui.spBoxFrameLineTime->setEnabled(false);
    unbindFrameCounts();
    connect(m_ui.cmBoxFrameMode, &QComboBox::currentTextChanged, this,
            [this] { applyModeWhenKnown([] {}); });
    connect(m_ui.tabFrames, &QTabWidget::currentChanged, this, &FrameTabs::onTabChanged);
    connect(&m_timer, &QTimer::timeout, this, [this] { applyModeWhenKnown([] {}); });
}

/// The list includes the parameters that are bound in some output modes only.
void FrameTabs::applyModeWhenKnown(const std::function<void()> &applied)
{
    m_reader.whenKnown(this, &m_timer,
                       {m_selector, lineTimeOf(m_array), m_array->GetInt(frameAsName),
                        m_array->GetInt(frameBsName)},
                       [=] {
                           if (applyMode())
                               applied();
                       });
}

bool FrameTabs::applyMode()
{
    const QPointer<FrameTabs> self(this);
    const QString mode = m_ui.cmBoxFrameMode->currentText();
    const bool isFrameA = mode == QLatin1String("FrameA");
    if (isFrameA || mode == QLatin1String("FrameB")) {
        if (showOnly(isFrameA ? 0 : 1)) {
            bindLineTime(m_ui.spBoxFrameLineTime);
            unbindFrameCounts();
        }
        return self;
    }
    for (int i = 0; i < m_ui.tabFrames->count(); ++i)
        m_ui.tabFrames->setTabEnabled(i, true);
    bindLineTime(m_ui.spBoxDualVideo);
    bindFrameCounts();
    return true;
}

void FrameTabs::prepareToShow()
{
    if (m_selector) {
        const QSignalBlocker isNoChange(m_ui.tabFrames);
        m_mapper.updateTabWidget(m_selector, m_ui.tabFrames);
        placeForm();
    }
    m_timer.start(0);
}

/// The frames share one set of widgets.
void FrameTabs::placeForm()
{
    const bool isB = m_ui.tabFrames->currentIndex() > 0;
    QWidget *const page = isB ? m_ui.tabFrameB : m_ui.tabFrameA;
    const QWidget *const other = isB ? m_ui.tabFrameA : m_ui.tabFrameB;
    if (other->layout())
        page->setLayout(other->layout());
}

void FrameTabs::dropInput()
{
    const qint64 selected = selectedFrame();
    if (selected == m_selectedFrame)
        return;
    m_selectedFrame = selected;
    QWidget *const focus = m_ui.tabFrames->window()->focusWidget();
    if (m_ui.tabFrames->isAncestorOf(focus)) {
        if (auto *spinBox = qobject_cast<QSpinBox *>(focus))
            spinBox->setValue(spinBox->value());
        else if (auto *gainBox = qobject_cast<QDoubleSpinBox *>(focus))
            gainBox->setValue(gainBox->value());
    }
    for (const QAbstractSlider *slider : m_ui.tabFrames->findChildren<QAbstractSlider *>()) {
        if (slider->isSliderDown()) {
            slider->parentWidget()->setEnabled(false);
            slider->parentWidget()->setEnabled(true);
        }
    }
}

void FrameTabs::onTabChanged(int index)
{
    placeForm();
    if (!m_ui.tabFrames->isTabEnabled(index)) {
        // Another program has selected the frame that is not output, perhaps only to read it. It
        // would read the wrong frame if the selection was restored at once.
        m_timer.start(0);
        return;
    }
    applyModeWhenKnown([this] { emit turned(); });
}

/// Returns false when a write has destroyed this object or changed the output mode.
bool FrameTabs::showOnly(int index)
{
    if (index >= m_ui.tabFrames->count())
        return true;
    if (!m_ui.tabFrames->isVisible()) {
        showOnlyUnseen(index);
        return true;
    }
    const QPointer<FrameTabs> self(this);
    const QString mode = m_ui.cmBoxFrameMode->currentText();
    m_ui.tabFrames->setTabEnabled(index, true);
    m_ui.tabFrames->setCurrentIndex(index); // writes the selection, which may fail
    if (!self || m_ui.cmBoxFrameMode->currentText() != mode)
        return false;
    m_ui.tabFrames->setTabEnabled(1 - index, false);
    return true;
}

/// Changes the tab without a write, so that another program keeps its selection until the dialog is
/// shown.
void FrameTabs::showOnlyUnseen(int index)
{
    const QSignalBlocker writesNothing(m_ui.tabFrames);
    m_ui.tabFrames->setTabEnabled(index, true);
    m_ui.tabFrames->setCurrentIndex(index);
    m_ui.tabFrames->setTabEnabled(1 - index, false);
    placeForm();
}

void FrameTabs::bindLineTime(QtOrvSliderSpinBox *spinBox)
{
    if (m_lineTimeBox == spinBox)
        return;
    m_lineTimeBox = spinBox;
    m_mapper.mapIntParam(lineTimeOf(m_array), spinBox, nullptr);
}

void FrameTabs::bindFrameCounts()
{
    if (m_areFrameCountsBound)
        return;
    m_areFrameCountsBound = true;
    m_mapper.mapIntParam(m_array->GetInt(frameAsName), m_ui.spBoxNumberOfFrameAs);
    m_mapper.mapIntParam(m_array->GetInt(frameBsName), m_ui.spBoxNumberOfFrameBs);
}

void FrameTabs::unbindFrameCounts()
{
    m_areFrameCountsBound = false;
    m_mapper.unmapParam(QString::fromLatin1(frameAsName));
    m_mapper.unmapParam(QString::fromLatin1(frameBsName));
    m_ui.spBoxNumberOfFrameAs->setEnabled(false);
    m_ui.spBoxNumberOfFrameBs->setEnabled(false);
}

qint64 FrameTabs::selectedFrame() const
{
    return m_selector ? m_reader.get([this] { return m_selector->GetIntValue(); }) : 0;
}

} // namespace OrvGui
