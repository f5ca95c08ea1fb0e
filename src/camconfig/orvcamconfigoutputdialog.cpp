// SPDX-License-Identifier: MIT
#include "camconfig/orvcamconfigoutputdialog.h"

#include "base/formfit.h"
#include "camconfig/boundfeatures.h"
#include "camconfig/orvcamconfigdialog_p.h"
#include "camconfig/uprightslider.h"
#include "ui_orvcamconfigoutputdialog.h"
#include "widgets/valueaccessibility.h"

namespace OrvGui {

class OrvCamConfigOutputDialogPrivate : public OrvCamConfigDialogPrivate
{
public:
    void prepareToShow() override;

protected:
    void buildForm() override;
    FeatureReader::Names features() const override { return BoundFeatures::outputDialog(); }
    void bind() override;

private:
    Ui_OrvCamConfigOutputDialog ui;
};

void OrvCamConfigOutputDialogPrivate::buildForm()
{
    ui.setupUi(q);
    for (QtOrvSpinBox *spinBox : {ui.spBoxDpcDynThres, ui.spBoxHpcDynThres})
        spinBox->setLeftLabelText(OrvCamConfigOutputDialog::tr("Dyn.Thres.:"));
    FormFit::align({ui.label_3, ui.label_4});
    ValueAccessibility::setName(ui.cmBoxLut, ui.groupBox_2->title());
}

void OrvCamConfigOutputDialogPrivate::bind()
{
    bindEnum("PixelFormat", ui.cmBoxPixelFormat);
    bindEnum("SensorADCBitDepth11", ui.cmBoxTaps); // cameras use this name for their taps
    bindEnum("SensorADCBitDepth", ui.cmBoxDepth);
    bindEnum("TestImageSelector", ui.cmBoxTestMode);
    bindEnum("LUTSelector", ui.cmBoxLut);
    bindEnum("DefectPixelCorrection", ui.cmBoxDpc);
    bindEnum("HotPixelCorrection", ui.cmBoxHpc);
    bindInt("DefectPixelThreshold", ui.spBoxDpcDynThres);
    bindInt("HotPixelThreshold", ui.spBoxHpcDynThres);
    bindBoolean("LUTEnable", ui.chBoxEnableLut);
    bindBoolean("ReverseX", ui.chBoxHorMirror);
    bindBoolean("ReverseY", ui.chBoxVerMirror);
}

void OrvCamConfigOutputDialogPrivate::prepareToShow()
{
    fitUprightSlider(ui.spBoxDpcDynThres);
    fitUprightSlider(ui.spBoxHpcDynThres);
}

OrvCamConfigOutputDialog::OrvCamConfigOutputDialog(OrvCam::Device *device, QWidget *parent)
    : OrvCamConfigDialog(new OrvCamConfigOutputDialogPrivate, device, parent)
{
}

} // namespace OrvGui
