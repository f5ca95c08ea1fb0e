// SPDX-License-Identifier: MIT
#include "../cameraapi/responder.h"
#include "modalvisitor.h"
#include "orvcameraselectordialog.h"

#include <OrvCam.h>
#include <cameranetwork.h>

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QPushButton>
#include <QTreeView>
#include <QtTest>

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
    void cameraOfAnotherProgram();
    void cameraStopsWhilePicking();
    void makesCameraReachable();
    void cameraRefusesItsAddress();

private:
    using Facts = QMap<QString, QString>;

    QTreeView *tree() const { return m_picker->findChild<QTreeView *>("cameraTreeView"); }
    QStringList camerasOn(const char *adapter) const;
    QModelIndex find(const QString &name) const;
    bool selectCamera(const QString &name);
    bool rescanUntil(const std::function<bool()> &isDone);
    Facts facts(const char *pane) const;
    QPushButton *okButton() const;
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

QModelIndex TestPickerNetwork::find(const QString &name) const
{
    return tree()
        ->model()
        ->match(tree()->model()->index(0, 0), Qt::DisplayRole, name, 1,
                Qt::MatchContains | Qt::MatchRecursive)
        .value(0);
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
        for (QPushButton *button : m_picker->findChildren<QPushButton *>()) {
            if (button->text() == "&Rescan")
                button->click();
        }
        if (isDone())
            return true;
    }
    return false;
}

TestPickerNetwork::Facts TestPickerNetwork::facts(const char *pane) const
{
    Facts found;
    const QAbstractItemModel *model = m_picker->findChild<QTreeView *>(pane)->model();
    for (int row = 0; model && row < model->rowCount(); ++row)
        found[model->index(row, 0).data().toString()] = model->index(row, 1).data().toString();
    return found;
}

QPushButton *TestPickerNetwork::okButton() const
{
    return m_picker->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
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
    QCOMPARE(facts(interfacePane)["Type"], QString("GigE Vision"));
    QCOMPARE(facts(interfacePane)["IP Address"], QString("10.1.0.1"));
    QCOMPARE(facts(interfacePane)["Netmask"], QString("255.255.255.0"));
    QCOMPARE(facts(devicePane)["Serial number"], QString("FIRST"));
    QCOMPARE(facts(devicePane)["IP Address"], QString("10.1.0.2"));
    QCOMPARE(facts(devicePane)["Access status"], QString("ReadWrite"));
    QVERIFY(okButton()->isEnabled());

    QVERIFY(selectCamera("SECOND"));
    QCOMPARE(facts(interfacePane)["IP Address"], QString("10.2.0.1"));
    QCOMPARE(facts(devicePane)["Serial number"], QString("SECOND"));
    QCOMPARE(facts(devicePane)["IP Address"], QString("10.2.0.2"));

    QCOMPARE(list(), QString("Aravis-FIRST\tFake (FIRST)\t10.1.0.2\tread-write\n"
                             "Aravis-SECOND\tFake (SECOND)\t10.2.0.2\tread-write\n"));
}

void TestPickerNetwork::cameraOfAnotherProgram()
{
    const auto camera = m_first->startCamera("TAKEN");
    m_picker = std::make_unique<OrvCameraSelectorDialog>(m_system);
    QVERIFY(rescanUntil([&] { return selectCamera("TAKEN"); }));
    QVERIFY(okButton()->isEnabled());

    QProcess other;
    other.start("arv-camera-test-0.8", {"--name", "Aravis-TAKEN", "--frequency", "1"});
    QVERIFY(other.waitForStarted());
    QVERIFY(rescanUntil([&] {
        return selectCamera("TAKEN") && facts(devicePane)["Access status"] == "NO ACCESS";
    }));
    QVERIFY(!okButton()->isEnabled());
    QVERIFY2(list().endsWith("\tno-access\n"), qPrintable(list()));
    other.terminate();
    QVERIFY(other.waitForFinished());
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
    QCOMPARE(facts(devicePane)["Serial number"], QString("BRIEF"));

    QVERIFY(rescanUntil([] { return true; }));
    QVERIFY(!find("BRIEF").isValid());
    QVERIFY(camerasOn("orv0").isEmpty());
    QVERIFY(facts(devicePane).isEmpty());
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
    Responder responder(m_first->farNamespace(), m_first->farName(), "001b2c3d4e5f", "a9fe0715");
    m_picker = std::make_unique<OrvCameraSelectorDialog>(m_system);
    m_picker->show();
    QVERIFY(selectCamera("Strawman"));
    QCOMPARE(facts(devicePane)["Access status"], QString("IP Subnet Mismatch"));
    QCOMPARE(facts(devicePane)["IP Address"], QString("169.254.7.21"));
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
    m_picker->findChild<QPushButton *>("setIpBtn")->click();
    m_first->runFar("ip", "addr del 10.1.0.77/24 dev " + m_first->farName());
    QVERIFY(visitor.isDone());
    QVERIFY(!responder.forced().empty());
    QCOMPARE(facts(devicePane)["IP Address"], QString("10.1.0.77"));
    QCOMPARE(facts(devicePane)["Access status"], QString("ReadWrite"));
    okButton()->click();
    QCOMPARE(m_picker->result(), int(QDialog::Accepted));
    QCOMPARE(m_picker->selectedCamera()->GetId(), "00:1B:2C:3D:4E:5F");
}

void TestPickerNetwork::cameraRefusesItsAddress()
{
    Responder responder(m_first->farNamespace(), m_first->farName(), "001b2c3d4e5f", "a9fe0715");
    responder.setMood(Responder::Mood::Stubborn);
    m_picker = std::make_unique<OrvCameraSelectorDialog>(m_system);
    QVERIFY(selectCamera("Strawman"));
    QString complaint;
    const ModalVisitor visitor({[](QDialog &dialog) { dialog.accept(); },
                                [&](QDialog &dialog) {
                                    complaint =
                                        dialog.findChild<QLabel *>("qt_msgbox_label")->text();
                                    dialog.accept();
                                }});
    m_picker->findChild<QPushButton *>("setIpBtn")->click();
    QVERIFY(visitor.isDone());
    QCOMPARE(complaint, QString("Can't set IP address"));
    QCOMPARE(facts(devicePane)["Access status"], QString("IP Subnet Mismatch"));
    QVERIFY(!okButton()->isEnabled());
}

QTEST_MAIN(TestPickerNetwork)
#include "tst_pickernetwork.moc"
