// SPDX-License-Identifier: MIT
#include "camconfig/orvcamconfigframeabdialog.h"

#include "base/formfit.h"
#include "base/selectordetour.h"
#include "camconfig/areapresets.h"
#include "camconfig/boundfeatures.h"
#include "camconfig/digitalgain.h"
#include "camconfig/dragwatcher.h"
#include "camconfig/exposuretime.h"
#include "camconfig/featuretooltip.h"
#include "camconfig/frametabs.h"
#include "camconfig/iorvcamconfigintconverter.h"
#include "camconfig/microseconds.h"
#include "camconfig/orvcamconfigdialog_p.h"
#include "camconfig/wheelguard.h"
#include "journal/featurejournal.h"
#include "ui_orvcamconfigframeabdialog.h"
#include "widgets/heldinput.h"
#include "widgets/qtorvdoubleslider.h"
#include "widgets/qtorvdoublespinboxval.h"
#include "widgets/qtorvslider.h"
#include "widgets/qtorvspinboxval.h"
#include "widgets/valueaccessibility.h"
#include "widgets/valuegrid.h"

#include <QButtonGroup>
#include <QCoreApplication>
#include <QSignalBlocker>
#include <QTimer>

#include <memory>
#include <utility>

using OrvGenParam::Enum;
using OrvGenParam::Int;
using OrvGenParam::Param;

namespace OrvGui {

namespace {

constexpr char periodName[] = "Frame_FixedFramePeriodValue";
constexpr int sizeInterval = 1000; // ms

QString microsecondsCaption()
{
    return OrvCamConfigFrameABDialog::tr("[%1]:").arg(Microseconds::unit());
}

/// Whether the widget itself is enabled, regardless of its ancestors.
bool isUsable(const QWidget *widget)
{
    return !widget->testAttribute(Qt::WA_ForceDisabled);
}

} // namespace

class OrvCamConfigFrameABDialogPrivate : public OrvCamConfigDialogPrivate,
                                         public IOrvCamConfigIntConverter,
                                         public OrvGenParam::ParamEventSink
{
    Q_DECLARE_TR_FUNCTIONS(OrvGui::OrvCamConfigFrameABDialog)

public:
    void prepareToShow() override;
    long ToControl(long value, Int *param) override;
    long ToDevice(long value, Int *param) override;
    void OnParameterUpdate(Param *param) override;

protected:
    void buildForm() override;
    FeatureReader::Names features() const override { return BoundFeatures::frameABDialog(); }
    void release() override;
    void bind() override;
    void afterBinding() override;

private:
    class Writing;

    void setCaptions();
    QButtonGroup *group(std::initializer_list<QAbstractButton *> buttons);
    void getNeededParams();
    template<class Kind>
    Kind *watched(Kind *param)
    {
        return OrvCamConfigDialogPrivate::watched(param, this);
    }
    void makeBindings();
    void bindExposure();
    void bindPeriod();
    void bindDigitalGain();
    void explain();
    void explainTrigger();
    void connectHandlers();
    void connectDrags();
    void startSizeTimer();
    void showCurrentSize();
    FeatureReader::Params neededBy(const Param *param) const;
    FeatureReader::Params areaParams() const;
    void update(Param *param);

    void readTriggerMode();
    void readExposure();
    void showPeriod();
    void updateExposureTime();
    void setExposureTime(int time);

    void readDigitalGain();
    void showDigitalGain();
    void setDigitalGain(double factor);
    DigitalGain::Parts gainOf(double factor) const;

    void updateAfterWrites();
    void showAll();

    QtOrvSpinBox *areaBox(AreaPresets::Side side) const;
    void setArea(AreaPresets::Preset preset);
    void showArea();

    Ui_OrvCamConfigFrameABDialog ui;
    WheelGuard wheelGuard; ///< for widgets without a binding
    bool isTriggerOn = false;
    bool isFitted = false; ///< the size has been adjusted to the contents

    ExposureTime exposure;
    DigitalGain gain;
    std::unique_ptr<FrameTabs> frameTabs; ///< null without a camera
    Enum *triggerMode = nullptr;
    Int *periodParam = nullptr;
    Int *widthActual = nullptr;
    Int *heightActual = nullptr;
    AreaPresets area;

    QTimer *sizeTimer = nullptr;
    QButtonGroup *shutterButtons = nullptr;
    QButtonGroup *adcButtons = nullptr;
    QButtonGroup *exposureButtons = nullptr;
    QButtonGroup *areaButtons = nullptr; ///< the ids are those of `AreaPresets`
    QButtonGroup *decimationButtons = nullptr;
    QButtonGroup *analogGainButtons = nullptr;
    QVector<QWidget *> exposureDependents;

    QVector<qint64> customArea; ///< the user's last custom area
    bool isWriting = false;     ///< several values; derived ones are shown afterwards
};

/// A change by the user that takes more than one write. When it is over, the remaining writes are
/// dropped.
class OrvCamConfigFrameABDialogPrivate::Writing
{
public:
    explicit Writing(OrvCamConfigFrameABDialogPrivate *part)
        : m_part(part), m_generation(part), m_step(part->mapper.journal())
    {
        m_part->isWriting = true;
    }
    ~Writing()
    {
        if (!isOver())
            m_part->isWriting = false;
    }
    Q_DISABLE_COPY(Writing)

