// SPDX-License-Identifier: MIT
#include "qtorvdoublespinboxval.h"
#include "qtorvspinboxval.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include <limits>

class TestSpinBoxes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void snaps_data();
    void snaps();
    void snapsRealValues_data();
    void snapsRealValues();
    void bearsEveryNumber();
    void snapsWhoeverSetsTheValue();
    void waitsForEnter();
    void leavesEnterToTheBaseClass();
    void showsAnyText();
};

void TestSpinBoxes::snaps_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("step");
    QTest::addColumn<int>("wanted");
    QTest::addColumn<int>("validated");
    QTest::addColumn<int>("value");

    QTest::newRow("up") << 0 << 100 << 8 << 13 << 16 << 16;
    QTest::newRow("down") << 0 << 100 << 8 << 11 << 8 << 8;
    QTest::newRow("from half") << 0 << 100 << 8 << 12 << 16 << 16;
    QTest::newRow("near the end") << 0 << 100 << 8 << 99 << 96 << 96;
    QTest::newRow("end off the grid") << 0 << 100 << 8 << 100 << 100 << 100;
    QTest::newRow("capped") << 0 << 86 << 8 << 85 << 86 << 86;
    QTest::newRow("grid from the minimum") << 3 << 100 << 8 << 20 << 19 << 19;
    QTest::newRow("below the minimum") << 0 << 100 << 8 << -13 << -8 << 0;
    QTest::newRow("above the maximum") << 0 << 100 << 8 << 1000 << 100 << 100;
    QTest::newRow("no step") << 5 << 100 << 0 << 50 << 5 << 5;
}

void TestSpinBoxes::snaps()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, step);
    QFETCH(int, wanted);

    QtOrvSpinBoxVal box;
    box.setRange(minimum, maximum);
    box.setSingleStep(step);
    QTEST(box.doValidation(wanted), "validated");
    box.setValue(wanted);
    QCOMPARE(box.value(), qBound(minimum, wanted, maximum));
    box.setValidate(true);
    box.setValue(wanted);
    QTEST(box.value(), "value");
}

void TestSpinBoxes::snapsRealValues_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("step");
    QTest::addColumn<double>("wanted");
    QTest::addColumn<double>("validated");

    QTest::newRow("down") << 1.0 << 2.0 << 0.25 << 1.3 << 1.25;
    QTest::newRow("up") << 1.0 << 2.0 << 0.25 << 1.4 << 1.5;
    QTest::newRow("from half") << 1.0 << 2.0 << 0.25 << 1.375 << 1.5;
    QTest::newRow("step that does not divide") << 1.0 << 2.0 << 0.3 << 1.95 << 1.9;
    QTest::newRow("capped") << 1.0 << 2.1 << 0.4 << 2.05 << 2.1;
    QTest::newRow("end off the grid") << 1.0 << 2.0 << 0.3 << 2.0 << 2.0;
    QTest::newRow("above") << 1.0 << 2.0 << 0.25 << 9.0 << 2.0;
    QTest::newRow("no step") << 1.0 << 2.0 << 0.0 << 1.7 << 1.7;
    QTest::newRow("no step, above") << 1.0 << 2.0 << 0.0 << 2.7 << 2.0;
}

void TestSpinBoxes::snapsRealValues()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(double, step);
    QFETCH(double, wanted);
    QFETCH(double, validated);

    QtOrvDoubleSpinBoxVal box;
    box.setDecimals(3);
    box.setRange(minimum, maximum);
    box.setSingleStep(step);
    QCOMPARE(box.doValidation(wanted), validated);
    box.setValidate(true);
    box.setValue(wanted);
    QCOMPARE(box.value(), validated);
}

void TestSpinBoxes::bearsEveryNumber()
{
    constexpr int lowest = std::numeric_limits<int>::min();
    constexpr int highest = std::numeric_limits<int>::max();
    const int numbers[] = {lowest, -1, 0, 1, 7, highest};
    QtOrvSpinBoxVal box;
    box.setValidate(true);
    for (const int minimum : numbers) {
        for (const int maximum : numbers) {
            for (const int step : numbers) {
                box.setRange(minimum, maximum);
                box.setSingleStep(step);
                for (const int value : numbers) {
                    box.setValue(value);
                    box.stepBy(value);
                    QVERIFY(box.value() >= box.minimum() && box.value() <= box.maximum());
                }
            }
        }
    }

    QtOrvDoubleSpinBoxVal real;
    real.setRange(-1e300, 1e300);
    real.setSingleStep(1e-300);
    for (const double value : {1e299, -1e300, std::numeric_limits<double>::infinity()})
        QVERIFY(real.doValidation(value) <= 1e300);
}

