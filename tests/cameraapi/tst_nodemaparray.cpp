// SPDX-License-Identifier: MIT
#include <cameraapi/nodemaparray.h>
#include <memorynodemap.h>

#include <OrvCam/Codes.h>
#include <OrvGenParam.h>

#include <QtTest>

#include <atomic>
#include <functional>
#include <thread>

using namespace OrvGenApi;
using namespace OrvGenParam;

namespace {

/// Counts its notifications and performs an action at each.
class Sink : public ParamEventSink
{
public:
    explicit Sink(std::function<void(Param *)> act = {}) : m_act(std::move(act)) {}

    void OnParameterUpdate(Param *param) override
    {
        ++count;
        last = param;
        thread = std::this_thread::get_id();
        if (m_act)
            m_act(param);
    }

    int count = 0;
    Param *last = nullptr;
    std::thread::id thread;

private:
    std::function<void(Param *)> m_act;
};

/// A small camera with one feature of each kind.
struct Camera
{
    Camera()
        : width(map.addInteger("Width", 640))
        , exposure(map.addFloat("ExposureTime", 10.5))
        , mode(map.addEnumeration("Mode", {{"Off", 0}, {"On", 1}, {"Auto", 4}}, 1))
        , reverse(map.addBoolean("ReverseX", true))
        , trigger(map.addCommand("TriggerSoftware"))
        , name(map.addString("DeviceUserID", "Käfer"))
        , hidden(map.addInteger("HiddenRegister", 5, ""))
    {
        map.addRegister("LUT", {1, 2, 3});
        width.setLimits(16, 1280);
        width.setIncrement(16);
        width.setUnit("px");
        exposure.setLimits(0.5, 1e6);
        exposure.setUnit("us");
        name.setMaxLength(8);
    }

    MemoryNodeMap map;
    MemoryInteger &width;
    MemoryFloat &exposure;
    MemoryEnumeration &mode;
    MemoryBoolean &reverse;
    MemoryCommand &trigger;
    MemoryString &name;
    MemoryInteger &hidden;
};

void throwRuntime()
{
    throw GenICam::RuntimeException("lost", __FILE__, __LINE__);
}

} // namespace

class TestNodeMapArray : public QObject
{
    Q_OBJECT

private slots:
    void lookUp();
    void values();
    void enumeration();
    void errorCodes_data();
    void errorCodes();
    void sinksFollowChanges();
    void sinksChangeRegistrations();
    void destroyedInAnyOrder();
    void changesOnOtherThreads();
    void registrationsUnderLoad();
};

void TestNodeMapArray::lookUp()
{
    Camera camera;
    camera.width.properties().displayName = "Image Width";
    camera.width.properties().toolTip = "short";
    camera.width.properties().description = "long";
    camera.exposure.properties().toolTip = "only this";
    const NodeMapArray array(camera.map);

    QStringList names;
    for (uint32_t i = 0; i < array.GetCount(); ++i)
        names << QString::fromUtf8(array.GetParam(i)->GetName());
    QCOMPARE(names, (QStringList{"Width", "ExposureTime", "Mode", "ReverseX", "TriggerSoftware",
                                 "DeviceUserID"}));
    QVERIFY(!array.GetParam(array.GetCount()));

    QCOMPARE(array.GetParam("Width"), static_cast<Param *>(array.GetInt("Width")));
    QCOMPARE(array.GetInt("Width")->GetType(), ParamInt);
    QCOMPARE(array.GetParam("Width")->GetDisplayName(), "Image Width");
    QCOMPARE(array.GetParam("Width")->GetDescription(), "long");
    QCOMPARE(array.GetParam("ExposureTime")->GetDisplayName(), "ExposureTime");
    QCOMPARE(array.GetParam("ExposureTime")->GetDescription(), "only this");
    QVERIFY(!array.GetInt("ExposureTime") && !array.GetFloat("Width") && !array.GetString("LUT"));
    QVERIFY(!array.GetInt("HiddenRegister") && !array.GetParam("Root"));
    QVERIFY(!array.GetParam(static_cast<const char *>(nullptr)));

    int32_t error = -1;
    QCOMPARE(array.GetNodeMap(&error), static_cast<GenApi::INodeMap *>(&camera.map));
    QCOMPARE(error, int32_t(OrvCam::Success));
}

