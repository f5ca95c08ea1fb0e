// SPDX-License-Identifier: MIT
#include "qtorvdoubleslider.h"
#include "qtorvslider.h"

#include <QDebug>
#include <QLabel>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

namespace {

constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();
constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

// The source of all random cases; the fixed seed makes failures reproducible.
class Random
{
public:
    qint64 between(qint64 low, qint64 high)
    {
        return std::uniform_int_distribution<qint64>(low, high)(engine);
    }

    // Small numbers are as likely as large ones.
    qint64 ofAnySize(qint64 limit)
    {
        const double size = std::pow(static_cast<double>(limit), fraction());
        return qBound(qint64(1), qint64(size), limit);
    }

    double fraction() { return std::uniform_real_distribution<>(0.0, 1.0)(engine); }

private:
    std::mt19937_64 engine{20160715};
};

// The numbers of a failed case.
QByteArray joined(const QVariantList &numbers)
{
    QString text;
    QDebug(&text) << numbers;
    return text.toUtf8();
}

} // namespace

class TestSliders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void layout();
    void mapsValues();
    void mappingOfRandomRanges();
    void extremeInts();
    void keepsTheValueWhenTheMappingChanges();
    void announcesChangesOnly();
    void announcesTheLatestRangeOnly();

    void mapsRealValues();
    void mappingOfRandomRealRanges();
    void extremeReals();
};

// The parts must be where the orientation and the direction place them.
void TestSliders::layout()
{
    QtOrvSlider slider(Qt::Vertical);
    QVERIFY(!slider.isMaxLabelVisiable());
    slider.resize(200, 200);
    slider.show();
    QVERIFY(slider.isMaxLabelVisiable());
    QVERIFY(slider.maxLabel()->y() < slider.slider()->y());
    QVERIFY(slider.slider()->y() < slider.minLabel()->y());

    slider.setOrientation(Qt::Horizontal);
    QCoreApplication::sendPostedEvents();
    QVERIFY(slider.slider()->width() > slider.slider()->height());
    QVERIFY(slider.minLabel()->x() < slider.maxLabel()->x());
    QVERIFY(slider.minLabel()->y() > slider.slider()->y());
    QVERIFY(slider.maxLabel()->alignment() & Qt::AlignRight);

    slider.setLayoutDirection(Qt::RightToLeft);
    QCoreApplication::sendPostedEvents();
    QVERIFY(slider.minLabel()->x() > slider.maxLabel()->x());
    QVERIFY(slider.maxLabel()->alignment() & Qt::AlignLeft);
    QVERIFY(slider.minLabel()->alignment() & Qt::AlignRight);
}

void TestSliders::mapsValues()
{
    const auto linear = QtOrvSlider::ScaleLinear;
    const auto log = QtOrvSlider::ScaleLog10;
    const auto root = QtOrvSlider::ScaleSqrt;
    const struct
    {
        const char *name;
        QtOrvSlider::ScaleType scale;
        double coefficient;
        int minimum, maximum;
        int step; // 0: without validation
        int innerMinimum, innerMaximum;
        int wanted, position, value;
    } rows[] = {
        {"log, upper end", log, 100, 0, 1000, 0, 100, 300, 1000, 300, 1000},
        {"log, rounded", log, 100, 0, 1000, 0, 100, 300, 503, 271, 503},
        {"log, shared position", log, 100, 0, 1000, 0, 100, 300, 504, 271, 503},
        {"log, from a minimum of its own", log, 100, 1000, 2000, 0, 100, 300, 1090, 200, 1090},
        {"log, one more position at the end", log, 10, 0, 5060, 0, 10, 38, 5060, 38, 5060},
        {"log, truncated lower end", log, 99.7, 0, 1000, 0, 99, 300, 0, 99, 0},
        {"log, below the range", log, 100, 0, 1000, 0, 100, 300, -50, 100, 0},
        {"log, snapped", log, 100, 0, 1000, 100, 100, 300, 460, 271, 500},
        {"root, upper end", root, 100, 0, 10, 0, 0, 4, 10, 4, 10},
        {"root, rounded", root, 100, 0, 10, 0, 0, 4, 7, 3, 9},
        {"root, square span", root, 100, 5, 14, 0, 0, 3, 14, 3, 14},
        {"down to the grid", linear, 100, 0, 100, 10, 0, 100, 14, 10, 10},
        {"up to the grid", linear, 100, 0, 100, 10, 0, 100, 15, 20, 20},
        {"half of an odd step", linear, 100, 0, 100, 5, 0, 100, 12, 15, 15},
        {"grid from the minimum", linear, 100, 3, 100, 10, 3, 100, 20, 23, 23},
        {"end off the grid", linear, 100, 0, 86, 8, 0, 86, 86, 86, 86},
        {"capped", linear, 100, 0, 86, 8, 0, 86, 85, 86, 86},
    };
    for (const auto &row : rows) {
        QtOrvSlider slider;
        slider.setScaleType(row.scale);
        slider.setLog10Coef(row.coefficient);
        slider.setSingleStep(qMax(row.step, 1));
        slider.setValidate(row.step != 0);
        slider.setRange(row.minimum, row.maximum);
        QVERIFY2(slider.slider()->minimum() == row.innerMinimum, row.name);
        QVERIFY2(slider.slider()->maximum() == row.innerMaximum, row.name);
        slider.setValue(row.wanted);
        QVERIFY2(slider.slider()->value() == row.position, row.name);
        QVERIFY2(slider.value() == row.value, row.name);
    }
}

