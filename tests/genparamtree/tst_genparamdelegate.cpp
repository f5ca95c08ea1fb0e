// SPDX-License-Identifier: MIT
#include "genparamdelegate.h"

#include "genparamtreemodel.h"
#include "genparamtreevisibilityfilterproxymodel.h"
#include "samplenodemap.h"
#include "treecells.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QtTest>

#include <memory>

class TestGenParamDelegate : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void integers();
    void integerLimits_data();
    void integerLimits();
    void floats();
    void comboBoxes_data();
    void comboBoxes();
    void comboBoxCommitsOnChange();
    void commands();
    void addresses();
    void otherNodes();
    void failingNodes();
    void visibilityFilter();

private:
    template<typename T>
    T *open(const char *feature)
    {
        const QModelIndex cell = valueCell(*m_model, QString::fromLatin1(feature));
        m_editor.reset(m_delegate->createEditor(m_parent.get(), QStyleOptionViewItem(), cell));
        m_delegate->setEditorData(m_editor.get(), cell);
        return qobject_cast<T *>(m_editor.get());
    }
    void commit(const char *feature)
    {
        m_delegate->setModelData(m_editor.get(), m_model.get(),
                                 valueCell(*m_model, QString::fromLatin1(feature)));
    }

    std::unique_ptr<SampleNodeMap> m_map;
    std::unique_ptr<GenParamTreeModel> m_model;
    std::unique_ptr<GenParamDelegate> m_delegate;
    std::unique_ptr<QWidget> m_parent;
    std::unique_ptr<QWidget> m_editor;
};

void TestGenParamDelegate::init()
{
    m_map.reset(new SampleNodeMap);
    m_model.reset(new GenParamTreeModel(m_map.get()));
    m_delegate.reset(new GenParamDelegate);
    m_parent.reset(new QWidget);
}

void TestGenParamDelegate::cleanup()
{
    m_editor.reset();
    m_parent.reset();
    m_delegate.reset();
    m_model.reset();
    m_map.reset();
}

void TestGenParamDelegate::integers()
{
    m_map->integer("Width").setUnit("px");
    auto *spinBox = open<QSpinBox>("Width");
    QVERIFY(spinBox);
    QCOMPARE(spinBox->parentWidget(), m_parent.get());
    QCOMPARE(spinBox->minimum(), 16);
    QCOMPARE(spinBox->maximum(), 1280);
    QCOMPARE(spinBox->singleStep(), 16);
    QCOMPARE(spinBox->text(), QStringLiteral("1280px"));
    QVERIFY(spinBox->isAccelerated());
    QVERIFY(!spinBox->hasFrame());

    spinBox->setValue(640);
    QCOMPARE(m_map->integer("Width").writes(), 0);
    commit("Width");
    QCOMPARE(m_map->integer("Width").GetValue(), int64_t(640));

    auto *hex = open<QSpinBox>("GevDeviceModeCapability");
    QVERIFY(hex);
    QCOMPARE(hex->displayIntegerBase(), 16);
    QCOMPARE(hex->text(), QStringLiteral("ff"));
    QCOMPARE(hex->singleStep(), 1);
}

void TestGenParamDelegate::integerLimits_data()
{
    QTest::addColumn<qlonglong>("min");
    QTest::addColumn<qlonglong>("max");
    QTest::addColumn<int>("spinBoxMin");
    QTest::addColumn<int>("spinBoxMax");

    QTest::newRow("within 32 bits") << -5LL << 7LL << -5 << 7;
    QTest::newRow("maximum clamped") << 0LL << 0xffffffffLL << 0 << 0x7fffffff;
    QTest::newRow("minimum cut off") << -0x100000001LL << 0x100000000LL << -1 << 0x7fffffff;
}

void TestGenParamDelegate::integerLimits()
{
    QFETCH(qlonglong, min);
    QFETCH(qlonglong, max);
    m_map->integer("GevDeviceModeCapability").setLimits(min, max);
    auto *spinBox = open<QSpinBox>("GevDeviceModeCapability");
    QVERIFY(spinBox);
    QTEST(spinBox->minimum(), "spinBoxMin");
    QTEST(spinBox->maximum(), "spinBoxMax");
}

