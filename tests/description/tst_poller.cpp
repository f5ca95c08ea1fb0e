// SPDX-License-Identifier: MIT
#include <cameraapi/nodemaparray.h>
#include <description/nodemap.h>

#include <GenApi/GenApi.h>
#include <OrvGenParam.h>

#include <QAbstractEventDispatcher>
#include <QtTest>

#include <map>

using OrvCameraIo::ReadTransfer;
using OrvCameraIo::Status;
using OrvDescription::Description;
using OrvDescription::NodeMap;

namespace {

std::string intReg(const char *name, const char *address, const char *more = "")
{
    return std::string("<IntReg Name='") + name + "'>" + more + "<Address>" + address +
           "</Address><Length>4</Length><AccessMode>RO</AccessMode><pPort>Device</pPort>"
           "<Endianess>BigEndian</Endianess></IntReg>";
}

/// Two features of a register that is polled, and one that depends on it.
std::string description()
{
    return "<RegisterDescription ModelName='Model' VendorName='Vendor' StandardNameSpace='None'"
           " SchemaMajorVersion='1' SchemaMinorVersion='1' SchemaSubMinorVersion='0'"
           " MajorVersion='1' MinorVersion='0' SubMinorVersion='0' ProductGuid='1' VersionGuid='2'"
           " xmlns='http://www.genicam.org/GenApi/Version_1_1'>"
           "<Category Name='Root'><pFeature>Live</pFeature><pFeature>Sibling</pFeature>"
           "<pFeature>Dependent</pFeature><pFeature>Slow</pFeature></Category>"
           "<Integer Name='Live'><PollingTime>100</PollingTime><pValue>LiveReg</pValue></Integer>"
           "<Integer Name='Sibling'><pValue>LiveReg</pValue></Integer>" +
           intReg("LiveReg", "0") +
           intReg("Dependent", "4", "<pInvalidator>LiveReg</pInvalidator>") +
           intReg("Slow", "8", "<PollingTime>1000</PollingTime>") +
           "<Port Name='Device'/></RegisterDescription>";
}

struct Camera
{
    std::map<uint64_t, uint8_t> values; ///< of the registers' last bytes
    std::vector<uint64_t> reads;        ///< addresses

    std::vector<uint64_t> takeReads() { return std::exchange(reads, {}); }
};

class CountingPort final : public OrvCameraIo::Port
{
public:
    explicit CountingPort(Camera &camera) : m_camera(camera) {}
    bool isImmediate() const override { return true; }
    std::size_t batchSize() const override { return SIZE_MAX; }

    void read(std::vector<ReadTransfer> &batch) override
    {
        for (ReadTransfer &read : batch) {
            m_camera.reads.push_back(read.range.address);
            read.bytes = {0, 0, 0, m_camera.values[read.range.address]};
            read.status = Status::Done;
        }
    }

    Status write(uint64_t, const std::vector<uint8_t> &) override { return Status::AccessDenied; }

private:
    Camera &m_camera;
};

using Addresses = std::vector<uint64_t>;

} // namespace

class TestPoller : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void onlyChangesAreTold();
    void waitingForChangesKeepsPolling();
    void whatIsNotLookedAtIsOutdated();

private:
    int64_t value(const char *name)
    {
        return GenApi::CIntegerPtr(m_map->GetNode(name))->GetValue();
    }
    void watch(const char *name)
    {
        GenApi::Register(m_map->GetNode(name), [this](GenApi::INode *node) {
            m_told << QString::fromLatin1(node->GetName().c_str());
        });
    }

    /// The addresses that are read.
    Addresses poll(int64_t elapsedMs)
    {
        m_camera.takeReads();
        m_told.clear();
        m_map->pollLater(elapsedMs);
        while (QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)) {
        }
        return m_camera.takeReads();
    }

    Camera m_camera;
    QStringList m_told;
    std::unique_ptr<NodeMap> m_map;
};

void TestPoller::init()
{
    m_map.reset();
    m_camera = {};
    m_map = std::make_unique<NodeMap>(Description::shared(description(), "test"),
                                      std::make_unique<CountingPort>(m_camera));
}

void TestPoller::onlyChangesAreTold()
{
    for (const char *name : {"Live", "Sibling", "Dependent", "Slow"}) {
        watch(name);
        value(name);
    }
    QCOMPARE(poll(99), Addresses());
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(poll(i == 0 ? 1 : 100), Addresses({0}));
        QCOMPARE(m_told, QStringList());
        for (const char *name : {"Live", "Sibling", "Dependent"})
            value(name);
        QCOMPARE(m_camera.takeReads(), Addresses());
    }

    m_camera.values[0] = 7;
    m_camera.values[4] = 8;
    QCOMPARE(poll(100), Addresses({0}));
    m_told.sort();
    QCOMPARE(m_told, QStringList({"Dependent", "Live", "Sibling"}));
    QCOMPARE(value("Live"), int64_t(7)); // as it was polled
    QCOMPARE(value("Sibling"), int64_t(7));
    QCOMPARE(m_camera.takeReads(), Addresses());
    QCOMPARE(value("Dependent"), int64_t(8));
    QCOMPARE(poll(100), Addresses({0}));
    QCOMPARE(m_told, QStringList());
    QCOMPARE(poll(1000), Addresses({0, 8})); // all that are due in one batch
}

void TestPoller::waitingForChangesKeepsPolling()
{
    struct Sink : OrvGenParam::ParamEventSink
    {
        void OnParameterUpdate(OrvGenParam::Param *) override { ++count; }
        int count = 0;
    } sink;
    const OrvGenParam::NodeMapArray array(*m_map);
    array.GetInt("Live")->RegisterEventSink(&sink);
    QCOMPARE(poll(100), Addresses({0})); // so that there is something to compare with
    QCOMPARE(sink.count, 0);
    for (int i = 1; i <= 3; ++i) {
        m_camera.values[0] = static_cast<uint8_t>(i);
        QCOMPARE(poll(100), Addresses({0}));
        QCOMPARE(sink.count, i);
        QCOMPARE(poll(100), Addresses({0}));
        QCOMPARE(sink.count, i);
    }
}

void TestPoller::whatIsNotLookedAtIsOutdated()
{
    QCOMPARE(poll(100), Addresses());
    value("Live");
    QCOMPARE(poll(100), Addresses({0}));
    m_camera.values[0] = 1;
    QCOMPARE(poll(100), Addresses({0})); // the last time, as the change is not looked at
    m_camera.values[0] = 2;
    QCOMPARE(poll(100), Addresses());
    QCOMPARE(value("Live"), int64_t(2));
    QCOMPARE(poll(100), Addresses({0}));
}

QTEST_GUILESS_MAIN(TestPoller)
#include "tst_poller.moc"
