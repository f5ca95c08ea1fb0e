// SPDX-License-Identifier: MIT
#include "qtorvdoublespinboxval.h"
#include "qtorvspinboxval.h"

#include <QtTest>
#include <QtWidgets>

#include <limits>

struct Action
{
    const char *name;
    void (*run)(QAbstractSpinBox *box); ///< null: typing alone commits
    bool isCommitted;
};

class TestSpinBoxes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void snapsIntegers();
    void snapsRealValues();
    void extremeNumbers();
    void snapsValuesOfAnySource();
    void waitsForEnter();
    void commitsPendingText();
    void leavesEnterToTheBaseClass();

private:
    template<class Box, class T>
    static void checkAction(const QLocale &locale, const Action &action, T number,
                            QString text = QString());
};

void TestSpinBoxes::snapsIntegers()
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
        {2.0, 0.3, 1.95, 1.9}, // a step that does not divide the range
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

void TestSpinBoxes::extremeNumbers()
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

void TestSpinBoxes::snapsValuesOfAnySource()
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
    QCOMPARE(changes, (QList<QVariantList>{{1}, {13}})); // QSpinBox itself commits each digit
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

    box.setReadOnly(true);
    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(box.value(), 16);
}

// The default text is the box's own text for the number.
template<class Box, class T>
void TestSpinBoxes::checkAction(const QLocale &locale, const Action &action, T number, QString text)
{
    QWidget window;
    Box box;
    QLineEdit other;
    QVBoxLayout layout(&window);
    layout.addWidget(&box);
    layout.addWidget(&other);
    box.setLocale(locale);
    box.setRange(-10000, 10000);
    box.setValue(number);
    if (text.isEmpty())
        text = box.text();
    box.setValue(40);
    const QString before = box.text();
    box.setValidateTyping(!action.run);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    box.setFocus();
    box.selectAll();
    for (const QChar sign : text)
        QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_unknown, sign, Qt::NoModifier);
    if (action.run) {
        QCOMPARE(box.value(), T(40));
        action.run(&box);
    }
    const QByteArray what = QString("%1, %2: ").arg(locale.name(), text).toUtf8() + action.name;
    QVERIFY2(box.value() == (action.isCommitted ? number : T(40)), what);
    QVERIFY2(action.isCommitted || box.text() == before, what);
}

void TestSpinBoxes::commitsPendingText()
{
    using Box = QAbstractSpinBox;
    const Action tab{"Tab", [](Box *box) { QTest::keyClick(box, Qt::Key_Tab); }, true};
    const auto click = [](Box *box) {
        QTest::mouseClick(box->window()->layout()->itemAt(1)->widget(), Qt::LeftButton);
    };
    const auto escape = [](Box *box) {
        QTest::keyClick(box, Qt::Key_Escape);
        box->window()->close();
    };
    const auto lock = [](Box *box) {
        box->setReadOnly(true);
        box->clearFocus();
    };
    const auto openMenu = [](Box *box) {
        QMenu menu;
        menu.popup(QPoint());
        QCOMPARE(box->property("value").toInt(), 40);
        menu.close();
        QTest::keyClick(box, Qt::Key_Return);
    };
    const Action actions[] = {
        {"typing", nullptr, true},
        {"Return", [](Box *box) { QTest::keyClick(box, Qt::Key_Return); }, true},
        tab,
        {"click", click, true},
        {"close", [](Box *box) { box->window()->close(); }, true},
        {"menu", openMenu, true},
        {"Escape", escape, false},
        {"disabled", [](Box *box) { box->window()->setEnabled(false); }, false},
        {"read-only", lock, false},
    };
    for (const char *name : {"C", "de_DE", "fr_FR", "ar_EG"}) {
        for (const Action &action : actions) {
            checkAction<QtOrvSpinBoxVal>(QLocale(name), action, -1234);
            checkAction<QtOrvDoubleSpinBoxVal>(QLocale(name), action, -1234.25);
            checkAction<QtOrvDoubleSpinBoxVal>(QLocale(name), action, 2.5, "2.5");
        }
    }
    // The decimal sign of another locale must not be taken for a group separator.
    checkAction<QtOrvDoubleSpinBoxVal>(QLocale::c(), {"Tab", tab.run, false}, 2.5, "2,5");
}

void TestSpinBoxes::leavesEnterToTheBaseClass()
{
    // The base class restores the value if the text is not acceptable.
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

    QTest::keyClicks(&box, "50");
    QFocusEvent out(QEvent::FocusOut, Qt::TabFocusReason);
    QCoreApplication::sendEvent(&box, &out);
    QCOMPARE(box.value(), 50);
}

QTEST_MAIN(TestSpinBoxes)
#include "tst_spinboxes.moc"
