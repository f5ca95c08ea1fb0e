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
    void asksOnlyWhenExpanded();
    void indexesAndData();
    void asksAgainWhereNothingWasFound();
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

void TestDeviceTreeModel::asksOnlyWhenExpanded()
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
    QCOMPARE(inserted.count(), 2);
    QCOMPARE(inserted.last(), (QVariantList{QVariant::fromValue(network), 0, 1}));

    expandAll(model);
    model.fetchMore(camera);
    QCOMPARE(m_system->masks.size(), size_t(1));
    QCOMPARE(m_network->refreshes.size(), size_t(1));
    QCOMPARE(m_nameless->refreshes.size(), size_t(1));
}

void TestDeviceTreeModel::indexesAndData()
{
    DeviceTreeModel model(m_system.get());
    expandAll(model);
    const QModelIndex network = model.index(0, 0);
    const QModelIndex camera = model.index(1, 0, network);
    QCOMPARE(network.data().toString(), QString::fromUtf8("Netz\xC3\xA4"
                                                          "dapter"));
    QCOMPARE(camera.data().toString(), QString::fromUtf8("\xE6\xA4\x9C\xE6\x9F\xBB"));
    QCOMPARE(network.data(Qt::UserRole).value<OrvCam::Interface *>(), m_network.get());
    QCOMPARE(camera.data(Qt::UserRole).value<OrvCam::DeviceInfo *>(),
             m_network->cameras.entries[1]);
    const QModelIndex nameless = model.index(1, 0);
    for (const QModelIndex &silent : {nameless, model.index(0, 0, nameless)}) {
        QCOMPARE(silent.data(), QVariant(QString()));
        QVERIFY(!silent.data(Qt::ToolTipRole).isValid());
        QCOMPARE(silent.flags() & ~Qt::ItemNeverHasChildren,
                 Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    }
    QCOMPARE(model.headerData(0, Qt::Horizontal), QVariant(QStringLiteral("Name")));
}

void TestDeviceTreeModel::asksAgainWhereNothingWasFound()
{
    auto &interfaces = m_system->interfaces;
    auto &cameras = m_network->cameras;
    const auto someInterfaces = interfaces.entries;
    const auto someCameras = cameras.entries;
    DeviceTreeModel model(m_system.get());

    interfaces.isNull = true;
    model.fetchMore(QModelIndex());
    interfaces.isNull = false;
    interfaces.entries.clear();
    model.fetchMore(QModelIndex());
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(interfaces.released, 1); // also when it is empty
    QVERIFY(model.canFetchMore(QModelIndex()));
    interfaces.entries = someInterfaces;
    model.fetchMore(QModelIndex());
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(m_system->masks.size(), size_t(3));

    const QModelIndex network = model.index(0, 0);
    cameras.isNull = true;
    model.fetchMore(network);
    cameras.isNull = false;
    cameras.entries.clear();
    model.fetchMore(network);
    QCOMPARE(model.rowCount(network), 0);
    QCOMPARE(cameras.handedOut, 1);
    QCOMPARE(cameras.released, 0); // an empty one stays with the system
    QVERIFY(model.hasChildren(network) && model.canFetchMore(network));
    cameras.entries = someCameras;
    model.fetchMore(network);
    QCOMPARE(model.rowCount(network), 2);
    QCOMPARE(cameras.released, 1);
    QCOMPARE(m_network->refreshes.size(), size_t(3));

    DeviceTreeModel withoutSystem(nullptr);
    withoutSystem.fetchMore(QModelIndex());
    QCOMPARE(withoutSystem.rowCount(), 0);
}

void TestDeviceTreeModel::rescans()
{
    DeviceTreeModel model(m_system.get());
    expandAll(model);
    const QPersistentModelIndex camera = model.index(0, 0, model.index(0, 0));
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    model.rescan();
    QCOMPARE(reset.count(), 1);
    QVERIFY(!camera.isValid());
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(m_system->masks.size(), size_t(1));

    m_network->cameras.entries.erase(m_network->cameras.entries.begin());
    expandAll(model);
    QCOMPARE(model.rowCount(model.index(0, 0)), 1);
    QCOMPARE(m_network->refreshes.size(), size_t(2));

    FakeInterface empty("Empty");
    m_system->interfaces.entries.push_back(&empty);
    QAbstractItemModelTester tester(&model); // fetches whatever it can
#if QT_VERSION >= QT_VERSION_CHECK(6, 4, 0)
    tester.setUseFetchMore(false); // it does so in the middle of a reset, too
#endif
    model.rescan();
    expandAll(model);
    QCOMPARE(model.rowCount(), 3);
}

QTEST_GUILESS_MAIN(TestDeviceTreeModel)
#include "tst_devicetreemodel.moc"
