// SPDX-License-Identifier: MIT
#include <OrvGenParam.h>
#include <orvcamconfigdialog.h>
#include <orvcamconfigopening.h>
#include <pickerparts.h>
#include <silentcamconfig.h>
#include <wirecamera.h>

#include <QtTest>
#include <QtWidgets>

#include <memory>

using OrvGui::OrvCamConfig;
using OrvGui::OrvCamConfigOpening;
using OrvGui::SilentCamConfig;

namespace {

/// Measures the longest time for which the event loop is blocked.
class Gaps : public QObject
{
public:
    Gaps()
    {
        m_timer.start();
        startTimer(5, Qt::PreciseTimer);
    }
    qint64 longest() const { return qMax(m_longest, m_timer.elapsed()); }

protected:
    void timerEvent(QTimerEvent *) override { m_longest = qMax(m_longest, m_timer.restart()); }

private:
    QElapsedTimer m_timer;
    qint64 m_longest = 0;
};

using DevicePtr = OrvCam::Released<OrvCam::Device>;

QDialog *progressDialog()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == "OpeningProgress" && widget->isVisible())
            return qobject_cast<QDialog *>(widget);
    }
    return nullptr;
}

/// Picks the camera in the next picker dialog.
class Picks : public QTimer
{
public:
    Picks()
    {
        connect(this, &QTimer::timeout, [this] { pick(); });
    }

private:
    void pick()
    {
        auto *picker = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!picker)
            return;
        const QModelIndex row = rowNamed(*cameraTree(*picker), "SLOW");
        if (!row.isValid())
            return;
        stop();
        cameraTree(*picker)->setCurrentIndex(row);
        button(*picker, "OK")->click();
    }
};

} // namespace

/// Windows on a slow camera: it is opened in the background and read with few commands.
class TestOpening : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { m_wire.reset(); }
    void cleanup() { m_camera->setMood("delay", 0); }
    void showsProgress();
    void openingCanBeCancelled();
    void reportsReason();
    void changesDuringOpening_data();
    void changesDuringOpening();
    void readsBothFramesFirst();
    void fewCommands();
    void windowsDoNotBlock();

private:
    OrvCamConfigOpening::Result open();

    std::unique_ptr<WireCamera> m_wire;
    TestCamera *m_camera = nullptr;
};

void TestOpening::initTestCase()
{
    // With Qt 6 the close of the last window would leave an event that ends later event loops.
    QApplication::setQuitOnLastWindowClosed(false);
    m_wire = std::make_unique<WireCamera>(ORV_DESCRIPTION, [](TestCamera::Settings &settings) {
        settings.fillsRegisters = true;
        settings.serial = "SLOW";
    });
    m_camera = m_wire->camera.get();
}

OrvCamConfigOpening::Result TestOpening::open()
{
    OrvCamConfigOpening opening(*m_wire->info, OrvCam::AccessControl);
    opening.setPreparation(&OrvCamConfig::prepare);
    return opening.exec();
}

void TestOpening::showsProgress()
{
    // Repeated because load of the machine can delay the program; a fault would delay it every
    // time.
    qint64 longest = 1000;
    for (int attempt = 0; attempt < 3 && longest >= 50; ++attempt) {
        m_camera->setMood("delay", 10);
        int shares = 0;
        int last = 0;
        QElapsedTimer shownAfter;
        shownAfter.start();
        qint64 shown = -1;
        QTimer watch;
        connect(&watch, &QTimer::timeout, [&] {
            const QDialog *dialog = progressDialog();
            if (!dialog)
                return;
            if (shown < 0)
                shown = shownAfter.elapsed();
            const int share = dialog->findChild<QProgressBar *>()->value();
            shares += share > last ? 1 : 0;
            last = qMax(last, share);
        });
        watch.start(10);
        const Gaps gaps;
        const DevicePtr device(open().device);
        longest = gaps.longest();
        QVERIFY(device);
        QVERIFY2(shown >= 300 && shown < 600, qPrintable(QString::number(shown)));
        QVERIFY2(shares > 3 && last > 50 && last <= 100, qPrintable(QString::number(last)));
        QVERIFY(!progressDialog());
        qInfo("opened with a longest gap of %d ms", int(longest));
    }
    QVERIFY2(longest < 50, qPrintable(QString::number(longest)));
}