void TestGenParamDelegate::floats()
{
    m_map->number("ExposureTime").setIncrement(2.5);
    auto *spinBox = open<QDoubleSpinBox>("ExposureTime");
    QVERIFY(spinBox);
    QCOMPARE(spinBox->minimum(), 10.0);
    QCOMPARE(spinBox->maximum(), 1000000.0);
    QCOMPARE(spinBox->singleStep(), 2.5);
    QCOMPARE(spinBox->decimals(), 2);
    QCOMPARE(spinBox->text(), QStringLiteral("10000.00us"));
    QVERIFY(!spinBox->isAccelerated());
    QVERIFY(!spinBox->hasFrame());

    spinBox->setValue(512.5);
    commit("ExposureTime");
    QCOMPARE(m_map->number("ExposureTime").GetValue(), 512.5);
}

void TestGenParamDelegate::comboBoxes_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("afterFirst");

    QTest::newRow("boolean") << "ReverseX" << QStringList{"True", "False"} << 1
                             << int(QMetaType::Bool) << "1";
    QTest::newRow("enumeration") << "PixelFormat" << QStringList{"Mono8", "Mono12"} << 0
                                 << int(QMetaType::LongLong) << "Mono8";
    QTest::newRow("integer list") << "BinningHorizontal" << QStringList{"1px", "2px", "4px", "8px"}
                                  << 0 << int(QMetaType::LongLong) << "1";
    QTest::newRow("float list") << "Gain"
                                << QStringList{"0dB", "1.5dB", "3dB", "6dB", "12dB", "24dB"} << 1
                                << int(QMetaType::Double) << "0";
}

void TestGenParamDelegate::comboBoxes()
{
    QFETCH(QString, feature);
    QFETCH(QStringList, texts);
    QFETCH(int, type);
    QFETCH(QString, afterFirst);

    const QByteArray name = feature.toLatin1();
    auto *comboBox = open<QComboBox>(name.constData());
    QVERIFY(comboBox);
    QVERIFY(!comboBox->hasFrame());
    QStringList shown;
    for (int i = 0; i < comboBox->count(); ++i) {
        shown.append(comboBox->itemText(i));
        QCOMPARE(comboBox->itemData(i).userType(), type);
    }
    QCOMPARE(shown, texts);
    QTEST(comboBox->currentIndex(), "current");
    QVERIFY(comboBox->view()->isVisible());

    comboBox->setCurrentIndex(0);
    commit(name.constData());
    const GenApi::CValuePtr value(m_map->GetNode(name.constData()));
    QCOMPARE(QString::fromLatin1(value->ToString()), afterFirst);
}

// A combo box asks for both, in this order, for every change of its index: also for the one that
// filling it makes. A value that no entry stands for leaves it without a current entry.
void TestGenParamDelegate::comboBoxCommitsOnChange()
{
    QStringList asked;
    connect(m_delegate.get(), &QAbstractItemDelegate::commitData, this,
            [&asked] { asked.append(QStringLiteral("commit")); });
    connect(m_delegate.get(), &QAbstractItemDelegate::closeEditor, this,
            [&asked](QWidget *, QAbstractItemDelegate::EndEditHint hint) {
                asked.append(QStringLiteral("close %1").arg(hint));
            });
    const QStringList once{QStringLiteral("commit"), QStringLiteral("close 0")};

    m_map->enumeration("PixelFormat").change(255);
    auto *comboBox = open<QComboBox>("PixelFormat");
    QCOMPARE(comboBox->currentIndex(), -1);
    QCOMPARE(asked, once);
    asked.clear();
    comboBox->setCurrentIndex(1);
    QCOMPARE(asked, once);
}

void TestGenParamDelegate::commands()
{
    QSignalSpy commits(m_delegate.get(), &QAbstractItemDelegate::commitData);
    QSignalSpy closes(m_delegate.get(), &QAbstractItemDelegate::closeEditor);
    auto *button = open<QPushButton>("DeviceReset");
    QVERIFY(button);
    QCOMPARE(button->text(), QStringLiteral("Execute"));
    commit("DeviceReset");
    QCOMPARE(m_map->resets, 0);

    for (int clicks = 1; clicks <= 2; ++clicks) {
        button->click();
        QVERIFY(button->isWindowModified());
        QCOMPARE(commits.count(), clicks);
        commit("DeviceReset");
        commit("DeviceReset");
        QCOMPARE(m_map->resets, clicks);
    }
    QCOMPARE(closes.count(), 0);
}

