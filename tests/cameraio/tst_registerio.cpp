// SPDX-License-Identifier: MIT
#include <cameraio/registerio.h>

#include <QtTest>

#include <atomic>
#include <mutex>
#include <set>
#include <thread>

using namespace OrvCameraIo;
using OrvGenApi::RegisterWrite;
using std::chrono::milliseconds;

namespace {

/// A camera with 4-byte registers and adjustable faults.
struct Camera
{
    std::atomic<bool> isThere{true};
    std::atomic<bool> isForgetful{false};
    std::atomic<int> delayMs{0};
    std::atomic<std::size_t> inTime{SIZE_MAX}; ///< registers of a batch within the time limit
    std::atomic<int> commands{0};
    std::atomic<int> reopenings{0};

    std::mutex mutex; ///< protects the following members
    std::map<uint64_t, std::vector<uint8_t>> memory;
    std::set<uint64_t> mute; ///< addresses without an answer
    std::vector<std::size_t> batches;

    std::vector<uint8_t> at(uint64_t address)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        return memory[address];
    }
};

class FakePort final : public Port
{
public:
    explicit FakePort(Camera &camera) : m_camera(camera) {}

    std::size_t batchSize() const override { return 4; }

    void read(std::vector<ReadTransfer> &batch) override
    {
        const bool answers = command();
        const std::lock_guard<std::mutex> lock(m_camera.mutex);
        m_camera.batches.push_back(batch.size());
        const bool isMute = std::any_of(batch.begin(), batch.end(), [&](const auto &read) {
            return m_camera.mute.count(read.range.address) != 0;
        });
        std::size_t left = m_camera.inTime;
        for (ReadTransfer &read : batch) {
            if (left-- == 0)
                break;
            read.status = answers && !isMute ? Status::Done : Status::NoAnswer;
            read.bytes = m_camera.memory[read.range.address];
            read.bytes.resize(read.range.size);
        }
    }

    Status write(uint64_t address, const std::vector<uint8_t> &bytes) override
    {
        if (!command())
            return Status::NoAnswer;
        const std::lock_guard<std::mutex> lock(m_camera.mutex);
        m_camera.memory[address] = bytes;
        return Status::Done;
    }

    Presence probe() override
    {
        if (!m_camera.isThere)
            return Presence::Silent;
        return m_camera.isForgetful ? Presence::Forgotten : Presence::Answers;
    }

    bool reopen(const std::function<bool()> &) override
    {
        ++m_camera.reopenings;
        m_camera.isForgetful = !m_camera.isThere;
        return m_camera.isThere;
    }

private:
    bool command()
    {
        ++m_camera.commands;
        std::this_thread::sleep_for(milliseconds(m_camera.delayMs));
        return m_camera.isThere;
    }

    Camera &m_camera;
};

struct EventCounter : RegisterIoListener
{
    std::atomic<int> answers{0};
    std::atomic<int> losses{0};
    std::atomic<int> finds{0};

    void answersAgain() override { ++answers; }
    void lost() override { ++losses; }
    void found() override { ++finds; }
};

RegisterRange word(uint64_t address)
{
    return {address, 4};
}

} // namespace

class TestRegisterIo : public QObject
{
    Q_OBJECT

private slots:
    void cachesTransferredRegisters();
    void fieldsShareOneRegister();
    void waitingCallersGoFirst();
    void remainderIsReadNext();
    void droppedRequestIsNotAnswered();
    void lostCameraCostsOneTimeout();
    void unansweredRegisterIsSkipped();
    void lostCameraIsFound_data();
    void lostCameraIsFound();
};

