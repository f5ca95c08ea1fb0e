// SPDX-License-Identifier: MIT
#include "camconfig/boundfeatures.h"

namespace OrvGui {

FeatureReader::Names BoundFeatures::mainWindow()
{
    return {"FrameAB_Selector",
            "FrameMode",
            "CurrentTemperature",
            "CurrentExposureTime",
            "CurrentFrameTime",
            "Width",
            "Height",
            "DeviceManufacturerName",
            "DeviceModelName",
            "DeviceFamilyName",
            "DeviceVersion",
            "DeviceManufacturerInfo",
            "DeviceSerialNumber",
            "DeviceUserDefinedName",
            "SensorType",
            "RgsID",
            "FpgaID",
            "EpcsID",
            "FirmwareImage",
            "FirmwareVersion",
            "FirmwareBuild",
            "CustomerID",
            "XmlVersion",
            "U3VFirmwareVersion",
            "U3VFirmwareBuildNumber"};
}

FeatureReader::Names BoundFeatures::colorDialog()
{
    return {"RedCoefficient", "GreenCoefficient", "BlueCoefficient", "BalanceWhiteAuto",
            "AutoTrackingSpeed"};
}

FeatureReader::Names BoundFeatures::frameABDialog()
{
    return {"FrameAB_Selector",
            "FrameMode",
            "PixelClock",
            "TriggerMode",
            "SensorWidth",
            "SensorHeight",
            "ShutterMode",
            "SensorADCBitDepth",
            "NumberOfFrameAs",
            "NumberOfFrameBs",
            "Frame_AnalogGain",
            "Frame_Averaging",
            "Frame_BlackLevel",
            "Frame_DecimationMode",
            "Frame_DigitalCourseGain",
            "Frame_DigitalFineGain",
            "Frame_ExposureClocks",
            "Frame_ExposureControl",
            "Frame_ExposureLines",
            "Frame_FixedFramePeriodEnable",
            "Frame_FixedFramePeriodValue",
            "Frame_Height",
            "Frame_HeightActual",
            "Frame_LineTime",
            "Frame_OffsetX",
            "Frame_OffsetY",
            "Frame_SubsamplingM",
            "Frame_SubsamplingP",
            "Frame_WdrE1",
            "Frame_WdrE2",
            "Frame_WdrE3",
            "Frame_WdrEnable",
            "Frame_WdrP1",
            "Frame_WdrP2",
            "Frame_WdrP3",
            "Frame_Width",
            "Frame_WidthActual"};
}

FeatureReader::Names BoundFeatures::outputDialog()
{
    return {"PixelFormat",
            "SensorADCBitDepth11",
            "SensorADCBitDepth",
            "TestImageSelector",
            "LUTSelector",
            "LUTEnable",
            "DefectPixelCorrection",
            "HotPixelCorrection",
            "DefectPixelThreshold",
            "HotPixelThreshold",
            "ReverseX",
            "ReverseY"};
}

FeatureReader::Names BoundFeatures::pulseDialog()
{
    return {"PulseGenGranularity", "PulseGenPeriod", "PulseGenWidth",
            "PulseGenNumPulses",   "PulseGenMode",   "PulseGenEnable"};
}

FeatureReader::Names BoundFeatures::strobeDialog()
{
    return {"Strobe1Mode",  "Strobe2Mode",  "Strobe1Reference", "Strobe2Reference",
            "OUT1Polarity", "OUT2Polarity", "OUT1Selector",     "OUT2Selector",
            "Strobe1Delay", "Strobe2Delay", "Strobe1Width",     "Strobe2Width"};
}

FeatureReader::Names BoundFeatures::triggerDialog()
{
    return {"TriggerMode", "TriggerSource", "TriggerActivation", "TriggerDebounce",
            "TriggerSoftware"};
}

FeatureReader::Names BoundFeatures::all()
{
    return mainWindow() + colorDialog() + frameABDialog() + outputDialog() + pulseDialog() +
           strobeDialog() + triggerDialog();
}

} // namespace OrvGui