void TestGenParamDelegate::addresses()
{
    auto *lineEdit = open<QLineEdit>("GevPersistentIPAddress");
    QVERIFY(lineEdit);
    QCOMPARE(lineEdit->objectName(), QStringLiteral("ipAddressLineEdit"));
    QCOMPARE(lineEdit->text(), QStringLiteral("192.168.1.2"));
    QCOMPARE(lineEdit->alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
    QVERIFY(lineEdit->hasFrame());

    lineEdit->setText(QStringLiteral("10.0.0.256"));
    QVERIFY(!lineEdit->hasAcceptableInput());
    lineEdit->setText(QStringLiteral("10.0.0.25"));
    commit("GevPersistentIPAddress");
    QCOMPARE(m_map->integer("GevPersistentIPAddress").GetValue(), int64_t(0x0a000019));

    // The default editor of a text field serves strings.
    auto *text = open<QLineEdit>("DeviceUserID");
    QVERIFY(text);
    QVERIFY(text->objectName() != QStringLiteral("ipAddressLineEdit"));
    text->setText(QStringLiteral("left camera"));
    commit("DeviceUserID");
    QCOMPARE(valueCell(*m_model, QStringLiteral("DeviceUserID")).data().toString(),
             QStringLiteral("left camera"));
}

// Rows of other models have no node: they are edited as everywhere else.
void TestGenParamDelegate::otherNodes()
{
    QStandardItemModel model(1, 1);
    const QModelIndex index = model.index(0, 0);
    model.setData(index, QStringLiteral("before"));
    std::unique_ptr<QWidget> editor(
        m_delegate->createEditor(m_parent.get(), QStyleOptionViewItem(), index));
    m_delegate->setEditorData(editor.get(), index);
    auto *lineEdit = qobject_cast<QLineEdit *>(editor.get());
    QVERIFY(lineEdit);
    QCOMPARE(lineEdit->text(), QStringLiteral("before"));
    lineEdit->setText(QStringLiteral("after"));
    m_delegate->setModelData(editor.get(), &model, index);
    QCOMPARE(index.data().toString(), QStringLiteral("after"));

    // An editor of the wrong class is left alone.
    m_delegate->setEditorData(editor.get(), valueCell(*m_model, QStringLiteral("Width")));
    m_delegate->setEditorData(editor.get(), valueCell(*m_model, QStringLiteral("Gain")));
    QCOMPARE(lineEdit->text(), QStringLiteral("after"));

    QStyleOptionViewItem option;
    option.rect = QRect(3, 4, 50, 20);
    m_delegate->updateEditorGeometry(editor.get(), option, index);
    QCOMPARE(editor->geometry(), option.rect);
}

// The delegate hands a node's exception on, and leaves no half-made editor behind.
void TestGenParamDelegate::failingNodes()
{
    auto &width = m_map->integer("Width");
    width.bindMax(
        []() -> int64_t { throw GenICam::TimeoutException("no answer", __FILE__, __LINE__); });
    width.changed();
    QVERIFY_EXCEPTION_THROWN(open<QSpinBox>("Width"), GenICam::TimeoutException);
    QVERIFY(m_parent->children().isEmpty());
}

void TestGenParamDelegate::visibilityFilter()
{
    m_map->category("GigEVision").properties().visibility = GenApi::Guru;
    m_map->integer("GevMACAddress").properties().visibility = GenApi::Beginner;
    m_map->number("Gain").properties().visibility = GenApi::Invisible;
    for (const char *feature : {"ExposureTime", "GainSelector", "TriggerDivider"})
        m_map->node(feature)->properties().visibility = GenApi::Invisible;

    GenParamTreeVisibilityFilterProxyModel filter;
    filter.setSourceModel(m_model.get());
    const QPersistentModelIndex branch(cellOf(filter, QStringLiteral("AcquisitionControl"), 0));
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
