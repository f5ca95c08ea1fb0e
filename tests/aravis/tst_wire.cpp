// SPDX-License-Identifier: MIT

// Before Qt, whose keywords are names in GLib.
#include <arv.h>

#include "gvcpcounter.h"

#include "../genparamtree/treecells.h"

#include <OrvCam.h>
#include <OrvGenParam.h>
#include <orvcameraapi-aravis.h>

#include <QtTest>

namespace {

/// What another client of the camera finds, or complains of.
QString askedElsewhere(const QStringList &question)
{
    QProcess tool;
    tool.setProcessChannelMode(QProcess::MergedChannels);
    tool.start("arv-tool-0.8", QStringList("--address=127.0.0.1") + question);
    tool.waitForFinished(20000);
    return QString::fromUtf8(tool.readAll());
}

/// Reads everything that a view can ask of the cells.
void readAllCells(const QAbstractItemModel &model, const QModelIndex &parent = QModelIndex())
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        for (int column = 0; column < model.columnCount(parent); ++column) {
            const QModelIndex cell = model.index(row, column, parent);
            for (int role : {Qt::DisplayRole, Qt::EditRole, Qt::ForegroundRole, Qt::BackgroundRole,
                             Qt::ToolTipRole, Qt::WhatsThisRole, Qt::FontRole})
                model.data(cell, role);
            model.flags(cell);
        }
        readAllCells(model, model.index(row, 0, parent));
    }
}

} // namespace

/// The feature tree of a camera on a GigE Vision network, its transactions counted on the wire.
/// The camera is Aravis's own fake one, served by another process; the network is the loopback
/// device of a network namespace of our own.
class TestWire : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void everyRegisterIsReadOnce();
    void readingAgainIsFree();
    void aWriteCostsItselfAndItsDependents();
    void aSelectorCostsWhatItSelects();
    void anotherClientSeesTheValue();
    void aSilentCameraCostsOneWait();

private:
    QProcess m_process;
    QScopedPointer<GvcpCounter> m_wire;
    ArvDevice *m_device = nullptr;
    OrvCam::Device *m_camera = nullptr;
    GenApi::INodeMap *m_map = nullptr;
    QScopedPointer<GenParamTreeModel> m_model;
};

void TestWire::initTestCase()
{
    m_wire.reset(new GvcpCounter);
    QVERIFY2(m_wire->isListening(), "the test must be root of its network namespace");
    m_process.start("arv-fake-gv-camera-0.8",
                    {"--interface=127.0.0.1", "--serial=WIRE", "--genicam=" ORV_DESCRIPTION});
    QVERIFY(m_process.waitForStarted());

    GInetAddress *address = g_inet_address_new_from_string("127.0.0.1");
    const auto open = [&] {
        if (!m_device)
            m_device = arv_gv_device_new(address, address, nullptr);
        return m_device != nullptr;
    };
    QTRY_VERIFY_WITH_TIMEOUT(open(), 20000);
    g_object_unref(address);
    m_wire->take();

    // Opening reads no feature.
    m_camera = OrvCam_AdoptArvDevice(m_device, nullptr);
    QVERIFY(m_camera);
    m_map = m_camera->GetParamArray()->GetNodeMap();
    m_model.reset(new GenParamTreeModel(m_map, nullptr));
    QCOMPARE(m_wire->take().size(), 6); // the registers that say who it is
}

void TestWire::cleanupTestCase()
{
    m_model.reset();
    OrvCam_ReleaseDevice(m_camera);
    g_clear_object(&m_device);
    m_process.terminate();
    m_process.waitForFinished();
}

void TestWire::everyRegisterIsReadOnce()
{
    readAllCells(*m_model);
    const QList<GvcpCommand> commands = m_wire->take();
    QVERIFY(readsIn(commands) > 50);
    QCOMPARE(writesIn(commands), 0);
    QCOMPARE(registersReadTwice(commands), QString());
}

