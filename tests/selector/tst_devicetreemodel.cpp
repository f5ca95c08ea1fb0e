// SPDX-License-Identifier: MIT
#include "fakecameras.h"
#include "selector/devicetreemodel.h"

#include <QAbstractItemModelTester>
#include <QtTest>

class TestDeviceTreeModel : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void listsCamerasWhenExpanded();
    void listsAgainAfterEmptyResult();
    void rescans();

private:
    void expandAll(QAbstractItemModel &model);

    std::unique_ptr<FakeInterface> m_network;
    std::unique_ptr<FakeInterface> m_nameless;
    std::unique_ptr<FakeSystem> m_system;
};

void TestDeviceTreeModel::init()
{
    m_network.reset(new FakeInterface("Netz\xC3\xA4"
                                      "dapter",
                                      OrvCam::TransportGigEVision));
    m_network->add("First");
    m_network->add("\xE6\xA4\x9C\xE6\x9F\xBB");
    m_nameless.reset(new FakeInterface);
    m_nameless->add(nullptr);
    m_system.reset(new FakeSystem);
    m_system->interfaces.entries = {m_network.get(), m_nameless.get()};
}

void TestDeviceTreeModel::expandAll(QAbstractItemModel &model)
{
    model.fetchMore(QModelIndex());
    for (int row = 0; row < model.rowCount(); ++row)
        model.fetchMore(model.index(row, 0));
}

void TestDeviceTreeModel::listsCamerasWhenExpanded()
{
    DeviceTreeModel model(m_system.get());
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QVERIFY(model.hasChildren() && model.canFetchMore(QModelIndex()));
    QCOMPARE(model.rowCount(), 0);
    QVERIFY(m_system->masks.empty());

    model.fetchMore(QModelIndex());
    QCOMPARE(m_system->masks, std::vector<uint32_t>{255});
    QCOMPARE(m_system->interfaces.released, 1);
    QCOMPARE(model.rowCount(), 2);
    QVERIFY(!model.canFetchMore(QModelIndex()));
    QVERIFY(m_network->refreshes.empty());

    const QModelIndex network = model.index(0, 0);
    QVERIFY(model.hasChildren(network) && model.canFetchMore(network));
    model.fetchMore(network);
    QCOMPARE(m_network->refreshes, std::vector<uint32_t>{200});
    QVERIFY(!m_network->wasAskedForChanges);
    QCOMPARE(m_network->cameras.released, 1);
    QCOMPARE(model.rowCount(network), 2);
    const QModelIndex camera = model.index(1, 0, network);
    QVERIFY(!model.hasChildren(camera) && !model.canFetchMore(camera));
    QCOMPARE(camera.data().toString(), QString::fromUtf8("\xE6\xA4\x9C\xE6\x9F\xBB"));
    QCOMPARE(model.index(1, 0).data(), QVariant(QString())); // without a description
    QCOMPARE(inserted.count(), 2);
    QCOMPARE(inserted.last(), (QVariantList{QVariant::fromValue(network), 0, 1}));

    expandAll(model);
    model.fetchMore(camera);
    QCOMPARE(m_system->masks.size(), size_t(1));
    QCOMPARE(m_network->refreshes.size(), size_t(1));
    QCOMPARE(m_nameless->refreshes.size(), size_t(1));
}

void TestDeviceTreeModel::listsAgainAfterEmptyResult()
{
    auto &interfaces = m_system->interfaces;
    auto &cameras = m_network->cameras;
    const auto someInterfaces = std::exchange(interfaces.entries, {});
    const auto someCameras = std::exchange(cameras.entries, {});
    DeviceTreeModel model(m_system.get());
    model.fetchMore(QModelIndex());
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(interfaces.released, 1); // empty lists of interfaces are released, too
    QVERIFY(model.canFetchMore(QModelIndex()));
    interfaces.entries = someInterfaces;
    model.fetchMore(QModelIndex());
    QCOMPARE(model.rowCount(), 2);

    const QModelIndex network = model.index(0, 0);
    model.fetchMore(network);
    QCOMPARE(model.rowCount(network), 0);
    QCOMPARE(cameras.released, 0); // an empty list of cameras still belongs to the system
    QVERIFY(model.hasChildren(network) && model.canFetchMore(network));
    cameras.entries = someCameras;
    model.fetchMore(network);
    QCOMPARE(model.rowCount(network), 2);
    QCOMPARE(cameras.released, 1);
}

void TestDeviceTreeModel::rescans()
{
    DeviceTreeModel model(m_system.get());
    expandAll(model);
    const QPersistentModelIndex camera = model.index(0, 0, model.index(0, 0));
    model.rescan();
    QVERIFY(!camera.isValid());
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(m_system->masks.size(), size_t(1));

    FakeInterface empty("Empty");
    m_system->interfaces.entries.push_back(&empty);
    QAbstractItemModelTester tester(&model); // fetches everything
#if QT_VERSION >= QT_VERSION_CHECK(6, 4, 0)
    tester.setUseFetchMore(false); // it would fetch during a reset
#endif
    model.rescan();
    expandAll(model);
    QCOMPARE(model.rowCount(), 3);
}

QTEST_GUILESS_MAIN(TestDeviceTreeModel)
#include "tst_devicetreemodel.moc"