void TestNodeMapArray::values()
{
    Camera camera;
    NodeMapArray array(camera.map);
    int32_t error = -1;
    QCOMPARE(array.GetInt("Width")->SetValue(320), int32_t(OrvCam::Success));
    QCOMPARE(array.GetInt("Width")->GetValue(&error), int64_t(320));
    QCOMPARE(error, int32_t(OrvCam::Success));
    QCOMPARE(array.GetInt("Width")->GetInc(), int64_t(16));
    QCOMPARE(array.GetInt("Width")->GetUnit(), "px");

    Float *exposure = array.GetFloat("ExposureTime");
    QVERIFY(exposure->GetMin() == 0.5 && exposure->GetMax() == 1e6);
    QCOMPARE(exposure->GetInc(&error), 0.0); // a feature without an increment
    QCOMPARE(error, int32_t(OrvCam::Success));
    camera.exposure.setIncrement(0.25);
    QCOMPARE(exposure->GetInc(), 0.25);

    int executions = 0;
    camera.trigger.onExecute([&] { ++executions; });
    QCOMPARE(array.GetCommand("TriggerSoftware")->Execute(), int32_t(OrvCam::Success));
    QCOMPARE(array.ExecuteCommand("TriggerSoftware"), int32_t(OrvCam::Success));
    QCOMPARE(executions, 2);

    String *name = array.GetString("DeviceUserID");
    QCOMPARE(QString::fromUtf8(name->GetValue()), QString::fromUtf8("Käfer"));
    QCOMPARE(name->SetValue("Biene"), int32_t(OrvCam::Success));
    QCOMPARE(name->GetValue(), "Biene");
    QCOMPARE(name->GetMaxLength(), int64_t(8));
}

void TestNodeMapArray::enumeration()
{
    Camera camera;
    camera.mode.entry("Auto").setAccessMode(GenApi::NA);
    const NodeMapArray array(camera.map);
    Enum *mode = array.GetEnum("Mode");

    QCOMPARE(mode->GetEntryCount(), 3u);
    QVERIFY(!mode->GetEntry(3));
    QCOMPARE(mode->GetEntry(2)->GetSymbolic(), "Auto");
    QCOMPARE(mode->GetEntry(2)->GetValue(), int64_t(4));
    QVERIFY(mode->GetEntry(0)->IsAvailable());
    QVERIFY(!mode->GetEntry(2)->IsAvailable());

    QCOMPARE(mode->GetSymbolicValue(), "On");
    QCOMPARE(mode->SetSymbolicValue("Off"), int32_t(OrvCam::Success));
    QCOMPARE(mode->GetIntValue(), int64_t(0));
    QCOMPARE(mode->SetIntValue(1), int32_t(OrvCam::Success));
    QCOMPARE(mode->GetSymbolicValue(), "On");

    // A value without an entry has a number, but no name.
    camera.mode.change(7);
    QCOMPARE(mode->GetSymbolicValue(), "");
    QVERIFY(mode->SetSymbolicValue("Nonsense") != OrvCam::Success);
    QVERIFY(mode->SetIntValue(3) != OrvCam::Success);
    QVERIFY(mode->SetIntValue(4) != OrvCam::Success);
}

using Breaker = std::function<void(Camera &)>;
using Call = std::function<int32_t(NodeMapArray &)>;
Q_DECLARE_METATYPE(Breaker)
Q_DECLARE_METATYPE(Call)