void TestSliders::mappingOfRandomRanges()
{
    Random random;
    QtOrvSlider slider;
    int unmoved = 0;
    for (int i = 0; i < 3000; ++i) {
        const qint64 span = random.ofAnySize(qint64(highest) - lowest);
        const qint64 minimum = random.between(lowest, highest - span);
        const qint64 maximum = minimum + span;
        const int step = static_cast<int>(random.ofAnySize(highest));
        const auto scale = static_cast<QtOrvSlider::ScaleType>(random.between(0, 2));
        const bool validate = random.between(0, 1);
        slider.setValidate(validate);
        slider.setScaleType(scale);
        slider.setLog10Coef(random.between(0, 1) ? 100.0 : 1.0 + 1000.0 * random.fraction());
        slider.setRange(static_cast<int>(minimum), static_cast<int>(maximum));
        slider.setSingleStep(step);

        std::vector<int> values{slider.minimum(), slider.maximum()};
        for (int k = 0; k < 30; ++k)
            values.push_back(static_cast<int>(random.between(minimum, maximum)));
        std::sort(values.begin(), values.end());

        qint64 last = minimum;
        for (const int value : values) {
            slider.setValue(value);
            const qint64 reached = slider.value();
            slider.setValue(static_cast<int>(reached));
            const qint64 again = slider.value();

            const QByteArray what = joined({minimum, maximum, step, scale, slider.log10Coef(),
                                            validate, value, reached, again});
            QVERIFY2(reached >= minimum && reached <= maximum, what);
            QVERIFY2(reached >= last, what);
            last = reached;
            if (validate)
                QVERIFY2((reached - minimum) % step == 0 || reached == maximum, what);

            // If the grid is about as fine as the logarithmic positions, the position next to a
            // grid value may be half a step above it and belong to the next value.
            const bool mayDrift = validate && scale == QtOrvSlider::ScaleLog10;
            QVERIFY2(again == reached || (mayDrift && again - reached <= step && again > reached),
                     what);
            unmoved += again == reached;
        }
    }
    QVERIFY2(unmoved > 3000 * 32 * 0.999, QByteArray::number(unmoved));
}

// For the sanitizers: no overflow, no invalid conversion, no endless loop.
void TestSliders::extremeInts()
{
    const int numbers[] = {lowest, lowest + 1, -1000, -1, 0, 1, 1000, highest - 1, highest};
    const double coefficients[] = {100.0, 0.0, -3.0, 1e-9, 1e300, infinite, notANumber};
    QtOrvSlider slider;
    for (const auto scale :
         {QtOrvSlider::ScaleLinear, QtOrvSlider::ScaleLog10, QtOrvSlider::ScaleSqrt}) {
        slider.setScaleType(scale);
        for (const double coefficient : coefficients) {
            slider.setLog10Coef(coefficient);
            for (const int minimum : numbers) {
                for (const int maximum : numbers) {
                    slider.setRange(minimum, maximum);
                    for (const int step : numbers) {
                        slider.setValidate(!slider.validate());
                        slider.setSingleStep(step);
                        for (const int value : numbers)
                            slider.setValue(value);
                        // Keys at an arbitrary position.
                        QTest::keyClick(slider.slider(), Qt::Key_Up);
                        QTest::keyClick(slider.slider(), Qt::Key_Down);
                        const int reached = slider.value();
                        if (minimum <= maximum && step >= -1)
                            QVERIFY(reached >= minimum && reached <= maximum);
                    }
                }
            }
        }
    }
}

