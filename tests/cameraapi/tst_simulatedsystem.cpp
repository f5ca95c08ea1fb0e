// SPDX-License-Identifier: MIT
#include "cameratestsupport.h"

#include <cameraapi/gevparameters.h>

#include <QtTest>

using namespace OrvCam;

namespace {

/// An interface with a given list of cameras.
struct Network : GevNetwork
{
    std::vector<GevAddresses> present;
    uint64_t forced = 0; ///< the MAC address of the last camera with a forced IP

    GevAddresses adapter() const override { return {}; }
    std::vector<GevAddresses> cameras() const override { return present; }
    int32_t forceIp(const GevAddresses &wanted) override
    {
        forced = wanted.mac;
        return Success;
    }
};

} // namespace

class TestSimulatedSystem : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qputenv("ORVCAM_SIMULATION", "1"); }
    void init() { m_system.reset(OrvCam_GetSystem()); }
    void cleanup() { m_system.reset(); }
    void forcedAddress();
    void selectionFollowsItsCamera();

private:
    Interface *network() { return interfacesOf(*m_system, InterfaceGigEVision).front(); }

    Released<System> m_system;
};

void TestSimulatedSystem::forcedAddress()
{
    const auto cameras = camerasOf(*network());
    const auto elsewhere = std::find_if(cameras.begin(), cameras.end(), [](DeviceInfo *camera) {
        return camera->GetAccessState() == AccessSubnetMismatch;
    });
    QVERIFY(elsewhere != cameras.end());
    int32_t error = Success;
    QVERIFY(!OrvCam_CreateDevice(*elsewhere, &error, AccessControl));
    QCOMPARE(error, int32_t(ErrorWrongSubnet));

    OrvGenParam::Array *array = network()->GetParamArray();
    array->SetIntegerValue("DeviceSelector", elsewhere - cameras.begin());
    QCOMPARE(array->GetIntegerValue("GevDeviceForceGateway"),
             array->GetIntegerValue("GevDeviceGateway"));
    QCOMPARE(array->SetIntegerValue("GevDeviceForceIPAddress", 0xC0000240), int32_t(Success));
    QCOMPARE(array->SetIntegerValue("GevDeviceForceSubnetMask", 0xFFFFFF00), int32_t(Success));

    // Each camera has its own values to be forced.
    array->SetIntegerValue("DeviceSelector", 0);
    QCOMPARE(array->GetIntegerValue("GevDeviceForceIPAddress"),
             array->GetIntegerValue("GevDeviceIPAddress"));
    array->SetIntegerValue("DeviceSelector", elsewhere - cameras.begin());

    QCOMPARE(array->ExecuteCommand("GevDeviceForceIP"), int32_t(Success));
    QCOMPARE(array->GetIntegerValue("GevDeviceIPAddress"), int64_t(0xC0000240));
    QCOMPARE((*elsewhere)->GetAccessState(), int32_t(AccessReadWrite));
    QCOMPARE(camerasOf(*network()), cameras);
    const Released<Device> device(OrvCam_CreateDevice(*elsewhere, &error, AccessControl));
    QVERIFY(device);
    QCOMPARE(array->ExecuteCommand("GevDeviceForceIP"), int32_t(ErrorAccessDenied));

    // A device keeps its interface and system alive.
    const std::string name = (*elsewhere)->GetDisplayName();
    m_system.reset();
    QCOMPARE(device->GetParamArray()->GetIntegerValue("GevCurrentIPAddress"), int64_t(0xC0000240));
    QCOMPARE(device->GetDeviceInfo()->GetDisplayName(), name.c_str());
    QVERIFY(device->GetDeviceInfo()->GetInterface()->GetDescription());
}

// The cameras are enumerated again between the selection and its use.
void TestSimulatedSystem::selectionFollowsItsCamera()
{
    Network network;
    network.present = {{1, 0xA, 0, 0}, {2, 0xB, 0, 0}};
    GevParameters parameters(network);
    OrvGenParam::Array &array = parameters.array();
    QCOMPARE(array.SetIntegerValue("DeviceSelector", 1), int32_t(Success));
    QCOMPARE(array.SetIntegerValue("DeviceSelector", 2), int32_t(ErrorOutOfRange));
    QCOMPARE(array.SetIntegerValue("GevDeviceIPAddress", 1), int32_t(ErrorAccessDenied));
    network.present.insert(network.present.begin(), {3, 0xC, 0, 0});
    parameters.networkChanged();
    QCOMPARE(array.GetIntegerValue("DeviceSelector"), int64_t(2));
    QCOMPARE(array.GetIntegerValue("GevDeviceIPAddress"), int64_t(0xB));
    QCOMPARE(array.ExecuteCommand("GevDeviceForceIP"), int32_t(Success));
    QCOMPARE(network.forced, uint64_t(2));

    // If the selected camera vanishes, no other camera gets its address.
    network.present.pop_back();
    parameters.networkChanged();
    QCOMPARE(array.SetIntegerValue("GevDeviceForceIPAddress", 1), int32_t(ErrorAccessDenied));
    QCOMPARE(array.ExecuteCommand("GevDeviceForceIP"), int32_t(ErrorAccessDenied));
    QCOMPARE(network.forced, uint64_t(2));
    QCOMPARE(array.SetIntegerValue("DeviceSelector", 0), int32_t(Success));
    QCOMPARE(array.GetIntegerValue("GevDeviceIPAddress"), int64_t(0xC));
}

QTEST_GUILESS_MAIN(TestSimulatedSystem)
#include "tst_simulatedsystem.moc"
