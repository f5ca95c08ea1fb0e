// SPDX-License-Identifier: MIT
#include <allwindows.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QtTest>

#include <algorithm>

/// A camera that goes and comes back, over the wire, while everything that shows it is open.
///
/// Twice by default; ORV_RECONNECTS=20 for as often as that. Prints how long it took.
class TestReconnect : public QObject
{
    Q_OBJECT

private slots:
    void unplugAndPlugIn();

private:
    void checkIsGone(AllWindows &all);
    void checkWorks(AllWindows &all, bool on);
};

namespace {

QString figures(QVector<double> seconds)
{
    std::sort(seconds.begin(), seconds.end());
    return QString("%1 to %2 s, median %3 s")
        .arg(seconds.first(), 0, 'f', 2)
        .arg(seconds.last(), 0, 'f', 2)
        .arg(seconds[seconds.size() / 2], 0, 'f', 2);
}

double secondsOf(const QElapsedTimer &timer)
{
    return double(timer.elapsed()) / 1000;
}

} // namespace

void TestReconnect::checkIsGone(AllWindows &all)
{
    QVERIFY(!all.window().device());
    for (OrvGui::OrvCamConfigDialog *dialog : all.dialogs())
        QVERIFY(dialog->isVisible() && !dialog->isEnabled());
    const QAbstractItemModel *model = all.tree().treeView()->model();
    QVERIFY(!model || model->rowCount() == 0);
    for (const QLineEdit *edit :
         all.window().findChild<QWidget *>("groupBox")->findChildren<QLineEdit *>())
        QCOMPARE(edit->text(), QString());
    QCOMPARE(all.window().findChild<QLabel *>("lblDeviceModelName")->text(), QString("N/A"));
}

void TestReconnect::checkWorks(AllWindows &all, bool on)
{
    QVERIFY(all.window().device());
    for (OrvGui::OrvCamConfigDialog *dialog : all.dialogs())
        QVERIFY(dialog->isVisible() && dialog->isEnabled());
    QVERIFY(all.window().findChild<QLabel *>("lblDeviceModelName")->text() != "N/A");
    QVERIFY(!all.window().findChild<QLineEdit *>("lineEditTemperature")->text().isEmpty());

    // What is changed in a dialog reaches the camera and the tree, at once.
    const QAbstractItemModel *model = all.tree().treeView()->model();
    QVERIFY(model);
    const QModelIndexList names = model->match(model->index(0, 0), Qt::DisplayRole, "Trigger Mode",
                                               1, Qt::MatchExactly | Qt::MatchRecursive);
    QCOMPARE(names.size(), 1);
    auto *box = all.window().findChild<QCheckBox *>("chBoxTriggerEnable");
    if (box->isChecked() == on)
        box->click();
    box->click();
    QCOMPARE(box->isChecked(), on);
    QCOMPARE(names.first().siblingAtColumn(1).data().toString(), QString(on ? "On" : "Off"));
    QCOMPARE(all.window().device()->GetParamArray()->GetEnum("TriggerMode")->GetIntValue(),
             int64_t(on));
}

void TestReconnect::unplugAndPlugIn()
{
    const int wanted = qEnvironmentVariableIntValue("ORV_RECONNECTS");
    const int times = wanted > 0 ? wanted : 2;
    AllWindows all(ORV_DESCRIPTION);
    const QString connected = all.status();
    QVERIFY(connected != "Disconnected");
    checkWorks(all, true);

    QVector<double> gone;
    QVector<double> back;
    for (int i = 0; i < times; ++i) {
        QElapsedTimer timer;
        timer.start();
        all.unplug();
        QTRY_COMPARE_WITH_TIMEOUT(all.status(), QString("Disconnected"), 30000);
        gone << secondsOf(timer);
        checkIsGone(all);
        if (QTest::currentTestFailed())
            return;

        timer.start();
        all.plugIn();
        QTRY_COMPARE_WITH_TIMEOUT(all.status(), connected, 30000);
        back << secondsOf(timer);
        checkWorks(all, i % 2 != 0);
        if (QTest::currentTestFailed())
            return;
    }
    qInfo("unplugged %d times; until \"Disconnected\": %s; from starting the camera until all was "
          "back: %s",
          times, qPrintable(figures(gone)), qPrintable(figures(back)));
}

QTEST_MAIN(TestReconnect)
#include "tst_reconnect.moc"
