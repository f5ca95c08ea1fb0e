// SPDX-License-Identifier: MIT
#include <featuresteps.h>
#include <memorynodemap.h>

#include <QtTest>

#include <atomic>
#include <thread>

using namespace GenApi;
using namespace OrvGenApi;

namespace {

/// The arguments of a test's callbacks, in order.
struct Recorder
{
    QStringList calls;

    void note(INode *node) { calls << QString::fromUtf8(node->GetName().c_str()); }
};

template<typename Exception, typename Function>
bool throws(Function function)
{
    try {
        function();
    } catch (const Exception &) {
        return true;
    } catch (...) {
    }
    return false;
}

} // namespace

/// The common functions of all node maps, tested on one whose nodes are declared here.
class TestNodes : public QObject
{
    Q_OBJECT

private slots:
    void stringsAndPointers();
    void namesAndOrder();
    void writesAreChecked();
    void extremeValues();
    void restrictions();
    void texts_data();
    void texts();
    void floatTexts();
    void valuesAreReadOnce();
    void writesInvalidateDependents();
    void callbacksRunOncePerChange();
    void callbackTypes();
    void failedWritesCallNothing();
    void callbacksMayDeregister();
    void deregistrationWaitsForOtherThreads();
};

void TestNodes::stringsAndPointers()
{
    QCOMPARE(GenICam::gcstring("zero\0x", 6).length(), std::size_t(6));
    QVERIFY(GenICam::gcstring(nullptr).empty());

    MemoryNodeMap map;
    map.addInteger("Width");
    CIntegerPtr integer(map.GetNode("Width"));
    CFloatPtr real(map.GetNode("Width"));
    QVERIFY(integer.IsValid() && integer && !real.IsValid());
    QVERIFY(throws<GenICam::LogicalErrorException>([&] { real->GetValue(); }));
}

void TestNodes::namesAndOrder()
{
    MemoryNodeMap map("Device");
    map.addInteger("B", 0, "Second");
    map.addInteger("A", 0, "First").properties().nameSpace = Standard;
    map.category("Second").addFeature(*map.node("A"));
    map.addInteger("Hidden", 0, "");

    FeatureList_t features;
    CCategoryPtr(map.GetNode("Second"))->GetFeatures(features);
    QCOMPARE(features.size(), std::size_t(2));
    QCOMPARE(features[1]->GetNode()->GetName().c_str(), "A");

    QVERIFY(map.GetNode("Std::A") == map.GetNode("A") && map.GetNode("A"));
    QVERIFY(!map.GetNode("Cust::A") && map.GetNode("Cust::B") && !map.GetNode("C"));
    QCOMPARE(map.GetNode("A")->GetName(true).c_str(), "Std::A");
    QVERIFY(map.GetNode("A")->IsFeature() && !map.GetNode("Hidden")->IsFeature());
    QVERIFY(throws<GenICam::LogicalErrorException>([&] { map.addInteger("A"); }));
}

void TestNodes::writesAreChecked()
{
    MemoryNodeMap map;
    auto &width = map.addInteger("Width");
    width.setLimits(-4, 100);
    width.setIncrement(4);
    auto &gain = map.addFloat("Gain");
    gain.setLimits(0, 1);
    gain.setIncrement(0.1); // no multiple of it has an exact binary value
    auto &mode = map.addEnumeration("Mode", {{"Off", 0}, {"On", 5}, {"Auto", 7}}, 5);
    map.addString("UserName", "old").setMaxLength(4);
    map.addRegister("Table", {1, 2, 3});
    map.addBoolean("Flag");
    FeatureSteps features(map);
    QCOMPARE(features.run("Width=-4 Width=8 Width!9 Width!-8 Width!104 "
                          "Width!-9223372036854775808 Width?8 "
                          "Gain=0.3 Gain!0.35 Gain!1.1 Gain!inf Gain!nan Gain!1,5 Gain?0.3 "
                          "Mode?On Mode=Auto Mode?7 Mode!auto Mode!1 "
                          "UserName!five! UserName?old UserName=four UserName?four "
                          "Table=0xff00 Table?0xff0003 Table!0xf Table!zz Table!01020304 "
                          "Table?0xff0003 Flag=true Flag?1 Flag!yes Flag?1"),
             QString());

    gain.setValidValues({0.35, 2});
    QCOMPARE(features.run("Gain=0.35 Gain!0.3"), QString());
    QCOMPARE(gain.GetListOfValidValues(true).size(), std::size_t(1));

    mode.entry("Off").setAccessMode(NA);
    QVERIFY(throws<GenICam::AccessException>([&] { mode.FromString("Off"); }));
    StringList_t symbolics;
    mode.GetSymbolics(symbolics);
    QCOMPARE(symbolics.size(), std::size_t(2));
    mode.change(99);
    QVERIFY(!mode.GetCurrentEntry());
    QVERIFY(throws<GenICam::OutOfRangeException>([&] { mode.ToString(); }));
}

