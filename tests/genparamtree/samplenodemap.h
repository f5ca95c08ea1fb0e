// SPDX-License-Identifier: MIT
#pragma once

#include <memorynodemap.h>

/// The features of a small but realistic camera: all types and access modes.
class SampleNodeMap : public OrvGenApi::MemoryNodeMap
{
public:
    SampleNodeMap();

    /// Like `node`, but returns the node as the given class.
    template<typename T>
    T &get(const char *name) const
    {
        return dynamic_cast<T &>(*GetNode(name));
    }
    OrvGenApi::MemoryInteger &integer(const char *name) const
    {
        return get<OrvGenApi::MemoryInteger>(name);
    }
    OrvGenApi::MemoryFloat &number(const char *name) const
    {
        return get<OrvGenApi::MemoryFloat>(name);
    }
    OrvGenApi::MemoryEnumeration &enumeration(const char *name) const
    {
        return get<OrvGenApi::MemoryEnumeration>(name);
    }

    int resets = 0; ///< how often "DeviceReset" was executed

private:
    void addDeviceControl();
    void addImageFormatControl();
    void addAcquisitionControl();
    void addTransportLayerControl();
};

inline SampleNodeMap::SampleNodeMap() : MemoryNodeMap("Sample")
{
    addDeviceControl();
    addImageFormatControl();
    addAcquisitionControl();
    addTransportLayerControl();
}

inline void SampleNodeMap::addDeviceControl()
{
    addCategory("DeviceControl").properties().displayName = "Device Control";

    auto &model = addString("DeviceModelName", "Sample 1300", "DeviceControl");
    model.setAccessMode(GenApi::RO);
    model.properties().displayName = "Device Model Name";
    model.properties().toolTip = "Model of the device";
    model.properties().description = "Model of the device, as its maker names it.";

    auto &user = addString("DeviceUserID", "", "DeviceControl");
    user.properties().displayName = "Device User ID";
    user.setMaxLength(16);

    addCommand(
        "DeviceReset", [this] { ++resets; }, "DeviceControl")
        .properties()
        .displayName = "Device Reset";

    auto &temperature = addFloat("DeviceTemperature", 42.5, "DeviceControl");
    temperature.setAccessMode(GenApi::RO);
    temperature.setUnit("C");
    temperature.properties().visibility = GenApi::Expert;

    auto &firmware = addInteger("FirmwareKey", 7, "DeviceControl");
    firmware.setAccessMode(GenApi::WO);
    firmware.properties().visibility = GenApi::Guru;

    addRegister("UserMemory", {0xde, 0xad}, "DeviceControl").properties().visibility = GenApi::Guru;
}

inline void SampleNodeMap::addImageFormatControl()
{
    addCategory("ImageFormatControl").properties().displayName = "Image Format Control";

    auto &width = addInteger("Width", 1280, "ImageFormatControl");
    width.setLimits(16, 1280);
    width.setIncrement(16);
    width.properties().streamable = true;
    width.properties().displayName = "Width";
    width.properties().description = "Width of the image in pixels.";

    auto &binning = addInteger("BinningHorizontal", 1, "ImageFormatControl");
    binning.setLimits(1, 8);
    binning.setValidValues({1, 2, 4, 8});
    binning.setUnit("px");

    auto &format = addEnumeration("PixelFormat",
                                  {{"Mono8", 0x01080001}, {"Mono12", 0x01100005}, {"RGB8", 255}},
                                  0x01080001, "ImageFormatControl");
    format.properties().displayName = "Pixel Format";
    format.entry("RGB8").setAccessMode(GenApi::NA);

    addBoolean("ReverseX", false, "ImageFormatControl").properties().displayName = "Reverse X";
}

inline void SampleNodeMap::addAcquisitionControl()
{
    addCategory("AcquisitionControl").properties().displayName = "Acquisition Control";

    auto &exposure = addFloat("ExposureTime", 10000, "AcquisitionControl");
    exposure.setLimits(10, 1000000);
    exposure.setUnit("us");
    exposure.properties().displayName = "Exposure Time";

    auto &selector =
        addEnumeration("GainSelector", {{"All", 0}, {"Red", 1}}, 0, "AcquisitionControl");
    selector.properties().displayName = "Gain Selector";

    auto &gain = addFloat("Gain", 1.5, "AcquisitionControl");
    gain.setLimits(0, 24);
    gain.setValidValues({0, 1.5, 3, 6, 12, 24});
    gain.setUnit("dB");
    selector.select(gain);

    addInteger("TriggerDivider", 1, "AcquisitionControl").setAccessMode(GenApi::NA);
}

inline void SampleNodeMap::addTransportLayerControl()
{
    addCategory("TransportLayerControl").properties().displayName = "Transport Layer Control";
    auto &gige = addCategory("GigEVision", "TransportLayerControl");
    gige.properties().displayName = "GigE Vision";
    gige.properties().visibility = GenApi::Expert;

    addInteger("GevMACAddress", 75878878429, "GigEVision").setAccessMode(GenApi::RO);
    auto &mask = addInteger("GevCurrentSubnetMask", 4294967040, "GigEVision");
    mask.setLimits(0, 4294967295);
    auto &address = addInteger("GevPersistentIPAddress", 0xC0A80102, "GigEVision");
    address.setLimits(0, 4294967295);
    address.setRepresentation(GenApi::Linear);
    auto &capability = addInteger("GevDeviceModeCapability", 255, "GigEVision");
    capability.setRepresentation(GenApi::HexNumber);
    capability.setLimits(0, 0xffff);
}
