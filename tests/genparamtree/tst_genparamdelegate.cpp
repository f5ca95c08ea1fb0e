// SPDX-License-Identifier: MIT
#include "genparamtree/genparamdelegate.h"

#include "genparamtree/genparamtreemodel.h"
#include "genparamtree/genparamtreevisibilityfilterproxymodel.h"
#include "samplenodemap.h"
#include "treecells.h"

#include <QtTest>
#include <QtWidgets>

#include <memory>

/// The objects that a delegate needs; they are destroyed in reverse order.
struct Bench
{
    SampleNodeMap map;
    GenParamTreeModel model{&map};
    GenParamDelegate delegate;
    QWidget parent;
    std::unique_ptr<QWidget> editor;
};

class TestGenParamDelegate : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_bench = std::make_unique<Bench>(); }
    void cleanup() { m_bench.reset(); }

    void integers();
    void integerLimits();
    void floats();
    void comboBoxes();
    void comboBoxCommitsOnChange();
    void commands();
    void visibilityFilter();

private:
    template<typename T>
    T *open(const char *feature)
    {
        const QModelIndex cell = valueCell(m_bench->model, feature);
        m_bench->editor.reset(
            m_bench->delegate.createEditor(&m_bench->parent, QStyleOptionViewItem(), cell));
        m_bench->delegate.setEditorData(m_bench->editor.get(), cell);
        return qobject_cast<T *>(m_bench->editor.get());
    }
    void commit(const char *feature)
    {
        m_bench->delegate.setModelData(m_bench->editor.get(), &m_bench->model,
                                       valueCell(m_bench->model, feature));
    }

    std::unique_ptr<Bench> m_bench;
};

void TestGenParamDelegate::integers()
{
    m_bench->map.integer("Width").setUnit("px");
    auto *spinBox = open<QSpinBox>("Width");
    QCOMPARE(spinBox->minimum(), 16);
    QCOMPARE(spinBox->maximum(), 1280);
    QCOMPARE(spinBox->singleStep(), 16);
    QCOMPARE(spinBox->text(), QString("1280px"));

    auto *hex = open<QSpinBox>("GevDeviceModeCapability");
    QCOMPARE(hex->displayIntegerBase(), 16);
    QCOMPARE(hex->text(), QString("ff"));
    QCOMPARE(hex->singleStep(), 1);
}

void TestGenParamDelegate::integerLimits()
{
    const struct
    {
        int64_t min, max;
        int spinBoxMin, spinBoxMax;
    } rows[] = {{-5, 7, -5, 7},
                {0, 0xffffffff, 0, 0x7fffffff},               // clamped
                {-0x100000001, 0x100000000, -1, 0x7fffffff}}; // truncated
    for (const auto &row : rows) {
        m_bench->map.integer("GevDeviceModeCapability").setLimits(row.min, row.max);
        auto *spinBox = open<QSpinBox>("GevDeviceModeCapability");
        QCOMPARE(spinBox->minimum(), row.spinBoxMin);
        QCOMPARE(spinBox->maximum(), row.spinBoxMax);
    }
}

void TestGenParamDelegate::floats()
{
    m_bench->map.number("ExposureTime").setIncrement(2.5);
    auto *spinBox = open<QDoubleSpinBox>("ExposureTime");
    QCOMPARE(spinBox->minimum(), 10.0);
    QCOMPARE(spinBox->maximum(), 1000000.0);
    QCOMPARE(spinBox->singleStep(), 2.5);
    QCOMPARE(spinBox->decimals(), 2);
    QCOMPARE(spinBox->text(), QString("10000.00us"));
}