void TestNodes::extremeValues()
{
    MemoryNodeMap map;
    auto &node = map.addInteger("Width");
    node.setLimits(INT64_MIN, INT64_MAX); // differences overflow
    node.setIncrement(2);
    node.SetValue(INT64_MAX - 1);
    QVERIFY(throws<GenICam::OutOfRangeException>([&] { node.SetValue(INT64_MAX); }));
    node.SetValue(INT64_MAX, false);
    QCOMPARE(node.GetValue(), int64_t(INT64_MAX));
    QVERIFY(throws<GenICam::OutOfRangeException>([&] { node.GetValue(true); }));

    auto &real = map.addFloat("Gain");
    real.setLimits(0, 1);
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    QVERIFY(throws<GenICam::OutOfRangeException>([&] { real.SetValue(notANumber); }));
}

/// Restrictions never extend the range of the node.
void TestNodes::restrictions()
{
    MemoryNodeMap map;
    auto &node = map.addInteger("Width");
    node.setLimits(0, 100);
    node.ImposeMin(10);
    node.ImposeMax(200);
    QCOMPARE(node.GetMin(), int64_t(10));
    QCOMPARE(node.GetMax(), int64_t(100));
    node.ImposeAccessMode(RO);
    QVERIFY(throws<GenICam::AccessException>([&] { node.SetValue(20); }));
    node.setAccessMode(WO);
    QCOMPARE(node.GetAccessMode(), NA);
    node.properties().visibility = Guru;
    node.ImposeVisibility(Expert);
    QCOMPARE(node.GetVisibility(), Guru);
}

void TestNodes::texts_data()
{
    QTest::addColumn<int>("representation");
    QTest::addColumn<qint64>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("decimal") << int(PureNumber) << qint64(-17) << "-17";
    QTest::newRow("hexadecimal") << int(HexNumber) << qint64(255) << "0xFF";
    QTest::newRow("negative hexadecimal") << int(HexNumber) << qint64(-1) << "0xFFFFFFFFFFFFFFFF";
    QTest::newRow("address") << int(IPV4Address) << qint64(0xC0A80102) << "192.168.1.2";
    QTest::newRow("MAC") << int(MACAddress) << qint64(0x11AABBCCDD) << "00:11:AA:BB:CC:DD";
}

void TestNodes::texts()
{
    QFETCH(int, representation);
    QFETCH(qint64, value);
    QFETCH(QString, text);
    MemoryNodeMap map;
    auto &node = map.addInteger("Number", value);
    node.setRepresentation(static_cast<ERepresentation>(representation));
    QCOMPARE(QString(node.ToString().c_str()), text);
    node.change(0);
    node.FromString(text.toUtf8().constData());
    QCOMPARE(node.GetValue(), value);
    for (const char *wrong : {"", "x", "1.2.3", "1.2.3.256", "0x", "12 3", "1:2", "1e3"})
        QVERIFY2(throws<GenICam::InvalidArgumentException>([&] { node.FromString(wrong); }), wrong);
    QCOMPARE(node.GetValue(), value);
}

void TestNodes::floatTexts()
{
    MemoryNodeMap map;
    auto &node = map.addFloat("Number", 1234.5678);
    QCOMPARE(node.ToString().c_str(), "1234.57");
    node.setNotation(fnFixed, 2);
    QCOMPARE(node.ToString().c_str(), "1234.57");
    node.setNotation(fnScientific, 3);
    QCOMPARE(node.ToString().c_str(), "1.235e+03");
    node.FromString(" -2.5e3 ");
    QCOMPARE(node.GetValue(), -2500.0);
}

void TestNodes::valuesAreReadOnce()
{
    MemoryNodeMap map;
    auto &node = map.addInteger("Width", 7);
    for (int i = 0; i < 3; ++i)
        node.GetValue();
    node.ToString();
    QCOMPARE(node.reads(), 1);

    // A refusal is cached, too; a time-out is not.
    node.InvalidateNode();
    node.onRead([] { throw GenICam::RuntimeException("refused", "", 0); });
    for (int i = 0; i < 3; ++i)
        QVERIFY(throws<GenICam::RuntimeException>([&] { node.GetValue(); }));
    QCOMPARE(node.reads(), 2);
    node.InvalidateNode();
    node.onRead([] { throw GenICam::TimeoutException("no answer", "", 0); });
    for (int i = 0; i < 3; ++i)
        QVERIFY(throws<GenICam::TimeoutException>([&] { node.GetValue(); }));
    QCOMPARE(node.reads(), 5);
    node.onRead({});
    map.InvalidateNodes();
    QCOMPARE(node.GetValue(), int64_t(7));
}