void TestNodeMapArray::errorCodes_data()
{
    QTest::addColumn<Breaker>("breaker");
    QTest::addColumn<Call>("call");
    QTest::addColumn<int>("code");

    const Breaker asItIs = [](Camera &) {};
    const auto access = [](GenApi::EAccessMode mode) {
        return Breaker([mode](Camera &camera) { camera.width.setAccessMode(mode); });
    };
    const auto failing = [](std::function<void()> hook) {
        return Breaker([hook](Camera &camera) {
            camera.width.onRead(hook);
            camera.width.onWrite(hook);
        });
    };
    const auto write = [](int64_t value, const char *name = "Width") {
        return Call([=](NodeMapArray &a) { return a.SetIntegerValue(name, value); });
    };
    const auto readOf = [](const char *name) {
        return Call([name](NodeMapArray &array) {
            int32_t error = 0;
            const int64_t value = array.GetIntegerValue(name, &error);
            return error != 0 && value != 0 ? 99 : error;
        });
    };
    const Call read = readOf("Width");
    const Call command = [](NodeMapArray &a) { return a.ExecuteCommand("Width"); };
    const auto text = [](const char *value) {
        return Call([=](NodeMapArray &a) { return a.GetString("DeviceUserID")->SetValue(value); });
    };
    const Breaker late =
        failing([] { throw GenICam::TimeoutException("late", __FILE__, __LINE__); });
    const Breaker refusing =
        failing([] { throw GenICam::AccessException("no", __FILE__, __LINE__); });
    const auto row = [](const char *name, const Breaker &breaker, const Call &call, int code) {
        QTest::newRow(name) << breaker << call << code;
    };

    row("no such feature", asItIs, write(1, "Depth"), OrvCam::ErrorNotFound);
    row("wrong kind, read", asItIs, readOf("ExposureTime"), OrvCam::ErrorNotFound);
    row("wrong kind, command", asItIs, command, OrvCam::ErrorNotFound);
    row("above maximum", asItIs, write(1296), OrvCam::ErrorOutOfRange);
    row("off increment", asItIs, write(17), OrvCam::ErrorOutOfRange);
    row("read-only", access(GenApi::RO), write(32), OrvCam::ErrorAccessDenied);
    row("write-only", access(GenApi::WO), read, OrvCam::ErrorAccessDenied);
    row("unavailable, write", access(GenApi::NA), write(32), OrvCam::ErrorNotAvailable);
    row("unavailable, read", access(GenApi::NA), read, OrvCam::ErrorNotAvailable);
    row("not implemented", access(GenApi::NI), read, OrvCam::ErrorNotAvailable);
    row("timeout, read", late, read, OrvCam::ErrorTimeout);
    row("camera refuses", refusing, write(32), OrvCam::ErrorAccessDenied);
    row("runtime error", failing(throwRuntime), write(32), OrvCam::ErrorFailed);
    row("not even GenICam", failing([] { throw 42; }), read, OrvCam::ErrorFailed);
    row("null text", asItIs, text(nullptr), OrvCam::ErrorInvalidArgument);
    row("long text", asItIs, text("123456789"), OrvCam::ErrorOutOfRange);
}

void TestNodeMapArray::errorCodes()
{
    QFETCH(Breaker, breaker);
    QFETCH(Call, call);
    QFETCH(int, code);
    Camera camera;
    NodeMapArray array(camera.map);
    breaker(camera);
    QCOMPARE(call(array), int32_t(code));
    const Param &width = *array.GetParam("Width");
    const GenApi::EAccessMode mode = camera.width.GetAccessMode();
    QCOMPARE(width.IsAvailable(), mode != GenApi::NA && mode != GenApi::NI);
    QCOMPARE(width.IsReadable(), mode == GenApi::RW || mode == GenApi::RO);
    QCOMPARE(width.IsWritable(), mode == GenApi::RW || mode == GenApi::WO);
}

void TestNodeMapArray::sinksFollowChanges()
{
    Camera camera;
    camera.exposure.dependsOn(camera.width);
    NodeMapArray array(camera.map);
    Sink sink;
    Param *exposure = array.GetParam("ExposureTime");

    exposure->RegisterEventSink(&sink);
    exposure->RegisterEventSink(&sink);
    exposure->RegisterEventSink(nullptr);
    QCOMPARE(array.SetIntegerValue("Width", 32), int32_t(OrvCam::Success));
    QCOMPARE(sink.count, 1);
    QCOMPARE(sink.last, exposure);

    camera.exposure.setAccessMode(GenApi::RO);
    camera.exposure.setLimits(1, 2);
    QCOMPARE(sink.count, 3);

    // Sinks are called without the node map's lock.
    Sink probe([&](Param *) {
        std::thread([&] { camera.map.GetLock().Lock(), camera.map.GetLock().Unlock(); }).join();
    });
    exposure->RegisterEventSink(&probe);
    camera.exposure.changed();
    QCOMPARE(probe.count, 1);

    exposure->UnregisterEventSink(&sink);
    exposure->UnregisterEventSink(&sink);
    array.GetParam("Width")->UnregisterEventSink(&sink);
    exposure->UnregisterEventSink(nullptr);
    camera.exposure.changed();
    QCOMPARE(sink.count, 4);
}

