// SPDX-License-Identifier: MIT
#include "camconfig/camerainformation.h"

#include "base/cameratext.h"
#include "camconfig/featurereader.h"
#include "ui_orvcamconfigaboutdialog.h"

#include <OrvCam/Codes.h>
#include <OrvGenParam/Array.h>

#include <QPixmap>

namespace OrvGui {

namespace {

struct Row
{
    QLabel *Ui_OrvCamConfigAboutDialog::*label;
    const char *feature;
};

constexpr int iconExtent = 48;

using Ui = Ui_OrvCamConfigAboutDialog;

const Row textRows[] = {
    {&Ui::lblDeviceManufacturerName, "DeviceManufacturerName"},
    {&Ui::lblDeviceModelName, "DeviceModelName"},
    {&Ui::lblDeviceFamilyName, "DeviceFamilyName"},
    {&Ui::lblDeviceVersion, "DeviceVersion"},
    {&Ui::lblDeviceManufacturerInfo, "DeviceManufacturerInfo"},
    {&Ui::lblDeviceSerialNumber, "DeviceSerialNumber"},
    {&Ui::lblDeviceUserDefinedName, "DeviceUserDefinedName"},
    {&Ui::lblSensorType, "SensorType"},
};

const Row numberRows[] = {
    {&Ui::lblRgsID, "RgsID"},
    {&Ui::lblFpgaID, "FpgaID"},
    {&Ui::lblEpcsID, "EpcsID"},
    {&Ui::lblFirmwareImage, "FirmwareImage"},
    {&Ui::lblFirmwareVersion, "FirmwareVersion"},
    {&Ui::lblFirmwareBuild, "FirmwareBuild"},
    {&Ui::lblCustomerID, "CustomerID"},
    {&Ui::lblXmlVersion, "XmlVersion"},
    {&Ui::lblU3VFirmwareVersion, "U3VFirmwareVersion"},
    {&Ui::lblU3VFirmwareBuildNumber, "U3VFirmwareBuildNumber"},
};

/// Shows the parameter's value as converted by `text`; false when it cannot be read.
template<class Kind, class Text>
bool show(const FeatureReader &reader, QLabel *label, const Kind *param, Text text)
{
    if (!param)
        return false;
    int32_t error = OrvCam::Success;
    const QString value = reader.get([&] { return text(param->GetValue(&error)); });
    if (error == OrvCam::Success)
        label->setText(value);
    return error == OrvCam::Success;
}

} // namespace

CameraInformation::CameraInformation(QWidget *parent)
    : m_dialog(new QDialog(parent)), m_ui(new Ui_OrvCamConfigAboutDialog)
{
    m_ui->setupUi(m_dialog);
    m_ui->label->setScaledContents(true); // from the largest size: sharp at any pixel ratio
    m_ui->label->setFixedSize(iconExtent, iconExtent);
    m_ui->label->setPixmap(QPixmap(QStringLiteral(":/icons/res/orvicon.ico")));
    m_ui->lblAppName->setText(tr("OrvCameraConfiguration"));
    m_ui->lblAppVersion->setText(tr("1.3.0 (build 2230) "));
    m_ui->lblCopyright->setText(
        tr("Copyright %1 2016 The OrvCameraGuiApi developers").arg(QChar(0xA9)));
}

CameraInformation::~CameraInformation() = default;

void CameraInformation::adjust(const FeatureReader &reader, OrvGenParam::Array *array)
{
    const QString none = tr("N/A");
    for (const Row &row : textRows) {
        QLabel *label = (*m_ui).*row.label;
        if (!array || !show(reader, label, array->GetString(row.feature),
                            [](const char *text) { return cameraText(text, LongestName); }))
            label->setText(none);
    }
    for (const Row &row : numberRows) {
        QLabel *label = (*m_ui).*row.label;
        if (!array || !show(reader, label, array->GetInt(row.feature),
                            [](qint64 number) { return QString::number(number); }))
            label->setText(none);
    }
}

} // namespace OrvGui