void TestNodes::writesInvalidateDependents()
{
    MemoryNodeMap map;
    auto &source = map.addInteger("Source");
    auto &middle = map.addInteger("Middle");
    auto &last = map.addInteger("Last");
    auto &other = map.addInteger("Other");
    middle.dependsOn(source);
    last.dependsOn(middle);
    source.dependsOn(last); // circular invalidation must end
    for (auto *node : {&source, &middle, &last, &other})
        node->GetValue();
    source.SetValue(1);
    for (auto *node : {&source, &middle, &last, &other})
        node->GetValue();
    QCOMPARE(last.reads(), 2);
    QCOMPARE(middle.reads(), 2);
    QCOMPARE(other.reads(), 1);

    NodeList_t depending;
    source.GetChildren(depending, ctDependingNodes);
    QCOMPARE(depending.size(), std::size_t(2));
}

void TestNodes::callbacksRunOncePerChange()
{
    MemoryNodeMap map;
    auto &source = map.addInteger("Source");
    auto &a = map.addInteger("A");
    auto &b = map.addInteger("B");
    auto &both = map.addInteger("Both");
    a.dependsOn(source);
    b.dependsOn(source);
    both.dependsOn(a);
    both.dependsOn(b);
    Recorder recorder;
    for (auto *node : {&source, &a, &b, &both}) {
        Register(node, recorder, &Recorder::note, cbPostInsideLock);
        Register(node, recorder, &Recorder::note, cbPostOutsideLock);
    }
    source.SetValue(3);
    QCOMPARE(recorder.calls, QStringList({"Source", "A", "B", "Both", "Source", "A", "B", "Both"}));
    recorder.calls.clear();
    both.SetValue(1);
    QCOMPARE(recorder.calls, QStringList({"Both", "Both"}));
    recorder.calls.clear();
    a.InvalidateNode();
    QCOMPARE(recorder.calls, QStringList());
}

void TestNodes::callbackTypes()
{
    MemoryNodeMap map;
    auto &node = map.addInteger("Width");
    QList<bool> locked;
    const auto note = [&](INode *) { locked << map.GetLock().IsHeldByThisThread(); };
    Register(&node, note, cbPostOutsideLock);
    Register(&node, note); // the default is inside the lock
    node.SetValue(1);
    QCOMPARE(locked, QList<bool>({true, false}));

    // A write in a callback: the callbacks outside the lock wait until the lock is released.
    auto &second = map.addInteger("Second");
    Recorder recorder;
    Register(&second, recorder, &Recorder::note, cbPostOutsideLock);
    Register(&node, [&](INode *) {
        second.SetValue(5);
        QVERIFY(recorder.calls.isEmpty());
    });
    node.SetValue(2);
    QCOMPARE(recorder.calls, QStringList("Second"));
}

void TestNodes::failedWritesCallNothing()
{
    MemoryNodeMap map;
    auto &node = map.addInteger("Width", 1);
    Recorder recorder;
    Register(&node, recorder, &Recorder::note);
    node.GetValue();
    node.onWrite([] { throw GenICam::AccessException("refused", "", 0); });
    QVERIFY(throws<GenICam::AccessException>([&] { node.SetValue(2); }));
    QCOMPARE(recorder.calls, QStringList());
    QCOMPARE(node.GetValue(), int64_t(1));
    QCOMPARE(node.reads(), 2); // the camera may have executed the write, so the value is read again
    QVERIFY(!map.GetLock().IsHeldByThisThread());
}

void TestNodes::callbacksMayDeregister()
{
    MemoryNodeMap map;
    auto &node = map.addInteger("Width");
    CallbackHandleType first = 0;
    CallbackHandleType second = 0;
    int calls = 0;
    first = Register(&node, [&](INode *) {
        ++calls;
        Deregister(first);
        Deregister(second);
        Register(&node, [&](INode *) { calls += 100; });
    });
    second = Register(&node, [&](INode *) { calls += 10; });
    Register(&node, [](INode *) { throw GenICam::RuntimeException("of a client", "", 0); });
    node.SetValue(1);
    QCOMPARE(calls, 1);
    node.SetValue(2);
    QCOMPARE(calls, 101);
    QVERIFY(!node.DeregisterCallback(first));
    Deregister(0);
}

void TestNodes::deregistrationWaitsForOtherThreads()
{
    MemoryNodeMap map;
    auto &node = map.addInteger("Width");
    std::atomic<bool> entered{false};
    std::atomic<bool> left{false};
    const CallbackHandleType handle = Register(
        &node,
        [&](INode *) {
            entered = true;
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
            left = true;
        },
        cbPostOutsideLock);
    std::thread writer([&] { node.SetValue(1); });
    while (!entered)
        std::this_thread::yield();
    Deregister(handle);
    const bool leftBefore = left;
    writer.join();
    QVERIFY(leftBefore);
}

QTEST_GUILESS_MAIN(TestNodes)
#include "tst_nodes.moc"