void TestSliders::keepsTheValueWhenTheMappingChanges()
{
    QtOrvSlider slider;
    slider.setRange(0, 10000);
    slider.setValue(2500);
    slider.setScaleType(QtOrvSlider::ScaleSqrt);
    QCOMPARE(slider.value(), 2500);
    slider.setRange(-900, 20000);
    QCOMPARE(slider.value(), 2464); // 58 * 58 - 900, the nearest position
    slider.setScaleType(QtOrvSlider::ScaleLog10);
    slider.setLog10Coef(2000.0);
    QVERIFY(qAbs(slider.value() - 2464) <= 20);
    slider.setMaximum(1000);
    QCOMPARE(slider.value(), 1000);

    // In the linear scale the keys move by grid steps, in the other scales by positions.
    slider.setSingleStep(7);
    QCOMPARE(slider.slider()->singleStep(), 1);
    slider.setScaleType(QtOrvSlider::ScaleLinear);
    slider.setSingleStep(8);
    QCOMPARE(slider.slider()->singleStep(), 8);
    slider.setScaleType(QtOrvSlider::ScaleSqrt);
    QCOMPARE(slider.slider()->singleStep(), 1);
}

void TestSliders::announcesChangesOnly()
{
    QtOrvSlider slider;
    QSignalSpy values(&slider, &QtOrvSlider::valueChanged);
    QSignalSpy ranges(&slider, &QtOrvSlider::rangeChanged);

    slider.setRange(0, 100);
    QCOMPARE(ranges.count(), 0);
    slider.setRange(10, 200);
    QCOMPARE(ranges.takeFirst(), (QVariantList{10, 200}));
    QCOMPARE(values.takeFirst(), QVariantList{10}); // raised to the minimum
    slider.setValue(50);
    slider.setValue(50);
    slider.setValue(500);
    QCOMPARE(values, (QList<QVariantList>{{50}, {200}}));
    values.clear();

    // A drag reports the position; value() returns the grid value.
    slider.setSingleStep(8);
    slider.setValidate(true);
    slider.slider()->setValue(20);
    QCOMPARE(values.takeFirst(), QVariantList{20});
    QCOMPARE(slider.value(), 18);

    // Several positions have the same value: only the first move changes it.
    slider.setValidate(false);
    slider.setScaleType(QtOrvSlider::ScaleLog10);
    slider.setRange(0, 1000000);
    slider.setValue(0);
    values.clear();
    QSignalSpy moves(&slider, &QtOrvSlider::sliderMoved);
    slider.slider()->setSliderDown(true);
    slider.slider()->setSliderPosition(101);
    slider.slider()->setSliderPosition(102);
    slider.slider()->setSliderPosition(103);
    QCOMPARE(moves, (QList<QVariantList>{{101}, {102}, {103}}));
    QCOMPARE(values, (QList<QVariantList>{{1}})); // 10^1.03 is 10.7
    slider.slider()->setSliderDown(false);

    // The minimum move of a key does not affect later moves.
    slider.setValue(10000);
    const int position = slider.slider()->value();
    QTest::keyClick(slider.slider(), Qt::Key_Up);
    slider.slider()->setValue(position);
    QCOMPARE(values.last(), QVariantList{9990});

    // A slot that sets another value takes precedence.
    connect(&slider, &QtOrvSlider::valueChanged, &slider, [&slider](int value) {
        if (value == 500000)
            slider.setValue(0);
    });
    slider.setScaleType(QtOrvSlider::ScaleLinear);
    for (int round = 0; round < 2; ++round) {
        values.clear();
        slider.setValue(500000);
        QCOMPARE(slider.value(), 0);
        QCOMPARE(values.count(), 2);
    }
}

template<class Slider, class T>
void checkRangeSetBySlot()
{
    Slider slider;
    slider.setValue(80);
    QObject::connect(&slider, &Slider::valueChanged, &slider, [&](T value) {
        if (value == T(50))
            slider.setRange(0, 200);
    });
    QSignalSpy ranges(&slider, &Slider::rangeChanged);
    slider.setRange(0, 50);
    QCOMPARE(ranges, (QList<QVariantList>{{T(0), T(200)}}));
    QCOMPARE(slider.value(), T(50));
}

void TestSliders::announcesTheLatestRangeOnly()
{
    checkRangeSetBySlot<QtOrvSlider, int>();
    checkRangeSetBySlot<QtOrvDoubleSlider, double>();
}

