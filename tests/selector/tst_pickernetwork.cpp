// SPDX-License-Identifier: MIT
#include "modalvisitor.h"
#include "orvcameraselectordialog.h"
#include "pickerparts.h"

#include <OrvCam.h>
#include <cameranetwork.h>

#include <QLabel>
#include <QLineEdit>
#include <QtTest>

#include <algorithm>

using OrvGui::OrvCameraSelectorDialog;

/// The picker on a real network. This machine has two adapters, 10.1.0.1 and 10.2.0.1, each with a
/// cable to a machine of its own, 10.1.0.2 and 10.2.0.2, where cameras are started.
class TestPickerNetwork : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void cleanup() { m_picker.reset(); }
    void showsBothAdapters();
    void cameraStopsWhilePicking();
    void makesCameraReachable();
    void givesUp();

private:
    QTreeView *tree() const { return cameraTree(*m_picker); }
    QStringList camerasOn(const char *adapter) const;
    QModelIndex find(const QString &name) const { return rowNamed(*tree(), name); }
    bool selectCamera(const QString &name);
    bool rescanUntil(const std::function<bool()> &isDone);
    bool shows(const char *pane, const QStringList &facts) const;
    QPushButton *okButton() const { return button(*m_picker, "OK"); }
    QString list() const;

    std::unique_ptr<CameraNetwork> m_first;
    std::unique_ptr<CameraNetwork> m_second;
    OrvCam::System *m_system = nullptr;
    std::unique_ptr<OrvCameraSelectorDialog> m_picker;
};

namespace {

const char *const interfacePane = "interfaceInfoTreeView";
const char *const devicePane = "deviceInfoTreeView";

} // namespace

void TestPickerNetwork::initTestCase()
{
    m_first = std::make_unique<CameraNetwork>("orv0", "10.1.0.1/24", "10.1.0.2/24");
    m_second = std::make_unique<CameraNetwork>("orv1", "10.2.0.1/24", "10.2.0.2/24");
    m_system = OrvCam_GetSystem();
    QVERIFY(m_system);
}

void TestPickerNetwork::cleanupTestCase()
{
    m_system->Release();
    m_first.reset();
    m_second.reset();
}

QStringList TestPickerNetwork::camerasOn(const char *adapter) const
{
    QStringList names;
    const QModelIndex parent = find(adapter);
    for (int row = 0; row < tree()->model()->rowCount(parent); ++row)
        names << tree()->model()->index(row, 0, parent).data().toString();
    return names;
}

bool TestPickerNetwork::selectCamera(const QString &name)
{
    tree()->setCurrentIndex(find(name));
    return m_picker->selectedCamera() != nullptr;
}

/// Cameras need a while to start, and to notice who has them open.
bool TestPickerNetwork::rescanUntil(const std::function<bool()> &isDone)
{
    QElapsedTimer timer;
    timer.start();
    while (!timer.hasExpired(15000)) {
        button(*m_picker, "Rescan")->click();
        if (isDone())
            return true;
    }
    return false;
}

bool TestPickerNetwork::shows(const char *pane, const QStringList &facts) const
{
    const QStringList shown = factsOf(*m_picker->findChild<QTreeView *>(pane));
    return std::all_of(facts.begin(), facts.end(),
                       [&](const QString &fact) { return shown.contains(fact); });
}

/// What the program prints of the same network.
QString TestPickerNetwork::list() const
{
    QProcess program;
    program.start(ORV_PROGRAM, {"--list-cameras"});
    if (!program.waitForFinished())
        qFatal("The program does not end");
    return QString::fromUtf8(program.readAllStandardOutput());
}

void TestPickerNetwork::showsBothAdapters()
{
    const auto first = m_first->startCamera("FIRST");
    const auto second = m_second->startCamera("SECOND");
    m_picker = std::make_unique<OrvCameraSelectorDialog>(m_system);
    m_picker->show();
    QVERIFY(rescanUntil(
        [&] { return camerasOn("orv0").size() == 1 && camerasOn("orv1").size() == 1; }));

    QVERIFY(selectCamera("FIRST"));
    QVERIFY(shows(interfacePane,
                  {"Type: GigE Vision", "IP Address: 10.1.0.1", "Netmask: 255.255.255.0"}));
    QVERIFY(shows(devicePane,
                  {"Serial number: FIRST", "IP Address: 10.1.0.2", "Access status: ReadWrite"}));
    QVERIFY(okButton()->isEnabled());

    QVERIFY(selectCamera("SECOND"));
    QVERIFY(shows(interfacePane, {"IP Address: 10.2.0.1"}));
    QVERIFY(shows(devicePane, {"Serial number: SECOND", "IP Address: 10.2.0.2"}));

    QCOMPARE(list(), QString("Aravis-FIRST\tFake (FIRST)\t10.1.0.2\tread-write\n"
                             "Aravis-SECOND\tFake (SECOND)\t10.2.0.2\tread-write\n"));
}