void TestWire::readingAgainIsFree()
{
    readAllCells(*m_model);
    QCOMPARE(m_wire->take().size(), 0);
}

void TestWire::aWriteCostsItselfAndItsDependents()
{
    // The exposure goes into times that are computed from it, in no other register.
    QVERIFY(m_model->setData(valueCell(*m_model, "Frame_ExposureLines"), 1234));
    readAllCells(*m_model);
    const QList<GvcpCommand> commands = m_wire->take();
    QCOMPARE(writesIn(commands), 1);
    QCOMPARE(readsIn(commands), 0);
}

void TestWire::aSelectorCostsWhatItSelects()
{
    const QModelIndex exposure = valueCell(*m_model, "Frame_ExposureLines");
    QVERIFY(m_model->setData(valueCell(*m_model, "FrameAB_Selector"), "FrameB"));
    readAllCells(*m_model);
    const QList<GvcpCommand> commands = m_wire->take();
    QCOMPARE(writesIn(commands), 1);
    QCOMPARE(registersReadTwice(commands), QString());
    QCOMPARE(exposure.data().toInt(), 0);

    // Every register that was read belongs to a feature that the selector changes.
    GenApi::NodeList_t depending;
    m_map->GetNode("FrameAB_Selector")->GetChildren(depending, GenApi::ctDependingNodes);
    QSet<quint32> addresses;
    for (GenApi::INode *node : depending) {
        if (GenApi::CIntegerPtr(node).IsValid() && !node->IsFeature()) {
            ArvGcNode *reg =
                arv_gc_get_node(arv_device_get_genicam(m_device), node->GetName().c_str());
            if (reg && ARV_IS_GC_REGISTER(reg))
                addresses << quint32(arv_gc_register_get_address(ARV_GC_REGISTER(reg), nullptr));
        }
    }
    m_wire->take();
    QVERIFY(readsIn(commands) > 5);
    for (const GvcpCommand &command : commands) {
        if (command.isRead())
            QVERIFY2(addresses.contains(command.address),
                     qPrintable(QString::number(command.address, 16)));
    }

    QVERIFY(m_model->setData(valueCell(*m_model, "FrameAB_Selector"), "FrameA"));
    QCOMPARE(exposure.data().toInt(), 1234);
}

void TestWire::anotherClientSeesTheValue()
{
    QVERIFY(m_model->setData(valueCell(*m_model, "Frame_ExposureLines"), 777));
    QVERIFY(m_model->setData(valueCell(*m_model, "DeviceUserDefinedName"), "Left camera"));
    const QString lines = askedElsewhere({"control", "Frame_ExposureLines"});
    QVERIFY2(lines.contains("Frame_ExposureLines = 777"), qPrintable(lines));
    const QString name = askedElsewhere({"control", "DeviceUserDefinedName"});
    QVERIFY2(name.contains("Left camera"), qPrintable(name));

    // Nothing in the description is amiss for anybody.
    const QString all = askedElsewhere({"values"});
    QVERIFY2(all.contains("'Root'") && all.contains("'GevSCDA'"), qPrintable(all));
    QVERIFY2(!all.contains("rror") && !all.contains("ailed"), qPrintable(all));
}

void TestWire::aSilentCameraCostsOneWait()
{
    m_process.kill();
    m_process.waitForFinished();
    GenApi::CIntegerPtr lines(m_map->GetNode("Frame_ExposureLines"));
    QElapsedTimer timer;
    timer.start();
    QVERIFY_EXCEPTION_THROWN(lines->SetValue(778), GenICam::TimeoutException);
    const qint64 firstWait = timer.restart();
    m_map->InvalidateNodes();
    QVERIFY(!m_model->setData(valueCell(*m_model, "Frame_ExposureLines"), 779));
    readAllCells(*m_model);
    QVERIFY2(timer.elapsed() < firstWait, qPrintable(QString::number(timer.elapsed())));
}

QTEST_MAIN(TestWire)
#include "tst_wire.moc"