void TestRegisterIo::cachesTransferredRegisters()
{
    Camera camera;
    camera.memory[0] = {1, 2, 3, 4};
    RegisterIo io(std::make_unique<FakePort>(camera));
    QVERIFY(!io.look(word(0), 0).isKnown);
    io.read({word(0), {0, 2}, word(8)});
    QCOMPARE(io.look(word(0), 0).bytes, (std::vector<uint8_t>{1, 2, 3, 4}));
    QCOMPARE(io.look({0, 2}, 0).bytes, (std::vector<uint8_t>{1, 2}));

    // A write invalidates overlapping ranges and stores the range that was written.
    QCOMPARE(io.write({{2, {7, 7, 7, 7}, {}}}), Status::Done);
    QVERIFY(!io.look(word(0), 0).isKnown);
    QVERIFY(io.look({0, 2}, 0).isKnown);
    QVERIFY(io.look(word(8), 0).isKnown);
    QCOMPARE(io.look(word(2), 0).bytes, (std::vector<uint8_t>(4, 7)));
    QVERIFY(!io.look(word(2), io.now()).isKnown);
    QTest::qSleep(3);
    QVERIFY(!io.look(word(8), 0, milliseconds(1)).isKnown);
    QVERIFY(io.look(word(8), 0, milliseconds(60000)).isKnown);
}

void TestRegisterIo::fieldsShareOneRegister()
{
    Camera camera;
    camera.memory[0] = {0, 0, 0, 0};
    RegisterIo io(std::make_unique<FakePort>(camera));
    const auto setByte = [&](std::size_t i, uint8_t value) {
        RegisterWrite write{0, {0, 0, 0, 0}, {0, 0, 0, 0}};
        write.bytes[i] = value;
        write.mask[i] = 0xF0;
        return io.write({write});
    };
    std::thread other([&] {
        for (int i = 0; i < 200; ++i)
            setByte(3, 0x5F);
    });
    for (int i = 0; i < 200; ++i)
        QCOMPARE(setByte(0, 0xAF), Status::Done);
    other.join();
    QCOMPARE(camera.at(0), (std::vector<uint8_t>{0xA0, 0, 0, 0x50}));

    // A cached register may be stale: it is read again before one of its fields is written.
    io.read({word(0)});
    camera.memory[0][1] = 9;
    RegisterWrite write{0, {0x01, 0, 0, 0}, {0x0F, 0, 0, 0}};
    write.staleSince = io.now();
    QCOMPARE(io.write({write}), Status::Done);
    QCOMPARE(camera.at(0), (std::vector<uint8_t>{0xA1, 9, 0, 0x50}));
}

void TestRegisterIo::waitingCallersGoFirst()
{
    Camera camera;
    camera.delayMs = 20;
    RegisterIo io(std::make_unique<FakePort>(camera));
    std::vector<RegisterRange> page;
    for (uint64_t i = 0; i < 40; ++i)
        page.push_back(word(4 * i));
    std::atomic<bool> isDone{false};
    const auto request = io.readLater(page, [&] { isDone = true; });
    while (camera.commands == 0)
        std::this_thread::yield();
    io.read({word(1000)});
    QVERIFY(io.look(word(1000), 0).isKnown);
    QVERIFY(!isDone);
    QTRY_VERIFY(isDone);
    QCOMPARE(camera.commands.load(), 11); // ten commands of four registers, and the other register
}

void TestRegisterIo::remainderIsReadNext()
{
    Camera camera;
    camera.inTime = 3;
    RegisterIo io(std::make_unique<FakePort>(camera));
    EventCounter events;
    io.setListener(&events);
    std::vector<RegisterRange> page;
    for (uint64_t i = 0; i < 10; ++i)
        page.push_back(word(4 * i));
    io.read(page);
    for (const RegisterRange &range : page)
        QCOMPARE(io.look(range, 0).status, Status::Done);
    QCOMPARE(camera.batches, (std::vector<std::size_t>{4, 4, 4, 1}));
    QCOMPARE(io.transactions().reads, uint64_t(10));

    // Silence, in contrast, ends the reading.
    camera.isThere = false;
    io.read({word(100), word(104), word(108), word(112)});
    QCOMPARE(camera.batches.size(), std::size_t(5));
    QCOMPARE(io.look(word(112), 0).status, Status::NoAnswer);
    QVERIFY(io.isSilent());
    io.setListener(nullptr);
}

