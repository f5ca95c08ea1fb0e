// SPDX-License-Identifier: MIT
#include "camconfig/orvcamconfigcolordialog.h"

#include "base/formfit.h"
#include "camconfig/boundfeatures.h"
#include "camconfig/orvcamconfigdialog_p.h"
#include "camconfig/uprightslider.h"
#include "ui_orvcamconfigcolordialog.h"

#include <OrvCam/Codes.h>

namespace OrvGui {

namespace {

constexpr int unityGain = 256;

} // namespace

class OrvCamConfigColorDialogPrivate : public OrvCamConfigDialogPrivate,
                                       public OrvGenParam::ParamEventSink
{
public:
    void prepareToShow() override;
    void OnParameterUpdate(OrvGenParam::Param *param) override;

protected:
    void buildForm() override;
    void release() override;
    FeatureReader::Names features() const override { return BoundFeatures::colorDialog(); }
    void bind() override;

private:
    struct Coefficient
    {
        const char *feature;
        QtOrvSpinBox *spinBox;
        QPushButton *unity;
        QLabel *statistics;
        QVector<QWidget *> dependents;
        const OrvGenParam::Param *bound = nullptr;
    };

    void bindCoefficient(Coefficient &coefficient);
    void showStatistics(const OrvGenParam::Param *param);
    void initStatistics();

    Ui_OrvCamConfigColorDialog ui;
    QVector<Coefficient> m_coefficients;
};

void OrvCamConfigColorDialogPrivate::buildForm()
{
    ui.setupUi(q);
    m_coefficients = {
        {"RedCoefficient",
         ui.spBoxRed,
         ui.pushBtnRedUnity,
         ui.lblRedCoef,
         // All three statistics are shown and hidden with the red one.
         {ui.pushBtnRedUnity, ui.grBoxStatistics}},
        {"GreenCoefficient",
         ui.spBoxGreen,
         ui.pushBtnGreenUnity,
         ui.lblGreenCoef,
         {ui.pushBtnGreenUnity}},
        {"BlueCoefficient",
         ui.spBoxBlue,
         ui.pushBtnBlueUnity,
         ui.lblBlueCoef,
         {ui.pushBtnBlueUnity}},
    };
}

void OrvCamConfigColorDialogPrivate::release()
{
    for (Coefficient &coefficient : m_coefficients)
        coefficient.bound = nullptr;
}

void OrvCamConfigColorDialogPrivate::bind()
{
    for (Coefficient &coefficient : m_coefficients)
        bindCoefficient(coefficient);
    bindEnum("BalanceWhiteAuto", ui.cmBoxWhiteBalance);
    bindEnum("AutoTrackingSpeed", ui.cmBoxTrackingSpeed);
    initStatistics();
}

void OrvCamConfigColorDialogPrivate::bindCoefficient(Coefficient &coefficient)
{
    QPushButton *unity = coefficient.unity;
    FormFit::limitWidth(unity, FormFit::textWidth(unity, unity->text()) +
                                   2 * FormFit::textWidth(unity, QStringLiteral("_")));
    QtOrvSpinBox *spinBox = coefficient.spinBox;
    if (bindInt(coefficient.feature, spinBox, coefficient.dependents)) {
        coefficient.bound = watched(array->GetInt(coefficient.feature), this);
    }
    connectTo(unity, &QPushButton::clicked, [spinBox] { spinBox->setValue(unityGain); });
}

void OrvCamConfigColorDialogPrivate::initStatistics()
{
    const QString widest = QString::number(ui.spBoxRed->maximum());
    for (const Coefficient &coefficient : m_coefficients) {
        coefficient.statistics->setFixedWidth(
            FormFit::textWidth(coefficient.statistics, widest + QLatin1Char(' ')));
        // The spin box of a missing coefficient may still show the value of a previous camera.
        const int value = coefficient.bound ? coefficient.spinBox->value() : 0;
        coefficient.statistics->setText(QString::number(value));
    }
}

void OrvCamConfigColorDialogPrivate::OnParameterUpdate(OrvGenParam::Param *param)
{
    reader().whenKnown(this, param, {param}, [=] { showStatistics(param); });
}

void OrvCamConfigColorDialogPrivate::showStatistics(const OrvGenParam::Param *param)
{
    for (const Coefficient &coefficient : m_coefficients) {
        if (coefficient.bound != param || !reader().get([=] { return param->IsReadable(); }))
            continue;
        int32_t error = OrvCam::Success;
        const auto *number = static_cast<const OrvGenParam::Int *>(param);
        const qint64 value = reader().get([&] { return number->GetValue(&error); });
        if (error == OrvCam::Success)
            coefficient.statistics->setText(QString::number(value));
    }
}

void OrvCamConfigColorDialogPrivate::prepareToShow()
{
    for (const Coefficient &coefficient : m_coefficients)
        fitUprightSlider(coefficient.spinBox);
}

OrvCamConfigColorDialog::OrvCamConfigColorDialog(OrvCam::Device *device, QWidget *parent)
    : OrvCamConfigDialog(new OrvCamConfigColorDialogPrivate, device, parent)
{
}

} // namespace OrvGui