void TestOpening::openingCanBeCancelled()
{
    m_camera->setMood("delay", 50);
    QElapsedTimer timer;
    QTimer::singleShot(600, [&] {
        QVERIFY(progressDialog());
        timer.start();
        progressDialog()->findChild<QAbstractButton *>()->click();
    });
    const OrvCamConfigOpening::Result result = open();
    QVERIFY(result.isCancelled && !result.device && timer.elapsed() < 50);

    // Opening without a window.
    OrvCamConfigOpening opening(*m_wire->info, OrvCam::AccessControl);
    bool isSilent = true;
    int last = -1;
    opening.setProgress([&](int percent) {
        isSilent = isSilent && !progressDialog();
        last = percent;
        return percent < 3;
    });
    const OrvCamConfigOpening::Result stopped = opening.exec();
    QVERIFY(stopped.isCancelled && !stopped.device && isSilent);
    QCOMPARE(last, 3);

    // Opening again waits until the camera has been released.
    m_camera->setMood("delay", 0);
    const DevicePtr device(open().device);
    QVERIFY(device);
}

void TestOpening::reportsReason()
{
    m_camera->setPrivilege(2);
    OrvCamConfigOpening::Result result = open();
    QCOMPARE(result.error, qint32(OrvCam::ErrorBusy));
    QCOMPARE(result.reason, QString("Another program has it open."));
    m_camera->setPrivilege(0);
    m_camera->setMood("silence", -1);
    result = open();
    QCOMPARE(result.error, qint32(OrvCam::ErrorGone));
    QVERIFY(!result.reason.isEmpty() && !result.isCancelled);
}

void TestOpening::changesDuringOpening_data()
{
    QTest::addColumn<QString>("change");
    for (const char *name : {"disconnect", "connect again", "close", "destroy", "quit"})
        QTest::newRow(name) << QString(name);
}

/// Changes while the main window opens the camera that was picked.
void TestOpening::changesDuringOpening()
{
    QFETCH(QString, change);
    m_camera->setMood("delay", 20);
    std::unique_ptr<OrvCamConfig> window;
    int devices = 0;
    Picks picks;
    window = std::make_unique<SilentCamConfig>(nullptr);
    connect(window.get(), &OrvCamConfig::deviceChanged,
            [&](OrvCam::Device *device) { devices += device ? 1 : 0; });
    window->show();
    picks.start(50);
    QTimer changes;
    connect(&changes, &QTimer::timeout, [&] {
        if (!progressDialog())
            return;
        changes.stop();
        QVERIFY(!window->device());
        if (change == "disconnect")
            window->findChild<QAction *>("actionDisconnect")->trigger();
        else if (change == "connect again") {
            QTimer::singleShot(
                200, [] { qobject_cast<QDialog *>(QApplication::activeModalWidget())->reject(); });
            window->findChild<QAction *>("actionConnect")->trigger();
        } else if (change == "close")
            window->close();
        else if (change == "destroy")
            window.reset();
        else
            QApplication::quit();
    });
    changes.start(10);
    const auto connectCamera = [&] {
        window->findChild<QAction *>("actionConnect")->trigger();
        QApplication::quit();
    };
    QTimer::singleShot(0, connectCamera);
    QApplication::exec();
    QCOMPARE(devices, 0);
    QVERIFY(!window || !window->device());
    window.reset();
    QVERIFY(!progressDialog());
    QTRY_COMPARE(m_camera->privilege(), 0u);
}

