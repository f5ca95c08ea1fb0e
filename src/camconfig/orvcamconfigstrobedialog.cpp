// SPDX-License-Identifier: MIT
#include "camconfig/orvcamconfigstrobedialog.h"

#include "base/formfit.h"
#include "camconfig/boundfeatures.h"
#include "camconfig/microseconds.h"
#include "camconfig/orvcamconfigdialog_p.h"
#include "ui_orvcamconfigstrobedialog.h"
#include "widgets/qtorvslider.h"
#include "widgets/valueaccessibility.h"

namespace OrvGui {

namespace {

bool isExposureStart(const QComboBox *reference)
{
    return reference->currentText() == QLatin1String("ExposureStart");
}

} // namespace

class OrvCamConfigStrobeDialogPrivate : public OrvCamConfigDialogPrivate
{
protected:
    void buildForm() override;
    FeatureReader::Names features() const override { return BoundFeatures::strobeDialog(); }
    void bind() override;

private:
    void setImageState();

    Ui_OrvCamConfigStrobeDialog ui;
};

void OrvCamConfigStrobeDialogPrivate::buildForm()
{
    ui.setupUi(q);
    const QString delay = OrvCamConfigStrobeDialog::tr("Delay [%1s]:").arg(Microseconds::mu());
    const QString width = OrvCamConfigStrobeDialog::tr("Width [%1s]:").arg(Microseconds::mu());
    ui.spBoxStrobe1Delay->setLeftLabelText(delay);
    ui.spBoxStrobe2Delay->setLeftLabelText(delay);
    ui.spBoxStrobe1Width->setLeftLabelText(width);
    ui.spBoxStrobe2Width->setLeftLabelText(width);
    FormFit::align({ui.spBoxStrobe1Delay->leftLabel(), ui.spBoxStrobe1Width->leftLabel(),
                    ui.spBoxStrobe2Delay->leftLabel(), ui.spBoxStrobe2Width->leftLabel()});
    const QString source = OrvCamConfigStrobeDialog::tr("Source of output %1");
    ValueAccessibility::setName(ui.cmBoxOut1Selector, source.arg(1));
    ValueAccessibility::setName(ui.cmBoxOut2Selector, source.arg(2));
}

void OrvCamConfigStrobeDialogPrivate::bind()
{
    bindEnum("Strobe1Mode", ui.cmBoxStrobe1Mode);
    bindEnum("Strobe2Mode", ui.cmBoxStrobe2Mode);
    bindEnum("Strobe1Reference", ui.cmBoxStrobe1Ref);
    connectTo(ui.cmBoxStrobe1Ref, &QComboBox::currentTextChanged, [this] { setImageState(); });
    bindEnum("Strobe2Reference", ui.cmBoxStrobe2Ref);
    connectTo(ui.cmBoxStrobe2Ref, &QComboBox::currentTextChanged, [this] { setImageState(); });
    bindEnum("OUT1Polarity", ui.cmBoxOut1Polarity);
    bindEnum("OUT2Polarity", ui.cmBoxOut2Polarity);
    bindEnum("OUT1Selector", ui.cmBoxOut1Selector);
    bindEnum("OUT2Selector", ui.cmBoxOut2Selector);
    setImageState();

    const auto bindTime = [this](const char *feature, QtOrvSliderSpinBox *spinBox) {
        spinBox->slider()->setScaleType(QtOrvSlider::ScaleLog10);
        bindInt(feature, spinBox, nullptr);
    };
    bindTime("Strobe1Delay", ui.spBoxStrobe1Delay);
    bindTime("Strobe2Delay", ui.spBoxStrobe2Delay);
    bindTime("Strobe1Width", ui.spBoxStrobe1Width);
    bindTime("Strobe2Width", ui.spBoxStrobe2Width);
}

void OrvCamConfigStrobeDialogPrivate::setImageState()
{
    if (!ui.cmBoxStrobe1Ref->isEnabled() || !ui.cmBoxStrobe2Ref->isEnabled())
        return;
    static const char *const pictures[2][2] = {
        {":/images/res/strobeBothRead.bmp", ":/images/res/strobe1Read_strobe2Exp.bmp"},
        {":/images/res/strobe1Exp_strobe2Read.bmp", ":/images/res/strobeBothExp.bmp"},
    };
    const char *picture =
        pictures[isExposureStart(ui.cmBoxStrobe1Ref)][isExposureStart(ui.cmBoxStrobe2Ref)];
    ui.lblStrobeImage->setPicture(QString::fromLatin1(picture));
}

OrvCamConfigStrobeDialog::OrvCamConfigStrobeDialog(OrvCam::Device *device, QWidget *parent)
    : OrvCamConfigDialog(new OrvCamConfigStrobeDialogPrivate, device, parent)
{
}

} // namespace OrvGui
