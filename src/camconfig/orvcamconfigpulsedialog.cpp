// SPDX-License-Identifier: MIT
#include "camconfig/orvcamconfigpulsedialog.h"

#include "base/formfit.h"
#include "camconfig/boundfeatures.h"
#include "camconfig/microseconds.h"
#include "camconfig/orvcamconfigdialog_p.h"
#include "ui_orvcamconfigpulsedialog.h"
#include "widgets/qtorvslider.h"

#include <QButtonGroup>

namespace OrvGui {

namespace {

constexpr double microsecondsPerSecond = 1e6;

QString microsecondsSuffix()
{
    return OrvCamConfigPulseDialog::tr(" [%1s]:").arg(Microseconds::mu());
}

void fitSlider(QtOrvSpinBox *spinBox)
{
    const QLabel *label = spinBox->leftLabel();
    spinBox->resizeSlider(spinBox->width() - (label ? label->width() : 0), spinBox->height());
}

} // namespace

class OrvCamConfigPulseDialogPrivate : public OrvCamConfigDialogPrivate
{
public:
    void prepareToShow() override;

protected:
    void buildForm() override;
    FeatureReader::Names features() const override { return BoundFeatures::pulseDialog(); }
    void bind() override;

private:
    void initSpinBoxes();
    void initButton();
    void setButtonState(bool isRunning);
    void showDerivedValues();

    Ui_OrvCamConfigPulseDialog ui;
    QButtonGroup *modeButtons = nullptr;
};

void OrvCamConfigPulseDialogPrivate::buildForm()
{
    ui.setupUi(q);
    for (QLabel *label : {ui.lblPeriod, ui.lblWidth, ui.lblDelay})
        label->setText(label->text() + microsecondsSuffix());

    modeButtons = new QButtonGroup(q);
    modeButtons->addButton(ui.radioBtnContinious);
    modeButtons->addButton(ui.radioBtnSend);

    const int width = FormFit::textWidth(ui.lineEditFreq, QStringLiteral("1000000000.00000000"));
    FormFit::limitWidth(ui.lineEditDelay, width);
    FormFit::limitWidth(ui.lineEditFreq, width);
}

void OrvCamConfigPulseDialogPrivate::bind()
{
    bindEnum("PulseGenGranularity", ui.cmBoxGranularity);
    initSpinBoxes();
    bindEnum("PulseGenMode", modeButtons);
    initButton();
    showDerivedValues();
    setButtonState(ui.pushBtnPulseEnable->isChecked());
}

void OrvCamConfigPulseDialogPrivate::initSpinBoxes()
{
    const auto valueChanged = static_cast<void (QtOrvSpinBox::*)(int)>(&QtOrvSpinBox::valueChanged);
    // The derived values must not be those of a previous camera.
    for (QtOrvSpinBox *spinBox : {ui.spBoxPeriod, ui.spBoxWidth})
        spinBox->setRange(0, 0);

    ui.spBoxPeriod->slider()->setScaleType(QtOrvSlider::ScaleLog10);
    ui.spBoxPeriod->setSliderOrientation(Qt::Horizontal);
    bindInt("PulseGenPeriod", ui.spBoxPeriod);
    connectTo(ui.spBoxPeriod, valueChanged, [this] { showDerivedValues(); });

    ui.spBoxWidth->slider()->setScaleType(QtOrvSlider::ScaleLog10);
    ui.spBoxWidth->setSliderOrientation(Qt::Horizontal);
    bindInt("PulseGenWidth", ui.spBoxWidth);
    connectTo(ui.spBoxWidth, valueChanged, [this] { showDerivedValues(); });

    ui.spBoxNumPulses->setSliderOrientation(Qt::Horizontal);
    bindInt("PulseGenNumPulses", ui.spBoxNumPulses);
}

void OrvCamConfigPulseDialogPrivate::initButton()
{
    ui.pushBtnPulseEnable->setChecked(false); // stays unchecked when the camera lacks the feature
    bindBoolean("PulseGenEnable", ui.pushBtnPulseEnable);
    connectTo(ui.pushBtnPulseEnable, &QPushButton::clicked,
              [this](bool isRunning) { setButtonState(isRunning); });
}

void OrvCamConfigPulseDialogPrivate::setButtonState(bool isRunning)
{
    // Setting a text resets the shortcut.
    const QKeySequence shortcut = ui.pushBtnPulseEnable->shortcut();
    ui.pushBtnPulseEnable->setText(isRunning ? OrvCamConfigPulseDialog::tr("Stop")
                                             : OrvCamConfigPulseDialog::tr("Start"));
    ui.pushBtnPulseEnable->setShortcut(shortcut);
    ui.lblPulseEnable->setPixmap(QPixmap(isRunning ? QStringLiteral(":/icons/res/greenball.ico")
                                                   : QStringLiteral(":/icons/res/redball.ico")));
}

void OrvCamConfigPulseDialogPrivate::showDerivedValues()
{
    const int period = ui.spBoxPeriod->value();
    ui.lineEditDelay->setText(QString::number(qint64(period) - ui.spBoxWidth->value()));
    const double frequency = period == 0 ? 0.0 : microsecondsPerSecond / period;
    ui.lineEditFreq->setText(QString::number(frequency, 'f', 6));
}

void OrvCamConfigPulseDialogPrivate::prepareToShow()
{
    for (QtOrvSpinBox *spinBox : {ui.spBoxPeriod, ui.spBoxWidth, ui.spBoxNumPulses})
        fitSlider(spinBox);
    const int side = ui.pushBtnPulseEnable->height();
    ui.lblPulseEnable->setMaximumHeight(side);
    ui.lblPulseEnable->setMaximumWidth(side);
}

OrvCamConfigPulseDialog::OrvCamConfigPulseDialog(OrvCam::Device *device, QWidget *parent)
    : OrvCamConfigDialog(new OrvCamConfigPulseDialogPrivate, device, parent)
{
}

} // namespace OrvGui
