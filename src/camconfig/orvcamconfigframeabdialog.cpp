// SPDX-License-Identifier: MIT
#include "camconfig/orvcamconfigframeabdialog.h"

#include "base/formfit.h"
#include "base/selectordetour.h"
#include "camconfig/areapresets.h"
#include "camconfig/boundfeatures.h"
#include "camconfig/featuretooltip.h"
#include "camconfig/iorvcamconfigintconverter.h"
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

#include <OrvCam/Codes.h>

#include <QAbstractSlider>
#include <QButtonGroup>
#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QPointer>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QTimer>

#include <cmath>
#include <functional>
#include <limits>
#include <utility>

using OrvGenParam::Enum;
using OrvGenParam::Int;
using OrvGenParam::Param;

namespace OrvGui {

namespace {

const char frameSelectorName[] = "FrameAB_Selector";
const char lineTimeName[] = "Frame_LineTime";
const char exposureLinesName[] = "Frame_ExposureLines";
const char exposureClocksName[] = "Frame_ExposureClocks";
const char periodName[] = "Frame_FixedFramePeriodValue";
const char frameAsName[] = "NumberOfFrameAs";
const char frameBsName[] = "NumberOfFrameBs";

const qint64 usualPixelClock = 160;
const int sizeInterval = 1000; // ms
const double gainStep = 0.125;
const double fineGainSteps = 64.0;

/// The largest number that goes into a widget.
const qint64 largest = std::numeric_limits<int>::max();

/// Registers may claim to hold far more. The slider counts its steps in an int.
const double largestGain = gainStep * std::numeric_limits<int>::max();
const qint64 mostDoublings = 27;

QString microseconds()
{
    return OrvCamConfigFrameABDialog::tr("%1s").arg(QChar(0x03BC));
}

QString microsecondsCaption()
{
    return OrvCamConfigFrameABDialog::tr("[%1]:").arg(microseconds());
}

qint64 product(qint64 a, qint64 b)
{
    qint64 result = 0;
    if (!__builtin_mul_overflow(a, b, &result))
        return result;
    return (a < 0) == (b < 0) ? std::numeric_limits<qint64>::max()
                              : std::numeric_limits<qint64>::min();
}

long rounded(double number)
{
    const double end = 9.2e18; // just inside of what the result can hold
    return static_cast<long>(qBound(-end, number + 0.5, end));
}

/// What the widget has been told to be, whatever the widgets around it are.
bool isUsable(const QWidget *widget)
{
    return !widget->testAttribute(Qt::WA_ForceDisabled);
}

bool isWritable(const FeatureReader &reader, const Param *param)
{
    return param && reader.get([=] { return param->IsAvailable() && param->IsWritable(); });
}

/// Changes the value only if the camera tells it.
bool read(const FeatureReader &reader, const Int *param, int64_t (Int::*get)(int32_t *) const,
          qint64 &value)
{
    int32_t error = OrvCam::Success;
    const qint64 answer = param ? reader.get([&] { return (param->*get)(&error); }) : 0;
    if (param && error == OrvCam::Success)
        value = answer;
    return param && error == OrvCam::Success;
}

/// The number of doublings stays where powers of two make sense.
struct Gain
{
    static Gain read(const FeatureReader &reader, int64_t (Int::*get)(int32_t *) const,
                     const Int *coarse, const Int *fine)
    {
        Gain gain{0, 0};
        OrvGui::read(reader, coarse, get, gain.coarse);
        OrvGui::read(reader, fine, get, gain.fine);
        gain.coarse = qBound(-mostDoublings, gain.coarse, mostDoublings);
        return gain;
    }
    qint64 coarse;
    qint64 fine;