    bool isOver() const { return m_generation.isOver(); }

private:
    OrvCamConfigFrameABDialogPrivate *const m_part;
    const Generation m_generation;
    const FeatureJournal::Group m_step;
};

void OrvCamConfigFrameABDialogPrivate::buildForm()
{
    ui.setupUi(q);
    setCaptions();
    ValueAccessibility::setName(ui.cmBoxAveraging, ui.radioBtnSubsampleAverage->text());
    shutterButtons = group({ui.radioBtnRollingShutter, ui.radioBtnGlobalShutter});
    adcButtons = group({ui.radioBtnAdcSelector10b, ui.radioBtnAdcSelector12b});
    exposureButtons = group({ui.radioBtnExpOff, ui.radioBtnExpTrigger, ui.radioBtnExpInternal});
    areaButtons = group({ui.radioBtnFullFrame, ui.radioBtnQFHDFrame, ui.radioBtnCustomFrame});
    areaButtons->setId(ui.radioBtnFullFrame, AreaPresets::FullFrame);
    areaButtons->setId(ui.radioBtnQFHDFrame, AreaPresets::Qfhd);
    areaButtons->setId(ui.radioBtnCustomFrame, AreaPresets::Custom);
    decimationButtons = group(
        {ui.radioBtnSubsampleOff, ui.radioBtnSubsampleSubsampling, ui.radioBtnSubsampleAverage});
    analogGainButtons =
        group({ui.radioBtnAGain1x, ui.radioBtnAGain2x, ui.radioBtnAGain4x, ui.radioBtnAGain8x});
    exposureDependents = {ui.spBoxExpTime};

    ui.spBoxExpTime->setValidateTyping(false);
    ui.spBoxExpTime->slider()->setScaleType(QtOrvSlider::ScaleLog10);
    ui.spBoxFixedFramePeriodValue->slider()->setScaleType(QtOrvSlider::ScaleLog10);
    ui.spBoxDigitalGain->setValidate(true);
    ui.spBoxDigitalGain->setValidateTyping(false);
    wheelGuard.guard(ui.spBoxDigitalGain);
}

void OrvCamConfigFrameABDialogPrivate::setCaptions()
{
    ui.spBoxDualVideo->setLeftLabelText(tr("Dual Video\nLine Time [pclk]:"));
    ui.spBoxExpTime->setLeftLabelText(tr("Exposure Time ") + microsecondsCaption());
    ui.spBoxFixedFramePeriodValue->setLeftLabelText(microsecondsCaption());
    ui.spBoxFrameLineTime->setLeftLabelText(tr("Line Time [pclk]:"));
    ui.spBoxFrameOffsetX->setLeftLabelText(tr("OffsetX:"));
    ui.spBoxFrameOffsetY->setLeftLabelText(tr("OffsetY:"));
    ui.spBoxFrameWidth->setLeftLabelText(tr("Width: "));
    ui.spBoxFrameHeight->setLeftLabelText(tr("Height:"));
    ui.spBoxDigitalGain->setLeftLabelText(tr("Digital Gain:"));
    ui.spBoxBlackLevel->setLeftLabelText(tr("Black Level:"));
    FormFit::align({ui.spBoxFrameOffsetX->leftLabel(), ui.spBoxFrameOffsetY->leftLabel()});
    FormFit::align({ui.spBoxFrameWidth->leftLabel(), ui.spBoxFrameHeight->leftLabel()});
    FormFit::align({ui.spBoxDigitalGain->leftLabel(), ui.spBoxBlackLevel->leftLabel()});
    const int width = ui.spBoxDigitalGain->spinBox()->sizeHint().width();
    ui.spBoxDigitalGain->spinBox()->setMinimumWidth(width);
    ui.spBoxBlackLevel->spinBox()->setMinimumWidth(width);
    for (QLabel *unit : {ui.lblWdrE1MicroSec, ui.lblWdrE2MicroSec, ui.lblWdrE3MicroSec})
        unit->setText(Microseconds::unit());
}

QButtonGroup *
OrvCamConfigFrameABDialogPrivate::group(std::initializer_list<QAbstractButton *> buttons)
{
    auto *made = new QButtonGroup(q);
    for (QAbstractButton *button : buttons)
        made->addButton(button);
    return made;
}

void OrvCamConfigFrameABDialogPrivate::release()
{
    delete sizeTimer;
    sizeTimer = nullptr;
    frameTabs.reset();
    triggerMode = nullptr;
    periodParam = widthActual = heightActual = nullptr;
    exposure = ExposureTime();
    gain = DigitalGain();
    area = AreaPresets();
    customArea.clear();
    isWriting = false;
    ui.lineEditFrameCurrentSize->clear();
    ui.radioBtnExpTrigger->setToolTip(QString());
}

void OrvCamConfigFrameABDialogPrivate::bind()
{
    // A feature that this camera lacks must not show the previous camera's value.
    ui.cmBoxFrameMode->clear();
    ui.chBoxFixedFramePeriodEnable->setChecked(false);
    ui.spBoxFixedFramePeriodValue->setRange(0, 0);

    getNeededParams();
    makeBindings();
    startSizeTimer();
    bindDigitalGain();
    frameTabs->follow();
    explain();
    connectHandlers();
}

void OrvCamConfigFrameABDialogPrivate::prepareToShow()
{
    if (!std::exchange(isFitted, true))
        FormFit::growToFit(q, ui.scrollArea);
    if (frameTabs)
        frameTabs->prepareToShow();
}

void OrvCamConfigFrameABDialogPrivate::afterBinding()
{
    isFitted = q->isVisible();
    if (isFitted)
        FormFit::growToFit(q, ui.scrollArea);
    if (!frameTabs->applyMode())
        return;
    frameTabs->placeForm();
    showArea();
    updateExposureTime();
}

void OrvCamConfigFrameABDialogPrivate::getNeededParams()
{
    exposure = ExposureTime(array);
    gain = DigitalGain(array);
    frameTabs = std::make_unique<FrameTabs>(ui, mapper, reader(), array);
    watched(frameTabs->selector());
    for (const auto feature : {ExposureTime::PixelClock, ExposureTime::Lines, ExposureTime::Clocks,
                               ExposureTime::LineTime})
        watched(exposure.param(feature));
    periodParam = watched(array->GetInt(periodName));
    triggerMode = watched(array->GetEnum("TriggerMode"));
    widthActual = array->GetInt("Frame_WidthActual");
    heightActual = array->GetInt("Frame_HeightActual");
    area = AreaPresets(array);
    for (const char *feature : {"SensorWidth", "SensorHeight"})
        watched(array->GetInt(feature));

    exposure.readPixelClock(reader());
    exposure.readLineTime(reader());
    readExposure();
    readTriggerMode();
}

void OrvCamConfigFrameABDialogPrivate::makeBindings()
{
    bindEnum("FrameMode", ui.cmBoxFrameMode);
    bindEnum("Frame_SubsamplingM", ui.cmBoxSubsamplingM);
    bindEnum("Frame_SubsamplingP", ui.cmBoxSubsamplingP);
    bindEnum("Frame_Averaging", ui.cmBoxAveraging);
    bindEnum("Frame_WdrP1", ui.cmBoxWdrP1);
    bindEnum("Frame_WdrP2", ui.cmBoxWdrP2);
    bindEnum("Frame_WdrP3", ui.cmBoxWdrP3);
    bindExposure();
    for (const AreaPresets::Side side :
         {AreaPresets::OffsetX, AreaPresets::OffsetY, AreaPresets::Width, AreaPresets::Height}) {
        bindInt(AreaPresets::featureOf(side), areaBox(side));
        watched(area.param(side));
    }
    bindInt("Frame_WdrE1", ui.spBoxWdrE1);
    bindInt("Frame_WdrE2", ui.spBoxWdrE2);
    bindInt("Frame_WdrE3", ui.spBoxWdrE3);
    bindEnum("ShutterMode", shutterButtons);
    bindEnum("SensorADCBitDepth", adcButtons);
    bindEnum("Frame_ExposureControl", exposureButtons);
    bindEnum("Frame_DecimationMode", decimationButtons);
    bindEnum("Frame_AnalogGain", analogGainButtons);
    bindPeriod();
    bindInt("Frame_BlackLevel", ui.spBoxBlackLevel, nullptr);
    bindEnum(FrameTabs::selectorName, ui.tabFrames);
    bindBoolean("Frame_FixedFramePeriodEnable", ui.chBoxFixedFramePeriodEnable);
    bindBoolean("Frame_WdrEnable", ui.chBoxWdrEnable);
}

void OrvCamConfigFrameABDialogPrivate::bindExposure()
{
    // The time consists of lines and clocks, so it is enabled only with both.
    QVector<QWidget *> none;
    QVector<QWidget *> &dependents = exposure.isComplete() ? exposureDependents : none;
    ui.spBoxExpTime->setEnabled(false);
    bindInt(ExposureTime::featureOf(ExposureTime::Lines), ui.spBoxExpLines, dependents);
    bindInt(ExposureTime::featureOf(ExposureTime::Clocks), ui.spBoxExpClocks, dependents);
    // Registered after the mapper, which has enabled the time by then.
    watched(exposure.param(ExposureTime::Lines));
    watched(exposure.param(ExposureTime::Clocks));
}

void OrvCamConfigFrameABDialogPrivate::bindPeriod()
{
    bindInt(periodName, ui.spBoxFixedFramePeriodValue,
            static_cast<IOrvCamConfigIntConverter *>(this));
    // Times are not on a grid of whole microseconds from the minimum; validation would change them.
    ui.spBoxFixedFramePeriodValue->setValidate(false);
    showPeriod();
    // Registered after the mapper, because the exposure time needs the box's value.
    watched(periodParam);
}

void OrvCamConfigFrameABDialogPrivate::bindDigitalGain()
{
    watched(gain.coarse());
    watched(gain.fine());
    readDigitalGain();
    showDigitalGain();
}

/// Sets the tool tips of widgets that show several features and are not bound.
void OrvCamConfigFrameABDialogPrivate::explain()
{
    FeatureToolTip::set(ui.spBoxExpTime,
                        FeatureToolTip::text({exposure.param(ExposureTime::Lines),
                                              exposure.param(ExposureTime::Clocks)}));
    FeatureToolTip::set(ui.spBoxDigitalGain, FeatureToolTip::text({gain.coarse(), gain.fine()}));
    FeatureToolTip::set(ui.lineEditFrameCurrentSize,
                        FeatureToolTip::text({widthActual, heightActual}));
    explainTrigger();
}

/// Adds the state of the trigger to the common tool tip of the group.
void OrvCamConfigFrameABDialogPrivate::explainTrigger()
{
    QStringList lines{ui.radioBtnExpOff->toolTip()};
    if (!isTriggerOn)
        lines.prepend(OrvCamConfigFrameABDialog::tr("The trigger is switched off."));
    lines.removeAll(QString());
    ui.radioBtnExpTrigger->setToolTip(lines.join(QStringLiteral("<br/>")));
}

void OrvCamConfigFrameABDialogPrivate::connectHandlers()
{
    connectTo(frameTabs.get(), &FrameTabs::turned, [this] { updateExposureTime(); });
    for (QAbstractButton *button : exposureButtons->buttons()) {
        connectTo(button, &QAbstractButton::toggled, [this](bool isChecked) {
            if (isChecked)
                updateExposureTime();
        });
    }
    connectTo(ui.chBoxFixedFramePeriodEnable, &QCheckBox::toggled, [this] {
        showPeriod();
        updateExposureTime();
    });
    for (QAbstractButton *button : areaButtons->buttons()) {
        const auto preset = static_cast<AreaPresets::Preset>(areaButtons->id(button));
        connectTo(button, &QAbstractButton::clicked, [=] { setArea(preset); });
    }
    connectTo(ui.spBoxExpTime,
              static_cast<void (QtOrvSpinBox::*)(int)>(&QtOrvSpinBox::valueChanged),
              [this](int time) { setExposureTime(time); });
    connectTo(ui.spBoxDigitalGain,
              static_cast<void (QtOrvGainSlider::*)(double)>(&QtOrvGainSlider::valueChanged),
              [this](double factor) { setDigitalGain(factor); });
    connectDrags();
}

// The widgets may show rounded values, so only changes by the user are written.
void OrvCamConfigFrameABDialogPrivate::connectDrags()
{
    auto *time = new DragWatcher(
        ui.spBoxExpTime->slider(), [this] { return ui.spBoxExpTime->value(); }, handlers());
    connectTo(time, &DragWatcher::changed, [this] { setExposureTime(ui.spBoxExpTime->value()); });
    connectTo(time, &DragWatcher::unchanged, [this] { updateExposureTime(); });

    auto *factor = new DragWatcher(
        ui.spBoxDigitalGain->slider(),
        [this] { return gainOf(ui.spBoxDigitalGain->value()).factor(); }, handlers());
    connectTo(factor, &DragWatcher::changed,
              [this] { setDigitalGain(ui.spBoxDigitalGain->value()); });
    connectTo(factor, &DragWatcher::unchanged, [this] { showDigitalGain(); });
}

void OrvCamConfigFrameABDialogPrivate::startSizeTimer()
{
    sizeTimer = new QTimer(q);
    connectTo(sizeTimer, &QTimer::timeout, [this] {
        reader().whenKnown(this, sizeTimer, {widthActual, heightActual},
                           [this] { showCurrentSize(); });
    });
    sizeTimer->start(sizeInterval);
    showCurrentSize();
}

void OrvCamConfigFrameABDialogPrivate::showCurrentSize()
{
    const auto text = [this](const Int *param) {
        qint64 value = 0;
        return reader().read(param, &Int::GetValue, value) ? QString::number(value) : QString();
    };
    const QString width = text(widthActual);
    const QString height = text(heightActual);
    const bool isKnown = !width.isEmpty() || !height.isEmpty();
    ui.lineEditFrameCurrentSize->setText(isKnown ? width + QLatin1Char('x') + height : QString());
}

void OrvCamConfigFrameABDialogPrivate::OnParameterUpdate(Param *param)
{
    if (!array || SelectorDetour::isUnderWay())
        return;
    reader().whenKnown(this, param, neededBy(param), [=] { update(param); });
}

/// The parameters to read when the given one has changed.
FeatureReader::Params OrvCamConfigFrameABDialogPrivate::neededBy(const Param *param) const
{
    if (exposure.isUnit(param))
        return {param, periodParam};
    if (exposure.isPart(param))
        return {exposure.param(ExposureTime::Lines), exposure.param(ExposureTime::Clocks)};
    if (gain.isPart(param))
        return {gain.coarse(), gain.fine()};
    return area.dependsOn(param) ? areaParams() : FeatureReader::Params{param};
}

FeatureReader::Params OrvCamConfigFrameABDialogPrivate::areaParams() const
{
    return {area.param(AreaPresets::OffsetX), area.param(AreaPresets::OffsetY),
            area.param(AreaPresets::Width),   area.param(AreaPresets::Height),
            array->GetInt("SensorWidth"),     array->GetInt("SensorHeight")};
}

void OrvCamConfigFrameABDialogPrivate::update(Param *param)
{
    if (param == frameTabs->selector()) {
        frameTabs->dropInput();
        return;
    }
    if (param == triggerMode) {
        readTriggerMode();
        explainTrigger();
    } else if (param == exposure.param(ExposureTime::PixelClock)) {
        exposure.readPixelClock(reader());
        showPeriod();
    } else if (param == exposure.param(ExposureTime::LineTime)) {
        exposure.readLineTime(reader());
        showPeriod();
    } else if (exposure.isPart(param)) {
        readExposure();
    } else if (gain.isPart(param)) {
        readDigitalGain();
        showDigitalGain();
    } else if (area.dependsOn(param)) {
        showArea();
    }
    updateExposureTime();
}

void OrvCamConfigFrameABDialogPrivate::readTriggerMode()
{
    if (!triggerMode)
        isTriggerOn = false;
    else if (reader().get([this] { return triggerMode->IsReadable(); }))
        isTriggerOn = reader().get([this] { return triggerMode->GetIntValue() > 0; });
}

void OrvCamConfigFrameABDialogPrivate::readExposure()
{
    if (!isWriting) // otherwise one of the two parts is not written yet
        exposure.readParts(reader());
}

long OrvCamConfigFrameABDialogPrivate::ToControl(long value, Int *)
{
    return exposure.toControl(value);
}

long OrvCamConfigFrameABDialogPrivate::ToDevice(long value, Int *)
{
    return exposure.toDevice(value);
}

void OrvCamConfigFrameABDialogPrivate::showPeriod()
{
    if (periodParam && isUsable(ui.spBoxFixedFramePeriodValue))
        mapper.updateSliderSpinBox(periodParam, ui.spBoxFixedFramePeriodValue, this);
}

void OrvCamConfigFrameABDialogPrivate::updateExposureTime()
{
    QtOrvSpinBox *const spinBox = ui.spBoxExpTime;
    if (isWriting || !isUsable(spinBox) || HeldInput::isDrag(spinBox))
        return;
    const qint64 max = ui.chBoxFixedFramePeriodEnable->isChecked()
                           ? ui.spBoxFixedFramePeriodValue->value()
                           : exposure.maxTime();
    const int end = ValueGrid::toInt(max);
    const int time = ValueGrid::toInt(exposure.time());

    // Setting the same value again would undo the user's typing.
    const QSignalBlocker writesNothing(spinBox);
    if (spinBox->minimum() != 0 || spinBox->maximum() != end)
        spinBox->setRange(0, end);
    if (spinBox->value() != time)
        spinBox->setValue(time);
}

void OrvCamConfigFrameABDialogPrivate::setExposureTime(int time)
{
    const ExposureTime::Parts parts = exposure.split(time);
    {
        const Writing writing(this);
        ui.spBoxExpLines->setValue(ValueGrid::toInt(parts.lines));
        if (writing.isOver())
            return;
        ui.spBoxExpClocks->setValue(ValueGrid::toInt(parts.clocks));
        if (writing.isOver())
            return;
    }
    updateAfterWrites();
}

void OrvCamConfigFrameABDialogPrivate::readDigitalGain()
{
    if (!isWriting)
        gain.readValue(reader());
}

void OrvCamConfigFrameABDialogPrivate::showDigitalGain()
{
    QtOrvGainSlider *const slider = ui.spBoxDigitalGain;
    slider->setEnabled(gain.isWritable(reader()));
    if (isWriting || HeldInput::isDrag(slider))
        return;
    gain.readLimits(reader());

    const QSignalBlocker writesNothing(slider);
    slider->setRange(gain.min().factor(), gain.max().factor());
    slider->setSingleStep(DigitalGain::step);
    // At large gains a step may be below the camera's resolution; a step by the user must still
    // have an effect.
    if (gainOf(slider->value()) != gain.value())
        slider->setValue(gain.value().factor());
}

void OrvCamConfigFrameABDialogPrivate::setDigitalGain(double factor)
{
    const DigitalGain::Parts former = gain.setValue(gainOf(factor));
    {
        const Writing writing(this);
        gain.writeCoarse(mapper.journal(), former);
        if (writing.isOver())
            return;
        gain.writeFine(mapper.journal(), former);
        if (writing.isOver())
            return;
    }
    updateAfterWrites();
}

/// The box rounds its limits; the exact ones are the camera's.
DigitalGain::Parts OrvCamConfigFrameABDialogPrivate::gainOf(double factor) const
{
    const QtOrvDoubleSpinBoxVal *const box = ui.spBoxDigitalGain->spinBox();
    if (factor >= box->maximum())
        return gain.max();
    return factor <= box->minimum() ? gain.min() : DigitalGain::Parts::of(factor);
}

/// Called after several writes.
void OrvCamConfigFrameABDialogPrivate::updateAfterWrites()
{
    reader().whenKnown(this, this,
                       areaParams() + FeatureReader::Params{exposure.param(ExposureTime::Lines),
                                                            exposure.param(ExposureTime::Clocks),
                                                            gain.coarse(), gain.fine()},
                       [this] { showAll(); });
}

void OrvCamConfigFrameABDialogPrivate::showAll()
{
    readExposure();
    readDigitalGain();
    showDigitalGain();
    showArea();
    updateExposureTime();
}

QtOrvSpinBox *OrvCamConfigFrameABDialogPrivate::areaBox(AreaPresets::Side side) const
{
    switch (side) {
    case AreaPresets::OffsetX:
        return ui.spBoxFrameOffsetX;
    case AreaPresets::OffsetY:
        return ui.spBoxFrameOffsetY;
    case AreaPresets::Width:
        return ui.spBoxFrameWidth;
    default:
        return ui.spBoxFrameHeight;
    }
}

void OrvCamConfigFrameABDialogPrivate::setArea(AreaPresets::Preset preset)
{
    reader().fetchNow(areaParams());
    customArea = preset == AreaPresets::Custom ? reader().get([this] { return area.area(); })
                                               : QVector<qint64>();
    const auto steps = reader().get([=] { return area.stepsTo(preset); });
    {
        const Writing writing(this);
        for (const auto &step : steps) {
            Int *const side = area.param(step.first);
            QtOrvSpinBox *const spinBox = areaBox(step.first);
            reader().fetchNow({side});
            mapper.updateSpinBox(side, spinBox); // may still show the refused value
            if (writing.isOver())
                return;
            spinBox->setValue(ValueGrid::toInt(step.second));
            if (writing.isOver())
                return;
            if (reader().get([=] { return side->GetValue(); }) != step.second)
                break; // the next step depends on this one
        }
    }
    updateAfterWrites();
}

void OrvCamConfigFrameABDialogPrivate::showArea()
{
    if (isWriting)
        return;
    const auto holds = [this](AreaPresets::Preset preset) {
        return reader().get([=] { return area.holds(preset); });
    };
    if (reader().get([this] { return area.area(); }) != customArea)
        customArea.clear();
    // On a sensor of exactly that size both presets describe the same area; the user's choice is
    // kept.
    AreaPresets::Preset shown = AreaPresets::Custom;
    if (customArea.isEmpty()) {
        const auto checked = static_cast<AreaPresets::Preset>(areaButtons->checkedId());
        if (holds(AreaPresets::FullFrame))
            shown = AreaPresets::FullFrame;
        if (holds(AreaPresets::Qfhd) &&
            (shown == AreaPresets::Custom || checked == AreaPresets::Qfhd))
            shown = AreaPresets::Qfhd;
    }
    areaButtons->button(shown)->setChecked(true);
    for (QAbstractButton *button : areaButtons->buttons()) {
        const auto preset = static_cast<AreaPresets::Preset>(areaButtons->id(button));
        button->setEnabled(reader().get([=] { return area.offers(preset); }));
    }
}

OrvCamConfigFrameABDialog::OrvCamConfigFrameABDialog(OrvCam::Device *device, QWidget *parent)
    : OrvCamConfigDialog(new OrvCamConfigFrameABDialogPrivate, device, parent)
{
}

} // namespace OrvGui