/// If the window opens the camera itself, both frames have been read before the window shows it.
void TestOpening::readsBothFramesFirst()
{
    const QTemporaryDir cache; // with a cache, the next opening takes only a few commands
    qputenv("ORVCAM_DESCRIPTION_CACHE", cache.path().toLocal8Bit());
    {
        const DevicePtr device(open().device);
        QVERIFY(device);
        device->GetParamArray()->GetEnum("FrameAB_Selector")->SetSymbolicValue("FrameA");
    }
    qint64 longest = 1000;
    for (int attempt = 0; attempt < 3 && longest >= 250; ++attempt) {
        SilentCamConfig window(nullptr);
        Picks picks;
        picks.start(50);
        std::unique_ptr<Gaps> gaps;
        QTimer watch;
        connect(&watch, &QTimer::timeout, [&] {
            if (!gaps && progressDialog())
                gaps = std::make_unique<Gaps>();
        });
        watch.start(10);
        m_camera->setMood("delay", 100);
        window.findChild<QAction *>("actionConnect")->trigger();
        QVERIFY(window.device() && gaps);
        longest = gaps->longest();
        m_camera->setMood("delay", 0);
        qInfo("connected with a longest gap of %d ms", int(longest));

        OrvGenParam::Array *const params = window.device()->GetParamArray();
        QCOMPARE(params->GetEnum("FrameAB_Selector")->GetSymbolicValue(), "FrameA");
        for (const char frame : {'A', 'B'}) {
            params->GetEnum("FrameAB_Selector")
                ->SetSymbolicValue(QByteArray("Frame").append(frame).constData());
            const auto size = QString("%1x%2")
                                  .arg(params->GetIntegerValue("Width"))
                                  .arg(params->GetIntegerValue("Height"));
            const auto *field =
                window.findChild<QLineEdit *>(QString("lineEditSizeFrame%1").arg(frame));
            QCOMPARE(field->text(), size);
        }
        params->GetEnum("FrameAB_Selector")->SetSymbolicValue("FrameA");
    }
    qputenv("ORVCAM_DESCRIPTION_CACHE", "");
    QVERIFY2(longest < 250, qPrintable(QString::number(longest)));
}

void TestOpening::fewCommands()
{
    // The host opens the camera, so nothing has been read. The window reads both frames.
    const DevicePtr device = m_wire->open();
    QVERIFY(device);
    OrvGenParam::Enum *const selector = device->GetParamArray()->GetEnum("FrameAB_Selector");
    QCOMPARE(selector->SetIntValue(0), int32_t(OrvCam::Success));
    m_camera->takeCounters();
    OrvCamConfig window(device.get());
    const unsigned bound = m_camera->takeCounters().transfers();
    window.SetDevice(device.get());
    const unsigned boundAgain = m_camera->takeCounters().transfers();
    qInfo("%u commands for all windows, %u once more", bound, boundAgain);
    QVERIFY(bound <= 12 && boundAgain <= 12);
    window.SetDevice(nullptr);
}

void TestOpening::windowsDoNotBlock()
{
    const DevicePtr device(open().device);
    QVERIFY(device);
    OrvCamConfig window(device.get());
    window.show();
    for (QPushButton *button : window.findChildren<QPushButton *>()) {
        if (button->isCheckable())
            button->click();
    }
    QTest::qWait(300);
    m_camera->setMood("delay", 60);
    {
        const Gaps gaps;
        QTest::qWait(2500);
        qInfo("idle: longest gap %d ms", int(gaps.longest()));
        QVERIFY2(gaps.longest() < 50, qPrintable(QString::number(gaps.longest())));
    }

    // A write takes one round trip; dependent values are shown when they arrive.
    OrvGenParam::Enum *const selector = device->GetParamArray()->GetEnum("FrameAB_Selector");
    auto *tabs = window.findChild<QTabWidget *>("tabFrames");
    const int other = 1 - tabs->currentIndex();
    const auto reads = m_camera->counters().transfers();
    QElapsedTimer timer;
    timer.start();
    const Gaps gaps;
    tabs->setCurrentIndex(other);
    const qint64 written = timer.elapsed();
    QTest::qWait(1000);
    qInfo("write: %d ms, longest gap %d ms, %u commands", int(written), int(gaps.longest()),
          m_camera->counters().transfers() - reads);
    // A command in progress ends first.
    QVERIFY2(written < 160, qPrintable(QString::number(written)));
    QVERIFY2(gaps.longest() < 170, qPrintable(QString::number(gaps.longest())));
    QCOMPARE(tabs->currentIndex(), other);
    QCOMPARE(tabs->tabText(other), QString(selector->GetSymbolicValue()));
    window.SetDevice(nullptr);
}

QTEST_MAIN(TestOpening)
#include "tst_opening.moc"
