// SPDX-License-Identifier: MIT
#include "cameratestsupport.h"

#include <cameraapi/gevparameters.h>

#include <QtTest>

#include <set>

using namespace OrvCam;

namespace {

/// An interface that has the cameras it is told.
struct Network : GevNetwork
{
    std::vector<GevAddresses> present;
    uint64_t forced = 0; ///< the MAC address of the last camera that was given an address

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
    void initTestCase();
    void init();
    void cleanup() { m_system.reset(); }
    void interfaces();
    void camerasOfEverySort();
    void networkParameters();
    void forcedAddress();
    void selectionFollowsItsCamera();
    void openAndClose();
    void refusals_data();
    void refusals();

private:
    Interface *network() { return interfacesOf(*m_system, InterfaceGigEVision).front(); }
    DeviceInfo *cameraInState(int32_t state);

    Released<System> m_system;
};

void TestSimulatedSystem::initTestCase()
{
    qputenv("ORVCAM_SIMULATION", "1");
}

void TestSimulatedSystem::init()
{
    m_system.reset(OrvCam_GetSystem());
    QVERIFY(m_system);
}

DeviceInfo *TestSimulatedSystem::cameraInState(int32_t state)
{
    for (Interface *interface : interfacesOf(*m_system)) {
        for (DeviceInfo *camera : camerasOf(*interface)) {
            if (camera->GetAccessState() == state)
                return camera;
        }
    }
    return nullptr;
}

void TestSimulatedSystem::interfaces()
{
    std::multiset<int32_t> kinds;
    for (Interface *interface : interfacesOf(*m_system)) {
        kinds.insert(interface->GetTransportKind());
        QVERIFY(interface->GetDescription());
        int32_t error = Success;
        const bool isNetwork = interface->GetTransportKind() == TransportGigEVision;
        QCOMPARE(interface->GetParamArray(&error) != nullptr, isNetwork);
        QCOMPARE(error == Success, isNetwork);
    }
    QCOMPARE(kinds, (std::multiset<int32_t>{TransportCustom, TransportCustom, TransportUsb3Vision,
                                            TransportGigEVision, TransportGigEVision}));
    QCOMPARE(interfacesOf(*m_system, InterfaceUsb3Vision).size(), size_t(1));
    QCOMPARE(interfacesOf(*m_system, InterfaceCustom | InterfaceGigEVision).size(), size_t(4));
    QVERIFY(interfacesOf(*m_system, InterfaceCoaXPress).empty());
    QCOMPARE(interfacesOf(*m_system), interfacesOf(*m_system));
}

void TestSimulatedSystem::camerasOfEverySort()
{
    std::set<int32_t> states;
    std::set<std::string> ids;
    bool isOneEmpty = false;
    bool isOneNull = false;
    bool isOneNameless = false;
    for (Interface *interface : interfacesOf(*m_system)) {
        bool changed = false;
        QCOMPARE(interface->RefreshDevices(&changed, 200), int32_t(Success));
        const Released<DeviceInfoList> list(interface->GetDeviceInfoSet());
        isOneNull |= !list;
        isOneEmpty |= list && list->GetCount() == 0;
        if (!list || list->GetCount() == 0)
            continue;

        QVERIFY(changed);
        interface->RefreshDevices(&changed, 200);
        QVERIFY(!changed);
        const auto cameras = camerasOf(*interface);
        QCOMPARE(cameras, camerasOf(*interface));
        for (DeviceInfo *camera : cameras) {
            states.insert(camera->GetAccessState());
            QVERIFY(ids.insert(camera->GetId()).second);
            QCOMPARE(camera->GetInterface(), interface);
            QVERIFY(qstrlen(camera->GetDisplayName()) > 0);
            isOneNameless |= !camera->GetVendor() && !camera->GetModel() && !camera->GetSerial() &&
                             !camera->GetVersionText() && !camera->GetUserName();
        }
    }
    QCOMPARE(states, (std::set<int32_t>{AccessUnknown, AccessReadWrite, AccessReadOnly, AccessNone,
                                        AccessSubnetMismatch}));
    QVERIFY(isOneEmpty && isOneNull && isOneNameless);
}

void TestSimulatedSystem::networkParameters()
{
    OrvGenParam::Array *array = network()->GetParamArray();
    int32_t error = Success;
    QCOMPARE(array->GetIntegerValue("GevInterfaceMACAddress", &error), int64_t(0x02005E00000A));
    QCOMPARE(array->GetIntegerValue("GevInterfaceSubnetIPAddress"), int64_t(0xC000020A));
    QCOMPARE(array->GetIntegerValue("GevInterfaceSubnetMask"), int64_t(0xFFFFFF00));

    // Before anybody has looked for cameras there is nothing to select.
    QCOMPARE(array->SetIntegerValue("DeviceSelector", 0), int32_t(ErrorNotAvailable));
    array->GetIntegerValue("GevDeviceIPAddress", &error);
    QCOMPARE(error, int32_t(ErrorNotAvailable));

    const auto cameras = camerasOf(*network());
    QVERIFY(cameras.size() >= 4);
    for (size_t row = 0; row < cameras.size(); ++row) {
        QCOMPARE(array->SetIntegerValue("DeviceSelector", row), int32_t(Success));
        QCOMPARE(array->GetIntegerValue("GevDeviceMACAddress"), int64_t(0x02005E100001 + row));
        const bool isElsewhere = cameras[row]->GetAccessState() == AccessSubnetMismatch;
        const int64_t ip = array->GetIntegerValue("GevDeviceIPAddress");
        const int64_t mask = array->GetIntegerValue("GevDeviceSubnetMask");
        QCOMPARE((ip & mask) != 0xC0000200, isElsewhere);
    }
    QCOMPARE(array->SetIntegerValue("DeviceSelector", cameras.size()), int32_t(ErrorOutOfRange));
    QCOMPARE(array->SetIntegerValue("GevDeviceIPAddress", 1), int32_t(ErrorAccessDenied));
}

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

