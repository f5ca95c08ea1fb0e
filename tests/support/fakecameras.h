// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam.h>
#include <OrvGenParam.h>

#include <QByteArray>
#include <QMap>
#include <QStringList>
#include <QThread>

#include <memory>
#include <vector>

// A camera system whose behaviour the test sets, including faults that a real system never shows.
// Its objects record the calls.

/// The values of an interface's parameters, by feature name.
class FakeParameters final : public OrvGenParam::Array
{
public:
    QMap<QByteArray, int64_t> values;
    QMap<QByteArray, int32_t> errors; ///< by feature; without value and error: not found
    QStringList writes;               ///< "feature=value", or the name of a command
    QMap<int64_t, int64_t> addresses; ///< "GevDeviceIPAddress" by DeviceSelector, for exceptions
    unsigned commandTime = 0;         ///< milliseconds

    uint32_t GetCount() const override { return 0; }
    OrvGenParam::Param *GetParam(uint32_t) const override { return nullptr; }
    OrvGenParam::Param *GetParam(const char *) const override { return nullptr; }
    OrvGenParam::Int *GetInt(const char *) const override { return nullptr; }
    OrvGenParam::Float *GetFloat(const char *) const override { return nullptr; }
    OrvGenParam::Enum *GetEnum(const char *) const override { return nullptr; }
    OrvGenParam::Boolean *GetBoolean(const char *) const override { return nullptr; }
    OrvGenParam::Command *GetCommand(const char *) const override { return nullptr; }
    OrvGenParam::String *GetString(const char *) const override { return nullptr; }
    GenApi::INodeMap *GetNodeMap(int32_t *) const override { return nullptr; }

    int64_t GetIntegerValue(const char *name, int32_t *error) const override
    {
        const int32_t code = codeOf(name);
        if (error)
            *error = code;
        if (qstrcmp(name, "GevDeviceIPAddress") == 0 &&
            addresses.contains(values.value("DeviceSelector")))
            return addresses.value(values.value("DeviceSelector"));
        return values.value(name);
    }
    int32_t SetIntegerValue(const char *name, int64_t value) override
    {
        writes << QString("%1=%2").arg(name).arg(value);
        const int32_t code = codeOf(name);
        if (code == OrvCam::Success)
            values[name] = value;
        return code;
    }
    int32_t ExecuteCommand(const char *name) override
    {
        QThread::msleep(commandTime);
        writes << name;
        return codeOf(name);
    }

private:
    int32_t codeOf(const char *name) const
    {
        return errors.value(name, values.contains(name) ? OrvCam::Success : OrvCam::ErrorNotFound);
    }
};

class FakeCamera final : public OrvCam::DeviceInfo
{
public:
    const char *displayName = nullptr;
    const char *vendor = nullptr;
    const char *model = nullptr;
    const char *serial = nullptr;
    const char *version = nullptr;
    const char *userName = nullptr;
    int32_t state = OrvCam::AccessReadWrite;
    OrvCam::Interface *interface = nullptr;

    const char *GetDisplayName() const override { return displayName; }
    const char *GetVendor() const override { return vendor; }
    const char *GetModel() const override { return model; }
    const char *GetSerial() const override { return serial; }
    const char *GetVersionText() const override { return version; }
    const char *GetUserName() const override { return userName; }
    int32_t GetAccessState() const override { return state; }
    OrvCam::Interface *GetInterface() const override { return interface; }
    const char *GetId() const override { return "fake"; }
};

/// A device without parameters.
class FakeDevice : public OrvCam::Device
{
public:
    OrvGenParam::Array *GetParamArray(int32_t *) override { return nullptr; }
    bool IsConnected() const override { return false; }
    OrvCam::DeviceInfo *GetDeviceInfo() const override { return nullptr; }
    int32_t RegisterEvent(int32_t, OrvCam::DeviceEventCallback, void *) override { return 0; }
    int32_t UnregisterEvent(int32_t, OrvCam::DeviceEventCallback, void *) override { return 0; }
    void Release() override {}
};

/// The source of a fake's lists; counts the lists that are handed out and released.
template<class List, class Entry>
class FakeLists
{
public:
    std::vector<Entry *> entries;
    bool isNull = false;  ///< returns null instead of a list
    int countedAhead = 0; ///< how much the reported count exceeds the number of entries
    int handedOut = 0;
    int released = 0;

    List *handOut()
    {
        if (isNull)
            return nullptr;
        ++handedOut;
        m_lists.push_back(std::make_unique<Fake>(*this));
        return m_lists.back().get();
    }

private:
    class Fake final : public List
    {
    public:
        explicit Fake(FakeLists &owner) : m_owner(owner), m_entries(owner.entries) {}

        uint32_t GetCount() const override
        {
            return static_cast<uint32_t>(static_cast<int>(m_entries.size()) + m_owner.countedAhead);
        }
        Entry *GetFirst() override
        {
            m_next = 0;
            return GetNext();
        }
        Entry *GetNext() override
        {
            return m_next < m_entries.size() ? m_entries[m_next++] : nullptr;
        }
        void Release() override { ++m_owner.released; }

    private:
        FakeLists &m_owner;
        const std::vector<Entry *> m_entries;
        std::size_t m_next = 0;
    };

    std::vector<std::unique_ptr<Fake>> m_lists;
};

class FakeInterface final : public OrvCam::Interface
{
public:
    explicit FakeInterface(const char *text = nullptr, int32_t transportKind = 0)
        : description(text), kind(transportKind)
    {
    }

    const char *description;
    int32_t kind;
    const char *version = nullptr;
    FakeParameters *parameters = nullptr;
    int32_t parametersError = OrvCam::Success;
    FakeLists<OrvCam::DeviceInfoList, OrvCam::DeviceInfo> cameras;
    std::vector<uint32_t> refreshes; ///< the requested time-outs
    bool wasAskedForChanges = false;

    FakeCamera &add(const char *displayName, int32_t state = OrvCam::AccessReadWrite)
    {
        m_cameras.push_back(std::make_unique<FakeCamera>());
        FakeCamera &camera = *m_cameras.back();
        camera.displayName = displayName;
        camera.state = state;
        camera.interface = this;
        cameras.entries.push_back(&camera);
        return camera;
    }

    int32_t RefreshDevices(bool *changed, uint32_t timeoutMs) override
    {
        wasAskedForChanges |= changed != nullptr;
        refreshes.push_back(timeoutMs);
        return OrvCam::Success;
    }
    OrvCam::DeviceInfoList *GetDeviceInfoSet() override { return cameras.handOut(); }
    const char *GetDescription() const override { return description; }
    int32_t GetTransportKind() const override { return kind; }
    const char *GetVersionText() const override { return version; }
    OrvGenParam::Array *GetParamArray(int32_t *error) override
    {
        if (error)
            *error = parametersError;
        return parameters;
    }

private:
    std::vector<std::unique_ptr<FakeCamera>> m_cameras;
};

class FakeSystem final : public OrvCam::System
{
public:
    FakeLists<OrvCam::InterfaceList, OrvCam::Interface> interfaces;
    std::vector<uint32_t> masks; ///< of the requests for interfaces
    int released = 0;

    OrvCam::InterfaceList *GetInterfaceSet(uint32_t typeMask) override
    {
        masks.push_back(typeMask);
        return interfaces.handOut();
    }
    void Release() override { ++released; }
};
