// SPDX-License-Identifier: MIT
#include <genparamtreemodel.h>
#include <simulatednodemap.h>

#include <QtTest>

namespace {

QString nameOf(const QModelIndex &cell)
{
    return cell.data(Qt::UserRole).value<GenApi::IValue *>()->GetNode()->GetName().c_str();
}

/// The painted values of all cells, by feature; only the first cell of a feature that occurs twice.
void paintAll(const QAbstractItemModel &model, QMap<QString, QString> &cells,
              const QModelIndex &parent = QModelIndex())
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex cell = model.index(row, 1, parent);
        const QString text = cell.data().toString() +
                             (cell.data(Qt::ForegroundRole).isValid() ? " grey" : "") +
                             (cell.flags() & Qt::ItemIsEditable ? " editable" : "");
        if (!cells.contains(nameOf(cell)))
            cells[nameOf(cell)] = text;
        paintAll(model, cells, model.index(row, 0, parent));
    }
}

} // namespace

/// The cells that change when a feature of the simulated camera changes.
class TestRefresh : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void selectorRefreshesSelectedFeatures();
    void everyVisibleChangeIsReported_data();
    void everyVisibleChangeIsReported();
    void pollingRefreshesPolledFeatures();

private:
    QSet<QString> refreshedBy(const std::function<void()> &change);

    std::unique_ptr<OrvSimulation::SimulatedCamera> m_camera;
    std::unique_ptr<OrvDescription::NodeMap> m_map;
    std::unique_ptr<GenParamTreeModel> m_model;
};

void TestRefresh::init()
{
    m_camera = std::make_unique<OrvSimulation::SimulatedCamera>();
    m_map = openNodeMap(*m_camera);
    m_model = std::make_unique<GenParamTreeModel>(m_map.get(), nullptr);
}

void TestRefresh::cleanup()
{
    m_model.reset();
    m_map.reset();
    m_camera.reset();
}

QSet<QString> TestRefresh::refreshedBy(const std::function<void()> &change)
{
    QSignalSpy changes(m_model.get(), &QAbstractItemModel::dataChanged);
    change();
    QSet<QString> names;
    for (const QList<QVariant> &signal : changes) {
        const auto cell = signal.at(0).toModelIndex();
        if (cell.column() != 1 || signal.at(1).toModelIndex() != cell)
            QTest::qFail("only value cells change", __FILE__, __LINE__);
        names << nameOf(cell);
    }
    return names;
}

void TestRefresh::selectorRefreshesSelectedFeatures()
{
    GenApi::CEnumerationPtr selector(m_map->GetNode("LUTSelector"));
    const QSet<QString> refreshed = refreshedBy([&] { selector->FromString("Red"); });
    QCOMPARE(refreshed, QSet<QString>({"LUTSelector", "LUTValue", "LUTValueAll"}));

    const QSet<QString> perFrame = refreshedBy(
        [&] { GenApi::CEnumerationPtr(m_map->GetNode("FrameAB_Selector"))->FromString("FrameB"); });
    QVERIFY(perFrame.contains("FrameAB_Selector") && perFrame.contains("Frame_BlackLevel"));
    QVERIFY(perFrame.contains("CurrentExposureTime")); // computed from the selected frame
    for (const char *other : {"PixelFormat", "RedCoefficient", "TriggerMode", "PixelClock",
                              "FrameMode", "Strobe1Delay", "GevCurrentIPAddress", "LUTValue"})
        QVERIFY2(!perFrame.contains(other), other);
}

void TestRefresh::everyVisibleChangeIsReported_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<QString>("value");
    for (const auto &[feature, value] : {std::make_pair("FrameAB_Selector", "FrameB"),
                                         {"FrameMode", "DualVideo"},
                                         {"TriggerMode", "On"},
                                         {"Frame_ExposureLines", "500"},
                                         {"Frame_Width", "1024"},
                                         {"Frame_DecimationMode", "Subsampling"},
                                         {"PulseGenMode", "Burst"},
                                         {"DeviceUserDefinedName", "Left"}})
        QTest::newRow(feature) << QString(feature) << QString(value);
}

void TestRefresh::everyVisibleChangeIsReported()
{
    QFETCH(QString, feature);
    QFETCH(QString, value);
    QMap<QString, QString> before;
    paintAll(*m_model, before);
    const QSet<QString> refreshed = refreshedBy([&] {
        GenApi::CValuePtr node(m_map->GetNode(feature.toUtf8().constData()));
        try {
            node->FromString(value.toUtf8().constData());
        } catch (const GenICam::GenericException &e) {
            QTest::qFail(e.what(), __FILE__, __LINE__);
        }
    });
    QVERIFY(refreshed.contains(feature));

    // A view repaints only the reported cells; all other cells must be unchanged.
    m_map->InvalidateNodes();
    QMap<QString, QString> after;
    paintAll(*m_model, after);
    for (auto cell = after.constBegin(); cell != after.constEnd(); ++cell) {
        if (!refreshed.contains(cell.key()))
            QVERIFY2(cell.value() == before[cell.key()],
                     qPrintable(QString("%1: '%2' became '%3'")
                                    .arg(cell.key(), before[cell.key()], cell.value())));
    }
}

void TestRefresh::pollingRefreshesPolledFeatures()
{
    QMap<QString, QString> cells;
    paintAll(*m_model, cells);
    const uint64_t reads = m_map->transactions().reads;
    const QSet<QString> refreshed = refreshedBy([&] { m_map->Poll(10000); });
    QVERIFY(refreshed.contains("CurrentTemperature") && refreshed.contains("DeviceTemperature"));
    QVERIFY(!refreshed.contains("Width") && !refreshed.contains("Frame_ExposureLines"));
    paintAll(*m_model, cells);
    // At most one transaction per polled feature; some share a register.
    QVERIFY(m_map->transactions().reads - reads <= uint64_t(refreshed.size()));
}

QTEST_MAIN(TestRefresh)
#include "tst_refresh.moc"
