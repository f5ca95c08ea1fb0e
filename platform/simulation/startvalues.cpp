// SPDX-License-Identifier: MIT
#include "simulation/startvalues.h"

#include "simulation/description_p.h"

#include <cstdio>

namespace OrvSimulation {

using namespace Registers;

namespace {

struct StartValue
{
    Address address;
    std::uint32_t value;
};

// Registers that are not listed are 0.
constexpr StartValue startValues[] = {
    {GevVersion, 0x00010002},
    {GevDeviceMode, 0x80000001},      // big endian, UTF-8
    {GevCurrentIPConfiguration, 0x5}, // link-local and persistent
    {GevNumberOfInterfaces, 1},
    {GevStreamChannelCount, 1},
    {GevHeartbeatTimeout, 3000},
    {GevSCPS, 0x40000000 | 1500}, // not fragmented
    {PixelFormat, 0x01080009},    // BayerRG8

    {CoolerSetpoint, 10},
    {NumberOfFrameAs, 1},
    {NumberOfFrameBs, 1},
    {SensorClockDivider, 0x20},
    {DualVideoLineTime, 1400},
    {AcquisitionFrameCount, 10},
    {StreamBufferDepth, 8},

    {PulseGenNumPulses, 10},
    {PulseGenWidth, 1000},
    {PulseGenPeriod, 10000},

    {Strobe1Control, 0x03}, // both frames, from the start of the exposure
    {Strobe1Delay, 100},
    {Strobe1Width, 1000},
    {Strobe2Control, 0x10}, // off, from the start of the read-out
    {Strobe2Width, 500},
    {OutputControl, 0x00300010}, // output 1 strobe 1, output 2 exposure
    {LineFormat + 8, 1},         // the outputs have TTL level
    {LineFormat + 12, 1},

    {AutoTrackingSpeed, 1},
    {RedCoefficient, 320},
    {GreenCoefficient, 256},
    {BlueCoefficient, 384},

    {DefectPixelCorrection, 3}, // static and dynamic
    {DefectPixelThreshold, 256},
    {HotPixelCorrection, 2}, // dynamic
    {HotPixelThreshold, 512},
    {ChunkEnable, 1}, // the image itself

    {RgsID, 0x0412},
    {FpgaID, 0x2C31},
    {EpcsID, 0x16},
    {FirmwareImage, 1},
    {FirmwareVersion, 0x0203},
    {FirmwareBuild, 1187},
    {CustomerID, 0},
    {XmlVersion, 0x0100},
    {U3VFirmwareVersion, 0x0104},
    {U3VFirmwareBuildNumber, 412},
    {PixelClock, 160},
};

// Addresses are those of frame A.
struct FrameStartValue
{
    Address address;
    std::uint32_t frameA;
    std::uint32_t frameB;
};

constexpr FrameStartValue frameStartValues[] = {
    {FrameExposureLines, 1600, 400},
    {FrameExposureClocks, 0, 480},
    {FrameFixedFramePeriodValue, 4000, 4000},
    {FrameLineTime, 1000, 1200},
    {FrameOffsetX, 0, 128},
    {FrameOffsetY, 0, 456},
    {FrameWidth, 4096, 3840},
    {FrameHeight, 3072, 2160},
    {FrameSubsamplingP, 1, 1}, // pairs, as the pixels are coloured
    {FrameAnalogGain, 0, 1},
    {FrameDigitalCourseGain, 0, 1},
    {FrameDigitalFineGain, 0, 32},
    {FrameBlackLevel, 64, 80},
    {FrameWdrP1, 2, 2},
    {FrameWdrP2, 3, 3},
    {FrameWdrP3, 4, 4},
    {FrameWdrE1, 5000, 1500},
    {FrameWdrE2, 1000, 300},
    {FrameWdrE3, 200, 60},
};

// The location of the description, if it were read from the camera; hosts display this text.
std::string descriptionUrl()
{
    char url[64];
    std::snprintf(url, sizeof url, "Local:arv-fake-camera.xml;%zx;%zx", CameraMemory::size,
                  simulatedCameraDescriptionSize);
    return url;
}

void writeIdentity(CameraMemory &memory, const CameraIdentity &identity)
{
    memory.writeText(DeviceManufacturerName, identity.vendor, 32);
    memory.writeText(DeviceModelName, identity.model, 32);
    memory.writeText(DeviceVersion, identity.version, 32);
    memory.writeText(DeviceManufacturerInfo, identity.manufacturerInfo, 48);
    memory.writeText(DeviceSerialNumber, identity.serial, 16);
    memory.writeText(DeviceUserDefinedName, identity.userName, 16);
    memory.writeText(DeviceFamilyName, identity.family, 32);
    memory.writeText(SensorType, identity.sensorType, 32);

    memory.writeText(GevFirstURL, descriptionUrl(), GevURLSize);

    memory.write64(GevMACAddress, identity.macAddress & 0xFFFFFFFFFFFF);
    memory.write(GevCurrentIPAddress, identity.ipAddress);
    memory.write(GevCurrentSubnetMask, identity.subnetMask);
    memory.write(GevCurrentDefaultGateway, identity.gateway);
    memory.write(GevPersistentIPAddress, identity.ipAddress);
    memory.write(GevPersistentSubnetMask, identity.subnetMask);
    memory.write(GevPersistentDefaultGateway, identity.gateway);
    memory.write64(GevTimestampTickFrequency, 1000000000);
}

void writeFrames(CameraMemory &memory)
{
    for (const FrameStartValue &start : frameStartValues) {
        memory.write(start.address, start.frameA);
        memory.write(start.address + FrameStride, start.frameB);
    }
}

// Every table maps its 8-bit index to 12 bits without a change.
void writeLookUpTables(CameraMemory &memory)
{
    for (std::uint32_t table = 0; table < LookUpTableCount; ++table) {
        const Address start = LookUpTables + table * LookUpTableLength * 4;
        for (std::uint32_t entry = 0; entry < LookUpTableLength; ++entry)
            memory.write(start + 4 * entry, entry * 4095 / (LookUpTableLength - 1));
    }
}

} // namespace

void writeStartValues(CameraMemory &memory, const CameraIdentity &identity)
{
    for (const StartValue &start : startValues)
        memory.write(start.address, start.value);
    memory.writeFloat(Gamma, 1.0F);
    memory.writeText(UserSetDescription, "Settings of the factory", UserSetDescriptionSize);
    for (std::uint32_t i = 0; i < ServiceValueCount; ++i)
        memory.write(ServiceValue + 4 * i, 0x0100 + i);

    writeIdentity(memory, identity);
    writeFrames(memory);
    writeLookUpTables(memory);
}

} // namespace OrvSimulation