void TestRegisterIo::droppedRequestIsNotAnswered()
{
    Camera camera;
    camera.delayMs = 5;
    RegisterIo io(std::make_unique<FakePort>(camera));
    std::atomic<int> called{0};
    for (int i = 0; i < 10; ++i) {
        auto request = io.readLater({word(0), word(4)}, [&] { ++called; });
        if (i % 2)
            std::this_thread::sleep_for(milliseconds(2));
        request.reset();
        const int now = called;
        std::this_thread::sleep_for(milliseconds(10));
        QCOMPARE(called.load(), now);
    }
}

void TestRegisterIo::lostCameraCostsOneTimeout()
{
    Camera camera;
    RegisterIo io(std::make_unique<FakePort>(camera));
    EventCounter events;
    io.setListener(&events);
    camera.isThere = false;
    io.read({word(0)});
    QCOMPARE(io.look(word(0), 0).status, Status::NoAnswer);
    const int sent = camera.commands;
    io.read({word(4), word(8)});
    QCOMPARE(io.write({{0, {1, 2, 3, 4}, {}}}), Status::NoAnswer);
    QCOMPARE(camera.commands.load(), sent);
    QCOMPARE(io.look(word(4), 0).status, Status::NoAnswer);

    camera.isThere = true;
    QTRY_COMPARE(events.answers.load(), 1);
    QVERIFY(!io.look(word(0), 0).isKnown && !io.look(word(4), 0).isKnown);
    io.read({word(4)});
    QCOMPARE(io.look(word(4), 0).status, Status::Done);
    QCOMPARE(events.losses.load(), 0);
    io.setListener(nullptr);
}

void TestRegisterIo::unansweredRegisterIsSkipped()
{
    Camera camera;
    camera.mute = {8};
    RegisterIo io(std::make_unique<FakePort>(camera));
    EventCounter events;
    io.setListener(&events);
    const std::vector<RegisterRange> page{word(0), word(4), word(8), word(12)};
    for (int round = 0; round < 6 && io.look(word(8), 0).status != Status::Failed; ++round) {
        io.read(page);
        QTRY_VERIFY(!io.isSilent());
    }
    QCOMPARE(io.look(word(8), 0).status, Status::Failed);
    io.read({word(0), word(4), word(12)});
    for (uint64_t address : {0, 4, 12})
        QCOMPARE(io.look(word(address), 0).status, Status::Done);
    QCOMPARE(events.losses.load(), 0);
    io.setListener(nullptr);
}

void TestRegisterIo::lostCameraIsFound_data()
{
    QTest::addColumn<bool>("isForgetful");
    QTest::newRow("it still knows us") << false;
    QTest::newRow("it was switched off and on") << true;
}

void TestRegisterIo::lostCameraIsFound()
{
    QFETCH(bool, isForgetful);
    Camera camera;
    RegisterIo io(std::make_unique<FakePort>(camera));
    EventCounter events;
    io.setListener(&events);
    io.read({word(0)});
    camera.isThere = false;
    QTRY_COMPARE(events.losses.load(), 1);
    QVERIFY(io.isLost());
    io.read({word(4)});
    QCOMPARE(io.look(word(4), 0).status, Status::NoAnswer);

    camera.isForgetful = isForgetful;
    camera.isThere = true;
    QTRY_COMPARE(events.finds.load(), 1);
    QVERIFY(!io.look(word(0), 0).isKnown);
    io.read({word(0)});
    QCOMPARE(io.look(word(0), 0).status, Status::Done);
    io.setListener(nullptr);
}

QTEST_GUILESS_MAIN(TestRegisterIo)
#include "tst_registerio.moc"
