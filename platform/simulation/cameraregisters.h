// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// The register addresses of the simulated camera; they must agree with simulatedcamera.xml.
///
/// A register is named like its node in the description, without the suffix "Reg".
namespace OrvSimulation::Registers {

using Address = std::uint32_t;

// Bootstrap registers, as defined by GigE Vision
constexpr Address GevVersion = 0x0000;
constexpr Address GevDeviceMode = 0x0004;
constexpr Address GevMACAddress = 0x0008;
constexpr Address GevCurrentIPConfiguration = 0x0014;
constexpr Address GevCurrentIPAddress = 0x0024;
constexpr Address GevCurrentSubnetMask = 0x0034;
constexpr Address GevCurrentDefaultGateway = 0x0044;
constexpr Address DeviceManufacturerName = 0x0048;
constexpr Address DeviceModelName = 0x0068;
constexpr Address DeviceVersion = 0x0088;
constexpr Address DeviceManufacturerInfo = 0x00A8;
constexpr Address DeviceSerialNumber = 0x00D8;
constexpr Address DeviceUserDefinedName = 0x00E8;
constexpr Address GevFirstURL = 0x0200;
constexpr std::uint32_t GevURLSize = 512;
constexpr Address GevNumberOfInterfaces = 0x0600;
constexpr Address GevPersistentIPAddress = 0x064C;
constexpr Address GevPersistentSubnetMask = 0x065C;
constexpr Address GevPersistentDefaultGateway = 0x066C;
constexpr Address GevStreamChannelCount = 0x0904;
constexpr Address GevHeartbeatTimeout = 0x0938;
constexpr Address GevTimestampTickFrequency = 0x093C;
constexpr Address GevSCPS = 0x0D04;

// In the reserved space of the bootstrap registers
constexpr Address PixelFormat = 0x0128;

// Settings
constexpr Address Settings = 0x1000;
constexpr std::uint32_t SettingsSize = 0x0400;
constexpr Address CoolerSetpoint = 0x1008;
constexpr Address NumberOfFrameAs = 0x1020;
constexpr Address NumberOfFrameBs = 0x1024;
constexpr Address SensorClockDivider = 0x102C;
constexpr Address DualVideoLineTime = 0x1030;
constexpr Address AcquisitionFrameCount = 0x1038;
constexpr Address TriggerMode = 0x1100;
constexpr Address TriggerSource = 0x1104;
constexpr Address PulseGenMode = 0x1140;
constexpr Address PulseGenNumPulses = 0x1144;
constexpr Address PulseGenGranularity = 0x1148;
constexpr Address PulseGenWidth = 0x114C;
constexpr Address PulseGenPeriod = 0x1150;
constexpr Address Strobe1Control = 0x1180;
constexpr Address Strobe1Delay = 0x1184;
constexpr Address Strobe1Width = 0x1188;
constexpr Address Strobe2Control = 0x118C;
constexpr Address Strobe2Delay = 0x1190;
constexpr Address Strobe2Width = 0x1194;
constexpr Address OutputControl = 0x1198;
constexpr Address BalanceWhiteAuto = 0x1200;
constexpr Address AutoTrackingSpeed = 0x1204;
constexpr Address RedCoefficient = 0x1208;
constexpr Address GreenCoefficient = 0x120C;
constexpr Address BlueCoefficient = 0x1210;
constexpr Address Gamma = 0x1214;
constexpr Address DefectPixelCorrection = 0x1248;
constexpr Address DefectPixelThreshold = 0x124C;
constexpr Address HotPixelCorrection = 0x1250;
constexpr Address HotPixelThreshold = 0x1254;
constexpr Address LineFormat = 0x1260;
constexpr Address UserOutputValue = 0x1270;
constexpr Address ChunkEnable = 0x1284;
constexpr Address StreamBufferDepth = 0x12B0;

// Selectors
constexpr Address FrameSelector = 0x1400;
constexpr Address UserSetSelector = 0x1414;

// Commands, and switches that are not in user sets
constexpr Address TimestampLatch = 0x1500;
constexpr Address TriggerSoftware = 0x1504;
constexpr Address UserSetLoad = 0x1508;
constexpr Address UserSetSave = 0x150C;
constexpr Address ServiceKey = 0x1510;
constexpr Address PulseGenEnable = 0x1520;

// Measurements
constexpr Address CurrentTemperature = 0x1600;
constexpr Address DeviceTemperature = 0x1604;
constexpr Address UpTime = 0x1608;
constexpr Address TriggerCount = 0x160C;
constexpr Address PulseGenPulseCount = 0x1610;
constexpr Address LineStatusAll = 0x1614;
constexpr Address ServiceUnlocked = 0x1618;
constexpr Address TimestampLatchValue = 0x1620;

// Identity and constants
constexpr Address DeviceFamilyName = 0x1700;
constexpr Address SensorType = 0x1720;
constexpr Address RgsID = 0x1740;
constexpr Address FpgaID = 0x1744;
constexpr Address EpcsID = 0x1748;
constexpr Address FirmwareImage = 0x174C;
constexpr Address FirmwareVersion = 0x1750;
constexpr Address FirmwareBuild = 0x1754;
constexpr Address CustomerID = 0x1758;
constexpr Address XmlVersion = 0x175C;
constexpr Address U3VFirmwareVersion = 0x1760;
constexpr Address U3VFirmwareBuildNumber = 0x1764;
constexpr Address PixelClock = 0x1780;

// Texts of the user sets, 0x20 apart
constexpr Address UserSetDescription = 0x1800;
constexpr std::uint32_t UserSetDescriptionSize = 0x20;

// Registers of the sensor, 16 of them
constexpr Address ServiceValue = 0x1900;
constexpr std::uint32_t ServiceValueCount = 16;

// Settings of a frame: the address for frame A; for frame B add FrameStride
constexpr Address FrameSettings = 0x2000;
constexpr std::uint32_t FrameStride = 0x0100;
constexpr std::uint32_t FrameCount = 2;
constexpr Address FrameExposureControl = 0x2000;
constexpr Address FrameExposureLines = 0x2004;
constexpr Address FrameExposureClocks = 0x2008;
constexpr Address FrameFixedFramePeriodValue = 0x2010;
constexpr Address FrameLineTime = 0x2014;
constexpr Address FrameOffsetX = 0x2018;
constexpr Address FrameOffsetY = 0x201C;
constexpr Address FrameWidth = 0x2020;
constexpr Address FrameHeight = 0x2024;
constexpr Address FrameSubsamplingP = 0x202C;
constexpr Address FrameAnalogGain = 0x2038;
constexpr Address FrameDigitalCourseGain = 0x203C;
constexpr Address FrameDigitalFineGain = 0x2040;
constexpr Address FrameBlackLevel = 0x2044;
constexpr Address FrameWdrP1 = 0x204C;
constexpr Address FrameWdrP2 = 0x2050;
constexpr Address FrameWdrP3 = 0x2054;
constexpr Address FrameWdrE1 = 0x2058;
constexpr Address FrameWdrE2 = 0x205C;
constexpr Address FrameWdrE3 = 0x2060;

// Look-up tables, one after the other, four bytes a value
constexpr Address LookUpTables = 0x6000;
constexpr std::uint32_t LookUpTableCount = 4;
constexpr std::uint32_t LookUpTableLength = 256;
constexpr std::uint32_t LookUpTablesSize = LookUpTableCount * LookUpTableLength * 4;

} // namespace OrvSimulation::Registers