void TestGenParamDelegate::comboBoxes()
{
    const struct
    {
        const char *feature;
        QStringList texts;
        int current, type;
    } rows[] = {
        {"ReverseX", {"True", "False"}, 1, QMetaType::Bool},
        {"PixelFormat", {"Mono8", "Mono12"}, 0, QMetaType::LongLong},
        {"BinningHorizontal", {"1px", "2px", "4px", "8px"}, 0, QMetaType::LongLong},
        {"Gain", {"0dB", "1.5dB", "3dB", "6dB", "12dB", "24dB"}, 1, QMetaType::Double},
    };
    for (const auto &row : rows) {
        auto *comboBox = open<QComboBox>(row.feature);
        QVERIFY2(comboBox, row.feature);
        QStringList shown;
        for (int i = 0; i < comboBox->count(); ++i) {
            shown.append(comboBox->itemText(i));
            QCOMPARE(comboBox->itemData(i).userType(), row.type);
        }
        QCOMPARE(shown, row.texts);
        QCOMPARE(comboBox->currentIndex(), row.current);
    }
}

// A combo box emits both signals, in this order, at every change of its index, also while it is
// filled. A value without an entry leaves it without a current entry.
void TestGenParamDelegate::comboBoxCommitsOnChange()
{
    QStringList asked;
    connect(&m_bench->delegate, &QAbstractItemDelegate::commitData, this,
            [&asked] { asked.append(QString("commit")); });
    connect(&m_bench->delegate, &QAbstractItemDelegate::closeEditor, this,
            [&asked](QWidget *, QAbstractItemDelegate::EndEditHint hint) {
                asked.append(QString("close %1").arg(hint));
            });
    const QStringList once{QString("commit"), QString("close 0")};

    m_bench->map.enumeration("PixelFormat").change(255);
    auto *comboBox = open<QComboBox>("PixelFormat");
    QCOMPARE(comboBox->currentIndex(), -1);
    QCOMPARE(asked, once);
    asked.clear();
    comboBox->setCurrentIndex(1);
    QCOMPARE(asked, once);
}

void TestGenParamDelegate::commands()
{
    QSignalSpy commits(&m_bench->delegate, &QAbstractItemDelegate::commitData);
    QSignalSpy closes(&m_bench->delegate, &QAbstractItemDelegate::closeEditor);
    auto *button = open<QPushButton>("DeviceReset");
    commit("DeviceReset");
    QCOMPARE(m_bench->map.resets, 0);

    for (int clicks = 1; clicks <= 2; ++clicks) {
        button->click();
        QVERIFY(button->isWindowModified());
        QCOMPARE(commits.count(), clicks);
        commit("DeviceReset");
        commit("DeviceReset");
        QCOMPARE(m_bench->map.resets, clicks);
    }
    QCOMPARE(closes.count(), 0);
}

void TestGenParamDelegate::visibilityFilter()
{
    m_bench->map.category("GigEVision").properties().visibility = GenApi::Guru;
    m_bench->map.integer("GevMACAddress").properties().visibility = GenApi::Beginner;
    m_bench->map.number("Gain").properties().visibility = GenApi::Invisible;
    for (const char *feature : {"ExposureTime", "GainSelector", "TriggerDivider"})
        m_bench->map.node(feature)->properties().visibility = GenApi::Invisible;

    GenParamTreeVisibilityFilterProxyModel filter;
    filter.setSourceModel(&m_bench->model);
    const QPersistentModelIndex branch(cellOf(filter, "AcquisitionControl", 0));
    const auto shows = [&filter](const char *feature) {
        return valueCell(filter, QString::fromLatin1(feature)).isValid();
    };
    const struct
    {
        bool temperature, firmwareKey, macAddress;
    } expected[] = {{false, false, false}, {true, false, false}, {true, true, true}};
    for (const int level : {0, 1, 2, 1, 0}) {
        filter.setFilterVisibility(level);
        QCOMPARE(filter.filterVisibility(), level);
        QCOMPARE(shows("DeviceTemperature"), expected[level].temperature);
        QCOMPARE(shows("FirmwareKey"), expected[level].firmwareKey);
        QCOMPARE(shows("GevMACAddress"), expected[level].macAddress);
        QVERIFY(!shows("Gain"));
        QVERIFY(branch.isValid());
        QCOMPARE(filter.rowCount(branch), 0);
    }
}

QTEST_MAIN(TestGenParamDelegate)
#include "tst_genparamdelegate.moc"