    // What is to be forced on one camera is not what is to be forced on another.
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
    QCOMPARE(device->GetParamArray()->GetIntegerValue("GevCurrentIPAddress"), int64_t(0xC0000240));

    QCOMPARE(array->ExecuteCommand("GevDeviceForceIP"), int32_t(ErrorAccessDenied));
}

// Somebody looks for cameras between a selection and what it was made for.
void TestSimulatedSystem::selectionFollowsItsCamera()
{
    Network network;
    network.present = {{1, 0xA, 0, 0}, {2, 0xB, 0, 0}};
    GevParameters parameters(network);
    OrvGenParam::Array &array = parameters.array();
    QCOMPARE(array.SetIntegerValue("DeviceSelector", 1), int32_t(Success));
    network.present.insert(network.present.begin(), {3, 0xC, 0, 0});
    parameters.networkChanged();
    QCOMPARE(array.GetIntegerValue("DeviceSelector"), int64_t(2));
    QCOMPARE(array.GetIntegerValue("GevDeviceIPAddress"), int64_t(0xB));
    QCOMPARE(array.ExecuteCommand("GevDeviceForceIP"), int32_t(Success));
    QCOMPARE(network.forced, uint64_t(2));

    // When it is gone, no other camera gets what was meant for it.
    network.present.pop_back();
    parameters.networkChanged();
    QCOMPARE(array.SetIntegerValue("GevDeviceForceIPAddress", 1), int32_t(ErrorAccessDenied));
    QCOMPARE(array.ExecuteCommand("GevDeviceForceIP"), int32_t(ErrorAccessDenied));
    QCOMPARE(network.forced, uint64_t(2));
    QCOMPARE(array.SetIntegerValue("DeviceSelector", 0), int32_t(Success));
    QCOMPARE(array.GetIntegerValue("GevDeviceIPAddress"), int64_t(0xC));
}

void TestSimulatedSystem::openAndClose()
{
    const auto cameras = camerasOf(*network());
    int32_t error = ErrorFailed;
    const Released<Device> first(OrvCam_CreateDevice(cameras[0], &error, AccessControl));
    QVERIFY(first && error == Success && first->IsConnected());
    QCOMPARE(first->GetDeviceInfo(), cameras[0]);
    const Released<Device> second(OrvCam_CreateDevice(cameras[1], nullptr, AccessControl));
    QVERIFY(second);
    QVERIFY(first->GetParamArray()->GetIntegerValue("Width") > 0);
    QCOMPARE(
        QString::fromUtf8(second->GetParamArray()->GetString("DeviceUserDefinedName")->GetValue()),
        QStringLiteral("Inspection"));

    // What a device belongs to stays as long as it does.
    const std::string name = cameras[0]->GetDisplayName();
    m_system.reset();
    QVERIFY(first->GetParamArray()->GetIntegerValue("Width") > 0);
    QCOMPARE(first->GetDeviceInfo()->GetDisplayName(), name.c_str());
    QVERIFY(first->GetDeviceInfo()->GetInterface()->GetDescription());
}

void TestSimulatedSystem::refusals_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("accessMode");
    QTest::addColumn<int>("error");
    const auto row = [](const char *name, int state, int accessMode, int error) {
        QTest::newRow(name) << state << accessMode << error;
    };
    row("taken", AccessNone, AccessControl, ErrorBusy);
    row("elsewhere", AccessSubnetMismatch, AccessMonitor, ErrorWrongSubnet);
    row("controlled by others", AccessReadOnly, AccessControl, ErrorBusy);
    row("no such mode", AccessReadWrite, 7, ErrorInvalidArgument);
    row("no camera", -1, AccessControl, ErrorInvalidArgument);
}

void TestSimulatedSystem::refusals()
{
    QFETCH(int, state);
    QFETCH(int, accessMode);
    QFETCH(int, error);
    int32_t code = Success;
    QVERIFY(!OrvCam_CreateDevice(cameraInState(state), &code, accessMode));
    QCOMPARE(code, int32_t(error));
    QVERIFY(!OrvCam_CreateDevice(cameraInState(state), nullptr, accessMode));
}

QTEST_GUILESS_MAIN(TestSimulatedSystem)
#include "tst_simulatedsystem.moc"
