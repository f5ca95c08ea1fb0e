// SPDX-License-Identifier: MIT
#include "adopteddevice.h"

#include "arvport.h"
#include "arvsupport.h"

#include <arv.h>
#include <genapi/nodes/numbers.h>

namespace OrvAravis {

namespace {

struct TextRegister
{
    uint64_t address;
    uint32_t size;
};

/// The registers with a camera's identity.
struct IdentityRegisters
{
    TextRegister vendor, model, version, serial, userName;
};

constexpr IdentityRegisters gigEVision{{0x48, 32}, {0x68, 32}, {0x88, 32}, {0xd8, 16}, {0xe8, 16}};
constexpr IdentityRegisters usb3Vision{
    {0x04, 64}, {0x44, 64}, {0xc4, 64}, {0x144, 64}, {0x184, 64}};

constexpr uint64_t gevMacAddress = 0x08;

/// Reads the registers one by one, until one is not answered.
class RegisterReader
{
public:
    explicit RegisterReader(ArvDevice *device) : m_device(device) {}

    /// Valid UTF-8 for any bytes from the camera.
    std::string text(const TextRegister &place)
    {
        std::string bytes(place.size, '\0');
        if (!read(place.address, place.size, bytes.data()))
            return std::string();
        const std::unique_ptr<char, void (*)(void *)> valid(g_utf8_make_valid(bytes.c_str(), -1),
                                                            g_free);
        return valid.get();
    }

    /// "02:00:5E:10:00:01"; empty when there is none.
    std::string macAddress()
    {
        unsigned char bytes[8] = {};
        if (!read(gevMacAddress, sizeof bytes, bytes))
            return std::string();
        int64_t address = 0;
        for (int i = 2; i < 8; ++i)
            address = address << 8 | bytes[i];
        return address ? OrvGenApi::integerToText(address, GenApi::MACAddress) : std::string();
    }

private:
    bool read(uint64_t address, uint32_t size, void *bytes)
    {
        if (m_isSilent)
            return false;
        GError *error = nullptr;
        arv_device_read_memory(m_device, address, size, bytes, &error);
        const OrvCameraIo::Status status = takeStatus(error);
        m_isSilent = !isAnswer(status);
        return status == OrvCameraIo::Status::Done;
    }

    ArvDevice *const m_device;
    bool m_isSilent = false;
};

} // namespace

AdoptedDevice::AdoptedDevice(ArvDevice *device) : m_device(shared(device))
{
    quieten();
}

AdoptedDevice::Kind AdoptedDevice::kind() const
{
    if (ARV_IS_GV_DEVICE(get()))
        return Kind::GigEVision;
    return ARV_IS_UV_DEVICE(get()) ? Kind::Usb3Vision : Kind::Other;
}

bool AdoptedDevice::isController() const
{
    return OrvAravis::isController(get());
}

AdoptedDevice::Identity AdoptedDevice::identity() const
{
    const bool isUsb = kind() == Kind::Usb3Vision;
    const IdentityRegisters &places = isUsb ? usb3Vision : gigEVision;
    RegisterReader reader(get());
    Identity identity;
    identity.vendor = reader.text(places.vendor);
    identity.model = reader.text(places.model);
    identity.serial = reader.text(places.serial);
    identity.version = reader.text(places.version);
    identity.userName = reader.text(places.userName);
    if (!isUsb)
        identity.id = reader.macAddress();
    if (identity.id.empty())
        identity.id = identity.vendor + '-' + identity.serial;
    return identity;
}

std::shared_ptr<const std::string> AdoptedDevice::description() const
{
    return descriptionOf(get());
}

std::unique_ptr<OrvCameraIo::Port> AdoptedDevice::openPort() const
{
    // Once control is lost, only the program that opened the device can regain it.
    return std::make_unique<ArvPort>(m_device, [self = *this] {
        const bool isBack = self.kind() == Kind::GigEVision && self.isController();
        return isBack ? self.m_device : nullptr;
    });
}

} // namespace OrvAravis