    bool operator!=(Gain other) const { return coarse != other.coarse || fine != other.fine; }
    double factor() const
    {
        return qMin(largestGain, (1.0 + static_cast<double>(fine) / fineGainSteps) *
                                     std::ldexp(1.0, static_cast<int>(coarse)));
    }
    static Gain of(double factor)
    {
        qint64 coarse = 0;
        for (qint64 rest = static_cast<qint64>(factor); rest > 1; rest /= 2)
            ++coarse;
        const double base = std::ldexp(1.0, static_cast<int>(coarse));
        return {coarse, static_cast<qint64>((factor - base) / base * fineGainSteps)};
    }
};

template<class... Widgets>
void alignCaptions(Widgets *...widgets)
{
    int width = 0;
    for (const QLabel *label : {widgets->leftLabel()...})
        width = qMax(width, label->sizeHint().width());
    for (QLabel *label : {widgets->leftLabel()...})
        label->setMinimumWidth(width);
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
    void settle() override;

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
    void explain();
    void explainTrigger();
    void connectHandlers();
    void connectDrags();
    void startSizeTimer();
    void showCurrentSize();
    FeatureReader::Params neededBy(const Param *param) const;
    FeatureReader::Params areaParams() const;
    void update(Param *param);

    void readLineTime();
    void readPixelClock();
    void readTriggerMode();
    void readExposure();
    void showPeriod();
    void updateExposureTime();
    qint64 timeOf(qint64 lines, qint64 clocks) const;
    void setExposureTime(int time);

    void initDigitalGain();
    void readDigitalGain();
    void showDigitalGain();
    void setDigitalGain(double factor);
    void setGainPart(Int *param, qint64 former, qint64 value);
    Gain gainOf(double factor) const;

    void whenFrameModeIsKnown(const std::function<void()> &call);
    bool onFrameModeChanged();
    void onTabChanged(int index);
    bool showOnlyTab(int index);
    void placeLayout(int index);
    void bindLineTime(QtOrvSliderSpinBox *spinBox);
    void bindFrameCounts();
    void unbindFrameCounts();
    void dropInput();
    void catchUp();
    void showAll();

    QtOrvSpinBox *areaBox(AreaPresets::Side side) const;
    void setArea(AreaPresets::Preset preset);
    void showArea();

    Ui_OrvCamConfigFrameABDialog ui;
    WheelGuard wheelGuard; ///< of what the mapper does not bind
    bool isTriggerOn = false;
    bool isFitted = false; ///< the size to what it shows

    qint64 pixelClock = usualPixelClock; ///< clocks per microsecond
    qint64 lineTime = 0;                 ///< clocks
    qint64 exposureLines = 0;
    qint64 exposureLinesMax = 0;
    qint64 exposureClocks = 0;
    qint64 exposureClocksMax = 0;
    Gain gain{0, 0};
    Gain leastGain{0, 0};
    Gain mostGain{0, 0};
    Enum *frameSelector = nullptr;
    Enum *triggerMode = nullptr;
    Int *pixelClockParam = nullptr;
    Int *lineTimeParam = nullptr;
    Int *exposureLinesParam = nullptr;
    Int *exposureClocksParam = nullptr;
    Int *periodParam = nullptr;
    Int *coarseGain = nullptr;
    Int *fineGain = nullptr;
    Int *widthActual = nullptr;
    Int *heightActual = nullptr;
    AreaPresets area;

    QTimer *sizeTimer = nullptr;
    QTimer *tabTimer = nullptr; ///< leads back to the tab that the output mode allows
    QButtonGroup *shutterButtons = nullptr;
    QButtonGroup *adcButtons = nullptr;
    QButtonGroup *exposureButtons = nullptr;
    QButtonGroup *areaButtons = nullptr; ///< the ids are those of `AreaPresets`
    QButtonGroup *decimationButtons = nullptr;
    QButtonGroup *analogGainButtons = nullptr;
    QVector<QWidget *> exposureDependents;

    QVector<qint64> customArea;                ///< that the user has called so
    QtOrvSliderSpinBox *lineTimeBox = nullptr; ///< the one of the two that is bound
    bool areFrameCountsBound = false;
    qint64 selectedFrame = 0;
    bool isShowingTime = false;
    bool isShowingGain = false;
    bool isWriting = false; ///< several values; what follows from them is shown at the end
};

/// A change of the user's that takes more than one write, of which the rest must not be written
/// when it is over.
class OrvCamConfigFrameABDialogPrivate::Writing
{
public:
    explicit Writing(OrvCamConfigFrameABDialogPrivate *part)
        : m_part(part), m_tenure(part), m_step(part->mapper.journal())
    {
        m_part->isWriting = true;
    }
    ~Writing()
    {
        if (!isOver())
            m_part->isWriting = false;
    }
    Q_DISABLE_COPY(Writing)