void TestSpinBoxes::snapsWhoeverSetsTheValue()
{
    QtOrvSpinBoxVal box;
    box.setRange(0, 100);
    box.setSingleStep(8);
    box.setValidate(true);

    box.setValue(100);
    box.stepBy(-1);
    QCOMPARE(box.value(), 96);
    QTest::keyClick(&box, Qt::Key_Down);
    QCOMPARE(box.value(), 88);
    box.setProperty("value", 13);
    QCOMPARE(box.value(), 16);
    QMetaObject::invokeMethod(&box, "setValue", Q_ARG(int, 21));
    QCOMPARE(box.value(), 24);

    QtOrvDoubleSpinBoxVal real;
    real.setRange(1.0, 2.0);
    real.setSingleStep(0.25);
    real.setValue(1.3);
    real.setValidate(true);
    QCOMPARE(real.value(), 1.3);
    real.stepBy(1);
    QCOMPARE(real.value(), 1.5);
    real.setProperty("value", 1.8);
    QCOMPARE(real.value(), 1.75);
}

void TestSpinBoxes::waitsForEnter()
{
    QtOrvSpinBoxVal box;
    box.setValidate(true);
    box.setSingleStep(8);
    box.setValue(40);
    QSignalSpy changes(&box, static_cast<void (QSpinBox::*)(int)>(&QSpinBox::valueChanged));

    box.selectAll();
    QTest::keyClicks(&box, QStringLiteral("13"));
    QCOMPARE(changes, (QList<QVariantList>{{1}, {13}})); // QSpinBox itself takes each digit
    box.setValue(40);
    changes.clear();

    box.setValidateTyping(false);
    box.selectAll();
    QTest::keyClicks(&box, QStringLiteral("13"));
    QCOMPARE(box.text(), QStringLiteral("13"));
    QCOMPARE(box.value(), 40);
    QCOMPARE(changes.count(), 0);
    QTest::keyClick(&box, Qt::Key_Enter);
    QCOMPARE(changes, (QList<QVariantList>{{16}}));
    QCOMPARE(box.text(), QStringLiteral("16"));

    QString text = QStringLiteral("abc");
    int pos = 0;
    QCOMPARE(box.validate(text, pos), QValidator::Invalid);
    text = QStringLiteral("16");
    QCOMPARE(box.validate(text, pos), QValidator::Intermediate);

    QtOrvDoubleSpinBoxVal real;
    real.setLocale(QLocale::c());
    real.setValidateTyping(false);
    real.selectAll();
    QTest::keyClicks(&real, QStringLiteral("1.5"));
    QCOMPARE(real.value(), 0.0);
    QTest::keyClick(&real, Qt::Key_Return);
    QCOMPARE(real.value(), 1.5);
}

void TestSpinBoxes::leavesEnterToTheBaseClass()
{
    // What the base class makes of a text that is never acceptable: it goes back to the value.
    QtOrvSpinBoxVal box;
    box.setSuffix(QStringLiteral(" ms"));
    box.setValue(40);
    box.setValidateTyping(false);
    QSignalSpy finished(&box, &QAbstractSpinBox::editingFinished);
    box.selectAll();
    QTest::keyClicks(&box, QStringLiteral("50"));
    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(box.value(), 40);

    QtOrvDoubleSpinBoxVal real;
    real.setLocale(QLocale::c());
    real.setValue(4.0);
    real.setSingleStep(0.0);
    real.setValidateTyping(false);
    QSignalSpy realFinished(&real, &QAbstractSpinBox::editingFinished);
    real.selectAll();
    QTest::keyClicks(&real, QStringLiteral("1.5"));
    QTest::keyClick(&real, Qt::Key_Return);
    QCOMPARE(realFinished.count(), 1);
    QCOMPARE(real.value(), 4.0);
}

void TestSpinBoxes::showsAnyText()
{
    QtOrvSpinBoxVal box;
    box.setValue(40);
    QSignalSpy changes(&box, static_cast<void (QSpinBox::*)(int)>(&QSpinBox::valueChanged));
    for (const QString &text : {QStringLiteral("---"), QStringLiteral("7")}) {
        box.setLineEditText(text);
        QCOMPARE(box.findChild<QLineEdit *>()->text(), text);
        QCOMPARE(box.value(), 40);
    }
    QCOMPARE(changes.count(), 0);
    box.setValue(41);
    QCOMPARE(box.text(), QStringLiteral("41"));
}

QTEST_MAIN(TestSpinBoxes)
#include "tst_spinboxes.moc"