void TestSliders::mapsRealValues()
{
    const struct
    {
        double minimum, maximum, step;
        bool validate;
        int positions;
        double wanted;
        int position;
        double value;
    } rows[] = {
        {0.0, 1.0, 0.3, false, 4, 1.0, 4, 1.0}, // the maximum is off the grid
        {0.0, 1.0, 0.3, false, 4, 0.9, 3, 0.9},   {0.0, 1.0, 0.25, false, 4, 0.6, 2, 0.5},
        {0.0, 1.0, 0.25, true, 4, 0.375, 2, 0.5}, {-6.0, 24.0, 0.5, true, 60, -5.8, 0, -6.0},
        {0.0, 1.0, 0.25, false, 4, 7.0, 4, 1.0},
    };
    for (const auto &row : rows) {
        QtOrvDoubleSlider slider;
        slider.setValidate(row.validate);
        slider.setSingleStep(row.step);
        slider.setRange(row.minimum, row.maximum);
        QCOMPARE(slider.slider()->minimum(), 0);
        QCOMPARE(slider.slider()->maximum(), row.positions);
        slider.setValue(row.wanted);
        QCOMPARE(slider.slider()->value(), row.position);
        QCOMPARE(slider.value(), row.value);
    }

    QtOrvDoubleSlider slider;
    slider.setLocale(QLocale::c());
    slider.setDecimals(1);
    QCOMPARE(slider.maxLabel()->text(), QString("100.000")); // updated with the next maximum
    slider.setMaximum(5000.0);
    QCOMPARE(slider.maxLabel()->text(), QString("5000.0"));
    slider.setLocale(QLocale(QLocale::German));
    QCOMPARE(slider.maxLabel()->text(), QString("5000,0"));

    // With more steps than positions, the exact value is kept until the slider is moved.
    slider.setRange(-1e10, 1e10);
    for (const double value : {1234567891.0, 9999999999.0, -7.0, 1e10}) {
        slider.setValue(value);
        QCOMPARE(slider.value(), value);
    }
    slider.setMinimum(-2e10);
    QCOMPARE(slider.value(), 1e10);
    slider.slider()->setValue(highest / 3);
    QVERIFY(std::abs(slider.value() + 1e10) < 20.0 && slider.value() == std::round(slider.value()));
}

void TestSliders::mappingOfRandomRealRanges()
{
    Random random;
    QtOrvDoubleSlider slider;
    for (int i = 0; i < 3000; ++i) {
        const double span = std::pow(10.0, 12.0 * random.fraction() - 6.0);
        const double minimum = span * (4.0 * random.fraction() - 2.0);
        const double maximum = minimum + span;
        const double step = span * std::pow(10.0, -6.0 * random.fraction());
        slider.setValidate(random.between(0, 1));
        slider.setRange(minimum, maximum);
        slider.setSingleStep(step);

        std::vector<double> values{minimum, maximum};
        for (int k = 0; k < 30; ++k)
            values.push_back(qMin(minimum + span * random.fraction(), maximum));
        std::sort(values.begin(), values.end());

        double last = minimum;
        for (const double value : values) {
            slider.setValue(value);
            const double reached = slider.value();
            const int position = slider.slider()->value();
            slider.setValue(reached);

            const QByteArray what =
                joined({minimum, maximum, step, slider.validate(), value, reached, slider.value()});
            QVERIFY2(slider.slider()->value() == position && slider.value() == reached, what);
            QVERIFY2(reached >= minimum && reached <= maximum, what);
            QVERIFY2(reached >= last, what);
            last = reached;
            const double steps = (reached - minimum) / step;
            QVERIFY2(std::abs(steps - std::round(steps)) < 1e-6 || reached == maximum, what);
        }
    }
}

void TestSliders::extremeReals()
{
    const double most = std::numeric_limits<double>::max();
    const double numbers[] = {0.0, -1.0, 1e-300, 0.1, 1e9, -1e300, most, infinite, notANumber};
    QtOrvDoubleSlider slider;
    for (const double minimum : numbers) {
        for (const double maximum : numbers) {
            slider.setRange(minimum, maximum);
            for (const double step : numbers) {
                slider.setValidate(!slider.validate());
                slider.setSingleStep(step);
                for (const double value : numbers)
                    slider.setValue(value);
                QVERIFY(slider.slider()->maximum() >= 0);
            }
        }
    }

    // Without a step, only the two ends are valid.
    slider.setRange(1.0, 2.0);
    slider.setValidate(true);
    slider.setSingleStep(0.0);
    slider.setValue(1.0);
    QCOMPARE(slider.value(), 1.0);
    slider.setValue(1.5);
    QCOMPARE(slider.value(), 2.0);
}

QTEST_MAIN(TestSliders)
#include "tst_sliders.moc"