void TestPickerNetwork::cameraStopsWhilePicking()
{
    auto camera = m_first->startCamera("BRIEF");
    m_picker = std::make_unique<OrvCameraSelectorDialog>(m_system);
    m_picker->show();
    QVERIFY(rescanUntil([&] { return selectCamera("BRIEF"); }));
    const OrvCam::DeviceInfo *record = m_picker->selectedCamera();

    // Before the next look nobody knows. What is shown can still be asked.
    camera.reset();
    tree()->setCurrentIndex(find("orv0"));
    QVERIFY(selectCamera("BRIEF"));
    QVERIFY(shows(devicePane, {"Serial number: BRIEF"}));

    QVERIFY(rescanUntil([] { return true; }));
    QVERIFY(!find("BRIEF").isValid());
    QVERIFY(camerasOn("orv0").isEmpty());
    QVERIFY(!m_picker->selectedCamera());
    QVERIFY(!okButton()->isEnabled());
    emit tree()->activated(find("orv0")); // accepts nothing
    QVERIFY(m_picker->isVisible());
    QCOMPARE(record->GetSerial(), "BRIEF");

    camera = m_first->startCamera("BRIEF");
    QVERIFY(rescanUntil([&] { return selectCamera("BRIEF"); }));
    QVERIFY(m_picker->selectedCamera() == record);
    okButton()->click();
    QCOMPARE(m_picker->result(), int(QDialog::Accepted));
}

void TestPickerNetwork::makesCameraReachable()
{
    TestCamera camera(m_first->cameraSettings(0x001B2C3D4E5F, "169.254.7.21"));
    m_picker = std::make_unique<OrvCameraSelectorDialog>(m_system);
    m_picker->show();
    QVERIFY(selectCamera("TestCamera"));
    QVERIFY(shows(devicePane, {"Access status: IP Subnet Mismatch", "IP Address: 169.254.7.21"}));
    QVERIFY(!okButton()->isEnabled());

    const ModalVisitor visitor({[](QDialog &dialog) {
        const auto text = [&](const char *field) {
            return dialog.findChild<QLineEdit *>(field)->text();
        };
        QCOMPARE(text("nicIpLineEdit"), QString("10.1.0.1"));
        QCOMPARE(text("macAddressLineEdit"), QString("00:1B:2C:3D:4E:5F"));
        QCOMPARE(text("ipAddressLineEdit"), QString("10.1.0.2"));
        QTest::keyClicks(QApplication::focusWidget(), "77"); // the host number is selected
        QCOMPARE(dialog.findChild<QLabel *>("ipStatusLabel")->text(),
                 QString("IP Configuration OK"));
        dialog.accept();
    }});
    // The answer at the new address is awaited.
    m_first->runFar("ip", "addr add 10.1.0.77/24 dev " + m_first->farName());
    button(*m_picker, "Set IP Address")->click();
    m_first->runFar("ip", "addr del 10.1.0.77/24 dev " + m_first->farName());
    QVERIFY(visitor.isDone());
    QVERIFY(!camera.forcedIps().empty());
    QVERIFY(shows(devicePane, {"Access status: ReadWrite", "IP Address: 10.1.0.77"}));
    okButton()->click();
    QCOMPARE(m_picker->result(), int(QDialog::Accepted));
    QCOMPARE(m_picker->selectedCamera()->GetId(), "00:1B:2C:3D:4E:5F");
}

/// The camera acknowledges the new address, but does not take it.
void TestPickerNetwork::givesUp()
{
    TestCamera camera(m_first->cameraSettings(0x001B2C3D4E5F, "169.254.7.21"));
    camera.setMood("force-ip-ignored");
    m_picker = std::make_unique<OrvCameraSelectorDialog>(m_system);
    m_picker->show();
    QVERIFY(selectCamera("TestCamera"));
    const ModalVisitor visitor(
        {[](QDialog &dialog) { dialog.accept(); }, [](QDialog &dialog) { dialog.reject(); }});
    QElapsedTimer timer;
    timer.start();
    button(*m_picker, "Set IP Address")->click();
    QVERIFY(visitor.isDone());
    QTRY_VERIFY(button(*m_picker, "Rescan")->isEnabled());
    QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(!camera.forcedIps().empty());
    QVERIFY(shows(devicePane, {"Access status: IP Subnet Mismatch", "IP Address: 169.254.7.21"}));
}

QTEST_MAIN(TestPickerNetwork)
#include "tst_pickernetwork.moc"
