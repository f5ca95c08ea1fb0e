// SPDX-License-Identifier: MIT
#include "qtorvdoublespinboxval.h"
#include "qtorvspinboxval.h"

#include <QSignalSpy>
#include <QTest>

#include <limits>

class TestSpinBoxes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void snaps();
    void snapsRealValues();
    void bearsEveryNumber();
    void snapsWhoeverSetsTheValue();
    void waitsForEnter();
    void leavesEnterToTheBaseClass();
};

void TestSpinBoxes::snaps()
{
    const struct
    {
        int minimum, maximum, step, wanted, validated, value;
    } rows[] = {
        {0, 100, 8, 13, 16, 16}, {0, 100, 8, 11, 8, 8},      {0, 100, 8, 12, 16, 16},
        {0, 100, 8, 99, 96, 96}, {0, 100, 8, 100, 100, 100}, {0, 86, 8, 85, 86, 86},
        {3, 100, 8, 20, 19, 19}, {0, 100, 8, -13, -8, 0},    {0, 100, 8, 1000, 100, 100},
        {5, 100, 0, 50, 5, 5},
    };
    for (const auto &row : rows) {
        QtOrvSpinBoxVal box;
        box.setRange(row.minimum, row.maximum);
        box.setSingleStep(row.step);
        QCOMPARE(box.doValidation(row.wanted), row.validated);
        box.setValue(row.wanted);
        QCOMPARE(box.value(), qBound(row.minimum, row.wanted, row.maximum));
        box.setValidate(true);
        box.setValue(row.wanted);
        QCOMPARE(box.value(), row.value);
    }
}

void TestSpinBoxes::snapsRealValues()
{
    const struct
    {
        double maximum, step, wanted, validated;
    } rows[] = {
        {2.0, 0.25, 1.3, 1.25}, {2.0, 0.25, 1.4, 1.5}, {2.0, 0.25, 1.375, 1.5},
        {2.0, 0.3, 1.95, 1.9}, // a step that does not divide
        {2.1, 0.4, 2.05, 2.1},  {2.0, 0.3, 2.0, 2.0},  {2.0, 0.25, 9.0, 2.0},
        {2.0, 0.0, 1.7, 1.7},   {2.0, 0.0, 2.7, 2.0},
    };
    for (const auto &row : rows) {
        QtOrvDoubleSpinBoxVal box;
        box.setDecimals(3);
        box.setRange(1.0, row.maximum);
        box.setSingleStep(row.step);
        QCOMPARE(box.doValidation(row.wanted), row.validated);
        box.setValidate(true);
        box.setValue(row.wanted);
        QCOMPARE(box.value(), row.validated);
    }
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
}

void TestSpinBoxes::waitsForEnter()
{
    QtOrvSpinBoxVal box;
    box.setValidate(true);
    box.setSingleStep(8);
    box.setValue(40);
    QSignalSpy changes(&box, static_cast<void (QSpinBox::*)(int)>(&QSpinBox::valueChanged));

    box.selectAll();
    QTest::keyClicks(&box, "13");
    QCOMPARE(changes, (QList<QVariantList>{{1}, {13}})); // QSpinBox itself takes each digit
    box.setValue(40);
    changes.clear();

    box.setValidateTyping(false);
    box.selectAll();
    QTest::keyClicks(&box, "13");
    QCOMPARE(box.text(), QString("13"));
    QCOMPARE(box.value(), 40);
    QCOMPARE(changes.count(), 0);
    QTest::keyClick(&box, Qt::Key_Enter);
    QCOMPARE(changes, (QList<QVariantList>{{16}}));
    QCOMPARE(box.text(), QString("16"));
    box.setLineEditText("7");
    QCOMPARE(box.text(), QString("7"));
    QCOMPARE(box.value(), 16);

    QtOrvDoubleSpinBoxVal real;
    real.setLocale(QLocale::c());
    real.setValidateTyping(false);
    real.selectAll();
    QTest::keyClicks(&real, "1.5");
    QCOMPARE(real.value(), 0.0);
    QTest::keyClick(&real, Qt::Key_Return);
    QCOMPARE(real.value(), 1.5);
}

void TestSpinBoxes::leavesEnterToTheBaseClass()
{
    // What the base class makes of a text that is never acceptable: it goes back to the value.
    QtOrvSpinBoxVal box;
    box.setSuffix(" ms");
    box.setValue(40);
    box.setValidateTyping(false);
    QSignalSpy finished(&box, &QAbstractSpinBox::editingFinished);
    box.selectAll();
    QTest::keyClicks(&box, "50");
    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(box.value(), 40);
}

QTEST_MAIN(TestSpinBoxes)
#include "tst_spinboxes.moc"