    bool isOver() const { return m_tenure.isOver(); }

private:
    OrvCamConfigFrameABDialogPrivate *const m_part;
    const Tenure m_tenure;
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

    tabTimer = new QTimer(q);
    tabTimer->setSingleShot(true);
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
    alignCaptions(ui.spBoxFrameOffsetX, ui.spBoxFrameOffsetY);
    alignCaptions(ui.spBoxFrameWidth, ui.spBoxFrameHeight);
    alignCaptions(ui.spBoxDigitalGain, ui.spBoxBlackLevel);
    const int width = ui.spBoxDigitalGain->spinBox()->sizeHint().width();
    ui.spBoxDigitalGain->spinBox()->setMinimumWidth(width);
    ui.spBoxBlackLevel->spinBox()->setMinimumWidth(width);
    for (QLabel *unit : {ui.lblWdrE1MicroSec, ui.lblWdrE2MicroSec, ui.lblWdrE3MicroSec})
        unit->setText(microseconds());
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
    tabTimer->stop();
    frameSelector = triggerMode = nullptr;
    pixelClockParam = lineTimeParam = exposureLinesParam = exposureClocksParam = nullptr;
    periodParam = coarseGain = fineGain = widthActual = heightActual = nullptr;
    lineTime = exposureLines = exposureLinesMax = exposureClocks = exposureClocksMax = 0;
    area = AreaPresets();
    customArea.clear();
    isWriting = false;
    ui.lineEditFrameCurrentSize->clear();
    ui.radioBtnExpTrigger->setToolTip(QString());
}

void OrvCamConfigFrameABDialogPrivate::bind()
{
    // What this camera lacks must not count as the former one had it.
    ui.cmBoxFrameMode->clear();
    ui.chBoxFixedFramePeriodEnable->setChecked(false);
    ui.spBoxFixedFramePeriodValue->setRange(0, 0);

    getNeededParams();
    makeBindings();
    startSizeTimer();
    initDigitalGain();
    ui.spBoxDualVideo->setEnabled(false);
    ui.spBoxFrameLineTime->setEnabled(false);
    lineTimeBox = nullptr;
    unbindFrameCounts();
    explain();
    connectHandlers();
}

void OrvCamConfigFrameABDialogPrivate::prepareToShow()
{
    if (!std::exchange(isFitted, true))
        FormFit::growToFit(q, ui.scrollArea);
    if (!array)
        return;
    if (frameSelector) {
        const QSignalBlocker isNoChange(ui.tabFrames);
        mapper.updateTabWidget(frameSelector, ui.tabFrames);
        placeLayout(ui.tabFrames->currentIndex());
    }
    tabTimer->start(0);
}

void OrvCamConfigFrameABDialogPrivate::settle()
{
    isFitted = q->isVisible();
    if (isFitted)
        FormFit::growToFit(q, ui.scrollArea);
    if (!onFrameModeChanged())
        return;
    placeLayout(ui.tabFrames->currentIndex());
    showArea();
    updateExposureTime();
}

void OrvCamConfigFrameABDialogPrivate::getNeededParams()
{
    frameSelector = watched(array->GetEnum(frameSelectorName));
    pixelClockParam = watched(array->GetInt("PixelClock"));
    exposureLinesParam = watched(array->GetInt(exposureLinesName));
    exposureClocksParam = watched(array->GetInt(exposureClocksName));
    lineTimeParam = watched(array->GetInt(lineTimeName));
    periodParam = watched(array->GetInt(periodName));
    triggerMode = watched(array->GetEnum("TriggerMode"));
    widthActual = array->GetInt("Frame_WidthActual");
    heightActual = array->GetInt("Frame_HeightActual");
    area = AreaPresets(array);
    for (const char *feature : {"SensorWidth", "SensorHeight"})
        watched(array->GetInt(feature));

    selectedFrame =
        frameSelector ? reader().get([this] { return frameSelector->GetIntValue(); }) : 0;
    readPixelClock();
    readLineTime();
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
    bindEnum(frameSelectorName, ui.tabFrames);
    bindBoolean("Frame_FixedFramePeriodEnable", ui.chBoxFixedFramePeriodEnable);
    bindBoolean("Frame_WdrEnable", ui.chBoxWdrEnable);
}

void OrvCamConfigFrameABDialogPrivate::bindExposure()
{
    // The time is set by both, so it takes both.
    QVector<QWidget *> none;
    const bool hasTime = exposureLinesParam && exposureClocksParam;
    ui.spBoxExpTime->setEnabled(false);
    bindInt(exposureLinesName, ui.spBoxExpLines, hasTime ? exposureDependents : none);
    bindInt(exposureClocksName, ui.spBoxExpClocks, hasTime ? exposureDependents : none);
    // After the mapper, so that the time finds itself enabled.
    watched(exposureLinesParam);
    watched(exposureClocksParam);
}

void OrvCamConfigFrameABDialogPrivate::bindPeriod()
{
    bindInt(periodName, ui.spBoxFixedFramePeriodValue,
            static_cast<IOrvCamConfigIntConverter *>(this));
    // Whole lines are no grid of microseconds: the box would show other times than it was given.
    ui.spBoxFixedFramePeriodValue->setValidate(false);
    showPeriod();
    watched(periodParam); // after the mapper, as the exposure time needs what the box shows
}

/// What shows several features, and so is bound to none.
void OrvCamConfigFrameABDialogPrivate::explain()
{
    FeatureToolTip::set(ui.spBoxExpTime,
                        FeatureToolTip::text({exposureLinesParam, exposureClocksParam}));
    FeatureToolTip::set(ui.spBoxDigitalGain, FeatureToolTip::text({coarseGain, fineGain}));
    FeatureToolTip::set(ui.lineEditFrameCurrentSize,
                        FeatureToolTip::text({widthActual, heightActual}));
    explainTrigger();
}

/// As the other buttons of the group, and more.
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
    on(ui.cmBoxFrameMode, &QComboBox::currentTextChanged,
       [this] { whenFrameModeIsKnown([this] { onFrameModeChanged(); }); });
    on(ui.tabFrames, &QTabWidget::currentChanged, [this](int index) { onTabChanged(index); });
    on(tabTimer, &QTimer::timeout,
       [this] { whenFrameModeIsKnown([this] { onFrameModeChanged(); }); });
    for (QAbstractButton *button : exposureButtons->buttons()) {
        on(button, &QAbstractButton::toggled, [this](bool isChecked) {
            if (isChecked)
                updateExposureTime();
        });
    }
    on(ui.chBoxFixedFramePeriodEnable, &QCheckBox::toggled, [this] {
        showPeriod();
        updateExposureTime();
    });
    for (QAbstractButton *button : areaButtons->buttons()) {
        const auto preset = static_cast<AreaPresets::Preset>(areaButtons->id(button));
        on(button, &QAbstractButton::clicked, [=] { setArea(preset); });
    }
    on(ui.spBoxExpTime, static_cast<void (QtOrvSpinBox::*)(int)>(&QtOrvSpinBox::valueChanged),
       [this](int time) { setExposureTime(time); });
    on(ui.spBoxDigitalGain,
       static_cast<void (QtOrvGainSlider::*)(double)>(&QtOrvGainSlider::valueChanged),
       [this](double factor) { setDigitalGain(factor); });
    connectDrags();
}

// The widgets say nothing about a drag of their slider. What they show need not be what the camera
// holds: only a move of the user's is a change.
void OrvCamConfigFrameABDialogPrivate::connectDrags()
{
    HeldInput::onDragEnd(
        ui.spBoxExpTime->slider(), handlers(), [this] { return ui.spBoxExpTime->value(); },
        [this](bool isChanged) {
            if (isChanged)
                setExposureTime(ui.spBoxExpTime->value());
            else
                updateExposureTime();
        });
    HeldInput::onDragEnd(
        ui.spBoxDigitalGain->slider(), handlers(),
        [this] { return gainOf(ui.spBoxDigitalGain->value()); },
        [this](bool isChanged) {
            if (isChanged)
                setDigitalGain(ui.spBoxDigitalGain->value());
            else
                showDigitalGain();
        });
}

void OrvCamConfigFrameABDialogPrivate::startSizeTimer()
{
    sizeTimer = new QTimer(q);
    on(sizeTimer, &QTimer::timeout, [this] {
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
        return read(reader(), param, &Int::GetValue, value) ? QString::number(value) : QString();
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

/// What is going to be read when the parameter has changed.
FeatureReader::Params OrvCamConfigFrameABDialogPrivate::neededBy(const Param *param) const
{
    if (param == pixelClockParam || param == lineTimeParam)
        return {param, periodParam};
    if (param == exposureLinesParam || param == exposureClocksParam)
        return {exposureLinesParam, exposureClocksParam};
    if (param == coarseGain || param == fineGain)
        return {coarseGain, fineGain};
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
    if (param == frameSelector) {
        dropInput();
        return;
    }
    if (param == triggerMode) {
        readTriggerMode();
        explainTrigger();
    } else if (param == pixelClockParam) {
        readPixelClock();
        showPeriod();
    } else if (param == lineTimeParam) {
        readLineTime();
        showPeriod();
    } else if (param == exposureLinesParam || param == exposureClocksParam) {
        readExposure();
    } else if (param == coarseGain || param == fineGain) {
        readDigitalGain();
        showDigitalGain();
    } else if (area.dependsOn(param)) {
        showArea();
    }
    updateExposureTime();
}

void OrvCamConfigFrameABDialogPrivate::readPixelClock()
{
    pixelClock = usualPixelClock;
    read(reader(), pixelClockParam, &Int::GetValue, pixelClock);
}

void OrvCamConfigFrameABDialogPrivate::readLineTime()
{
    read(reader(), lineTimeParam, &Int::GetValue, lineTime);
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
    if (isWriting)
        return; // one of the two has not been written yet
    const FeatureReader &known = reader();
    read(known, exposureLinesParam, &Int::GetValue, exposureLines);
    read(known, exposureLinesParam, &Int::GetMax, exposureLinesMax);
    read(known, exposureClocksParam, &Int::GetValue, exposureClocks);
    read(known, exposureClocksParam, &Int::GetMax, exposureClocksMax);
}

long OrvCamConfigFrameABDialogPrivate::ToControl(long value, Int *)
{
    if (pixelClock == 0)
        return 0;
    return rounded(static_cast<double>(product(value, lineTime)) / static_cast<double>(pixelClock));
}

long OrvCamConfigFrameABDialogPrivate::ToDevice(long value, Int *)
{
    if (lineTime == 0)
        return 0;
    return rounded(static_cast<double>(product(value, pixelClock)) / static_cast<double>(lineTime));
}

void OrvCamConfigFrameABDialogPrivate::showPeriod()
{
    if (periodParam && isUsable(ui.spBoxFixedFramePeriodValue))
        mapper.updateSliderSpinBox(periodParam, ui.spBoxFixedFramePeriodValue, this);
}

qint64 OrvCamConfigFrameABDialogPrivate::timeOf(qint64 lines, qint64 clocks) const
{
    if (pixelClock == 0)
        return 0;
    return (product(qMin(lines, largest), qMin(lineTime, largest)) + qMin(clocks, largest)) /
           pixelClock;
}

void OrvCamConfigFrameABDialogPrivate::updateExposureTime()
{
    QtOrvSpinBox *const spinBox = ui.spBoxExpTime;
    if (isWriting || !isUsable(spinBox) || HeldInput::isDrag(spinBox))
        return;
    const qint64 max = ui.chBoxFixedFramePeriodEnable->isChecked()
                           ? ui.spBoxFixedFramePeriodValue->value()
                           : timeOf(exposureLinesMax, exposureClocksMax);
    const int end = ValueGrid::toInt(max);
    const int time = ValueGrid::toInt(timeOf(exposureLines, exposureClocks));

    // Setting what is set already would undo the user's typing.
    const QScopedValueRollback<bool> showing(isShowingTime, true);
    if (spinBox->minimum() != 0 || spinBox->maximum() != end)
        spinBox->setRange(0, end);
    if (spinBox->value() != time)
        spinBox->setValue(time);
}

void OrvCamConfigFrameABDialogPrivate::setExposureTime(int time)
{
    if (isShowingTime)
        return;
    const qint64 total = product(time, pixelClock);
    if (lineTime == 0)
        exposureLines = 0;
    else
        exposureLines = lineTime == -1 ? -total : total / lineTime;
    exposureClocks = total - lineTime * exposureLines;

    const int clocks = ValueGrid::toInt(exposureClocks);
    {
        const Writing writing(this);
        ui.spBoxExpLines->setValue(ValueGrid::toInt(exposureLines));
        if (writing.isOver())
            return;
        ui.spBoxExpClocks->setValue(clocks);
        if (writing.isOver())
            return;
    }
    catchUp();
}

void OrvCamConfigFrameABDialogPrivate::initDigitalGain()
{
    coarseGain = watched(array->GetInt("Frame_DigitalCourseGain"));
    fineGain = watched(array->GetInt("Frame_DigitalFineGain"));
    readDigitalGain();
    showDigitalGain();
}

void OrvCamConfigFrameABDialogPrivate::readDigitalGain()
{
    if (!isWriting)
        gain = Gain::read(reader(), &Int::GetValue, coarseGain, fineGain);
}

void OrvCamConfigFrameABDialogPrivate::showDigitalGain()
{
    QtOrvGainSlider *const slider = ui.spBoxDigitalGain;
    slider->setEnabled(isWritable(reader(), coarseGain) || isWritable(reader(), fineGain));
    if (isWriting || HeldInput::isDrag(slider))
        return;
    leastGain = Gain::read(reader(), &Int::GetMin, coarseGain, fineGain);
    mostGain = Gain::read(reader(), &Int::GetMax, coarseGain, fineGain);

    const QScopedValueRollback<bool> showing(isShowingGain, true);
    slider->setRange(leastGain.factor(), mostGain.factor());
    slider->setSingleStep(gainStep);
    // A step may be less than the camera can do at large gains; the user must get past it.
    if (gainOf(slider->value()) != gain)
        slider->setValue(gain.factor());
}

void OrvCamConfigFrameABDialogPrivate::setDigitalGain(double factor)
{
    if (isShowingGain)
        return;
    const Gain former = std::exchange(gain, gainOf(factor));
    const Gain wanted = gain;
    {
        const Writing writing(this);
        setGainPart(coarseGain, former.coarse, wanted.coarse);
        if (writing.isOver())
            return;
        setGainPart(fineGain, former.fine, wanted.fine);
        if (writing.isOver())
            return;
    }
    catchUp();
}

void OrvCamConfigFrameABDialogPrivate::setGainPart(Int *param, qint64 former, qint64 value)
{
    if (!param)
        return;
    FeatureJournal::write(mapper.journal(), QString::fromUtf8(param->GetName()), former, value,
                          [=] { return param->SetValue(value) == OrvCam::Success; });
}

/// The box rounds its ends, which stand for those of the camera.
Gain OrvCamConfigFrameABDialogPrivate::gainOf(double factor) const
{
    const QtOrvDoubleSpinBoxVal *const box = ui.spBoxDigitalGain->spinBox();
    if (factor >= box->maximum())
        return mostGain;
    return factor <= box->minimum() ? leastGain : Gain::of(factor);
}

/// What the output mode binds and unbinds must be known, too.
void OrvCamConfigFrameABDialogPrivate::whenFrameModeIsKnown(const std::function<void()> &call)
{
    reader().whenKnown(
        this, tabTimer,
        {frameSelector, lineTimeParam, array->GetInt(frameAsName), array->GetInt(frameBsName)},
        call);
}

/// False when the dialog has got another camera by that, or is gone.
bool OrvCamConfigFrameABDialogPrivate::onFrameModeChanged()
{
    const Tenure tenure(this);
    const QString mode = ui.cmBoxFrameMode->currentText();
    const bool isFrameA = mode == QLatin1String("FrameA");
    if (isFrameA || mode == QLatin1String("FrameB")) {
        if (showOnlyTab(isFrameA ? 0 : 1)) {
            bindLineTime(ui.spBoxFrameLineTime);
            unbindFrameCounts();
        }
        return !tenure.isOver();
    }
    for (int i = 0; i < ui.tabFrames->count(); ++i)
        ui.tabFrames->setTabEnabled(i, true);
    bindLineTime(ui.spBoxDualVideo);
    bindFrameCounts();
    return true;
}

/// False when the camera or its output mode has become another one by that.
bool OrvCamConfigFrameABDialogPrivate::showOnlyTab(int index)
{
    if (index >= ui.tabFrames->count())
        return true;
    if (!q->isVisible()) {
        // Whoever works with the other frame keeps it. This one is selected when it is to be seen.
        const QSignalBlocker writesNothing(ui.tabFrames);
        ui.tabFrames->setTabEnabled(index, true);
        ui.tabFrames->setCurrentIndex(index);
        ui.tabFrames->setTabEnabled(1 - index, false);
        placeLayout(index);
        return true;
    }
    const Tenure tenure(this);
    const QString mode = ui.cmBoxFrameMode->currentText();
    ui.tabFrames->setTabEnabled(index, true);
    ui.tabFrames->setCurrentIndex(index); // a write, which may have to be reported
    if (tenure.isOver() || ui.cmBoxFrameMode->currentText() != mode)
        return false;
    ui.tabFrames->setTabEnabled(1 - index, false);
    return true;
}

void OrvCamConfigFrameABDialogPrivate::onTabChanged(int index)
{
    placeLayout(index);
    if (!ui.tabFrames->isTabEnabled(index)) {
        // Somebody else has selected the frame that is not put out. They may only have a look at
        // it, and would see the wrong one if it was taken from them at once.
        tabTimer->start(0);
        return;
    }
    whenFrameModeIsKnown([this] {
        if (onFrameModeChanged())
            updateExposureTime();
    });
}

/// The frames share one set of widgets.
void OrvCamConfigFrameABDialogPrivate::placeLayout(int index)
{
    QWidget *const page = index > 0 ? ui.tabFrameB : ui.tabFrameA;
    QWidget *const other = index > 0 ? ui.tabFrameA : ui.tabFrameB;
    if (other->layout())
        page->setLayout(other->layout());
}

void OrvCamConfigFrameABDialogPrivate::bindLineTime(QtOrvSliderSpinBox *spinBox)
{
    if (lineTimeBox == spinBox)
        return;
    lineTimeBox = spinBox;
    bindInt(lineTimeName, spinBox, nullptr);
}

void OrvCamConfigFrameABDialogPrivate::bindFrameCounts()
{
    if (areFrameCountsBound)
        return;
    areFrameCountsBound = true;
    bindInt(frameAsName, ui.spBoxNumberOfFrameAs);
    bindInt(frameBsName, ui.spBoxNumberOfFrameBs);
}

void OrvCamConfigFrameABDialogPrivate::unbindFrameCounts()
{
    areFrameCountsBound = false;
    mapper.unmapParam(QString::fromLatin1(frameAsName));
    mapper.unmapParam(QString::fromLatin1(frameBsName));
    ui.spBoxNumberOfFrameAs->setEnabled(false);
    ui.spBoxNumberOfFrameBs->setEnabled(false);
}

// What the user is typing or dragging is meant for the frame that was selected up to now.
void OrvCamConfigFrameABDialogPrivate::dropInput()
{
    const qint64 selected = reader().get([this] { return frameSelector->GetIntValue(); });
    if (selected == selectedFrame)
        return;
    selectedFrame = selected;
    QWidget *const focus = q->focusWidget();
    if (ui.tabFrames->isAncestorOf(focus)) {
        if (auto *spinBox = qobject_cast<QSpinBox *>(focus))
            spinBox->setValue(spinBox->value());
        else if (auto *gainBox = qobject_cast<QDoubleSpinBox *>(focus))
            gainBox->setValue(gainBox->value());
    }
    for (const QAbstractSlider *slider : ui.tabFrames->findChildren<QAbstractSlider *>()) {
        if (slider->isSliderDown()) {
            slider->parentWidget()->setEnabled(false);
            slider->parentWidget()->setEnabled(true);
        }
    }
}

/// After several writes.
void OrvCamConfigFrameABDialogPrivate::catchUp()
{
    reader().whenKnown(this, this,
                       areaParams() + FeatureReader::Params{exposureLinesParam, exposureClocksParam,
                                                            coarseGain, fineGain},
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
            mapper.updateSpinBox(side, spinBox); // may show what has been refused
            if (writing.isOver())
                return;
            spinBox->setValue(ValueGrid::toInt(step.second));
            if (writing.isOver())
                return;
            if (reader().get([=] { return side->GetValue(); }) != step.second)
                break; // the next step is valid only from there
        }
    }
    catchUp();
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
    // On a sensor of just that size both presets are the same area; the user's choice stays.
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