void TestNodeMapArray::sinksChangeRegistrations()
{
    Camera camera;
    NodeMapArray array(camera.map);
    Param *width = array.GetParam("Width");

    Sink late;
    auto doomed = std::make_unique<Sink>();
    Sink removed;
    Sink actor([&](Param *param) {
        param->RegisterEventSink(&late);
        param->UnregisterEventSink(&removed);
        doomed.reset();
        param->UnregisterEventSink(&actor);
        array.SetIntegerValue("Width", 48); // a nested notification
    });
    width->RegisterEventSink(&actor);
    width->RegisterEventSink(doomed.get());
    width->RegisterEventSink(&removed);

    camera.width.change(32);
    QCOMPARE(actor.count, 1);
    QCOMPARE(removed.count, 0);
    QVERIFY(!doomed);
    QCOMPARE(late.count, 1); // for the nested change

    Sink *selfDestroying = nullptr;
    selfDestroying = new Sink([&](Param *) {
        Sink *&self = selfDestroying; // deleting the sink destroys the captures
        delete self;
        self = nullptr;
    });
    width->RegisterEventSink(selfDestroying);
    camera.width.change(64);
    QVERIFY(!selfDestroying);
    camera.width.change(80);
    QCOMPARE(late.count, 3);
}

void TestNodeMapArray::destroyedInAnyOrder()
{
    Camera camera;
    Sink survivor;
    {
        auto array = std::make_unique<NodeMapArray>(camera.map);
        {
            Sink shortLived;
            array->GetParam("Width")->RegisterEventSink(&shortLived);
        }
        array->GetParam("Width")->RegisterEventSink(&survivor);
        camera.width.changed();
        QCOMPARE(survivor.count, 1);

        // A sink destroys the parameter that notifies it, before the next sink is notified.
        Sink destroyer([&](Param *) { array.reset(); });
        Sink tooLate;
        array->GetParam("Mode")->RegisterEventSink(&destroyer);
        array->GetParam("Mode")->RegisterEventSink(&tooLate);
        camera.mode.changed();
        QVERIFY(!array);
        QCOMPARE(destroyer.count, 1);
        QCOMPARE(tooLate.count, 0);
    }
    camera.width.changed();
    QCOMPARE(survivor.count, 1);

    // The node map keeps no references to the array; a new array starts without registrations.
    NodeMapArray again(camera.map);
    camera.width.changed();
    QCOMPARE(survivor.count, 1);
}

void TestNodeMapArray::changesOnOtherThreads()
{
    Camera camera;
    auto array = std::make_unique<NodeMapArray>(camera.map);
    Sink sink;
    array->GetParam("Width")->RegisterEventSink(&sink);

    const auto changeElsewhere = [&] {
        std::thread([&] {
            for (int i = 1; i <= 10; ++i)
                camera.width.change(16 * i);
        }).join();
    };
    changeElsewhere();
    QCOMPARE(sink.count, 0);
    QTRY_COMPARE(sink.count, 1);
    QCOMPARE(sink.thread, std::this_thread::get_id());
    QTest::qWait(20);
    QCOMPARE(sink.count, 1);
    QCOMPARE(array->GetIntegerValue("Width"), int64_t(160));

    changeElsewhere();
    QTRY_COMPARE(sink.count, 2);

    // The notification is pending when the parameter is destroyed.
    changeElsewhere();
    array.reset();
    QTest::qWait(20);
    QCOMPARE(sink.count, 2);

    // For an array that was created for another thread, this thread is the foreign one.
    std::thread::id elsewhere;
    std::thread([&] { elsewhere = std::this_thread::get_id(); }).join();
    NodeMapArray foreign(camera.map, elsewhere);
    foreign.GetParam("Width")->RegisterEventSink(&sink);
    camera.width.changed();
    QCOMPARE(sink.count, 2);
    QTRY_COMPARE(sink.count, 3);
}

void TestNodeMapArray::registrationsUnderLoad()
{
    Camera camera;
    NodeMapArray array(camera.map);
    std::atomic<bool> stop{false};

    std::thread changer([&] {
        while (!stop) {
            camera.width.changed();
            std::this_thread::yield();
        }
    });
    std::thread registrar([&] {
        while (!stop) {
            Sink sink;
            array.GetParam("Width")->RegisterEventSink(&sink);
            std::this_thread::yield();
            array.GetParam("Width")->UnregisterEventSink(&sink);
        }
    });
    Sink steady;
    array.GetParam("Width")->RegisterEventSink(&steady);
    QElapsedTimer timer;
    timer.start();
    for (int made = 0; !timer.hasExpired(300); ++made) {
        NodeMapArray passing(camera.map);
        Sink sink;
        passing.GetParam("Width")->RegisterEventSink(&sink);
        QCoreApplication::processEvents();
        if (made % 3 == 0)
            camera.width.changed();
    }
    stop = true;
    changer.join();
    registrar.join();
    QTRY_VERIFY(steady.count > 0);
}

QTEST_GUILESS_MAIN(TestNodeMapArray)
#include "tst_nodemaparray.moc"
