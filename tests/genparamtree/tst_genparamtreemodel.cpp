// SPDX-License-Identifier: MIT
#include "genparamtree/genparamtreemodel.h"
#include "samplenodemap.h"
#include "treecells.h"

#include <QAbstractItemModelTester>
#include <QBrush>
#include <QPalette>
#include <QtTest>

#include <algorithm>
#include <array>
#include <random>
#include <stdexcept>

using GenICam::TimeoutException;

namespace {

[[noreturn]] void throwTimeout()
{
    throw TimeoutException("no answer", __FILE__, __LINE__);
}

QString nameOf(const QModelIndex &index)
{
    return index.sibling(index.row(), 0).data().toString();
}

/// All the cells below an index.
void collect(const QAbstractItemModel &model, const QModelIndex &parent, QModelIndexList &indexes)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        indexes << model.index(row, 0, parent) << model.index(row, 1, parent);
        collect(model, model.index(row, 0, parent), indexes);
    }
}

/// Records the parent of each feature's first row below an index.
void noteParents(const QAbstractItemModel &model, const QModelIndex &parent,
                 QHash<void *, QModelIndex> &parents)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (!parents.contains(index.internalPointer()))
            parents.insert(index.internalPointer(), parent);
        noteParents(model, index, parents);
    }
}

/// A category whose features change, or whose list of features cannot be read.
class ChangingCategory : public OrvGenApi::DeclaredCategory
{
public:
    using DeclaredCategory::DeclaredCategory;
    void GetFeatures(GenApi::FeatureList_t &list) const override
    {
        if (isSilent)
            throwTimeout();
        list = features;
    }
    GenApi::FeatureList_t features;
    bool isSilent = false;
};

struct ValueCase
{
    const char *feature = nullptr;
    GenApi::EAccessMode mode = GenApi::RW;
    const char *display = nullptr;
    bool grey = false;
    bool editable = false;
    QVariant edit = QVariant(); ///< by default the text itself
};

} // namespace

Q_DECLARE_METATYPE(ValueCase)

class TestGenParamTreeModel : public QObject
{
    Q_OBJECT

private slots:
    void structure();
    void featureListedTwice();
    void changedCategories();
    void changedLongCategory();
    void circularCategories();
    void names();
    void values_data();
    void values();
    void unreadableNodes();
    void writesValues();
    void refusedWrites();
    void commands();
    void descriptions_data();
    void descriptions();
};

void TestGenParamTreeModel::structure()
{
    SampleNodeMap map;
    GenParamTreeModel model(&map);
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);

    QCOMPARE(model.rowCount(), 4);
    QCOMPARE(model.columnCount(), 2);
    QCOMPARE(model.rowCount(model.index(0, 0)), 6);
    const QModelIndex mac = valueCell(model, "GevMACAddress");
    QCOMPARE(nameOf(mac.parent()), QString("GigE Vision"));
    QCOMPARE(nameOf(mac.parent().parent()), QString("Transport Layer Control"));
    QVERIFY(!mac.parent().parent().parent().isValid());

    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
        QCOMPARE(model.headerData(0, orientation).toString(), QString("Name"));
        QCOMPARE(model.headerData(1, orientation).toString(), QString("Value"));
    }

    // The model shows a feature that is added to a category.
    map.addInteger("Height", 1024, "ImageFormatControl");
    const QModelIndex height = valueCell(model, "Height");
    QCOMPARE(height.row(), 4);
    QCOMPARE(height.data().toInt(), 1024);
}

void TestGenParamTreeModel::featureListedTwice()
{
    SampleNodeMap map;
    auto &gain = map.number("Gain");
    map.addCategory("Favourites").addFeature(gain);
    GenParamTreeModel model(&map);

    const QModelIndex favourites = model.index(4, 0);
    QCOMPARE(model.rowCount(favourites), 1);
    const QModelIndex first = valueCell(model, "Gain");
    const QModelIndex second = model.index(0, 1, favourites);
    QCOMPARE(second.data(Qt::UserRole), first.data(Qt::UserRole));
    QCOMPARE(nameOf(first.parent()), QString("Acquisition Control"));
    QCOMPARE(nameOf(second.parent()), QString("Acquisition Control"));

    // One callback per row; each of them reports the first row.
    QSignalSpy changes(&model, &GenParamTreeModel::dataChanged);
    gain.changed();
    QCOMPARE(changes.count(), 2);
    for (const QList<QVariant> &change : changes)
        QCOMPARE(change.at(0).toModelIndex(), first);
}

// The parent of a cell is the one that a search from the root finds, after any change of the lists.
void TestGenParamTreeModel::changedCategories()
{
    OrvGenApi::MemoryNodeMap map;
    OrvGenApi::NodeProperties properties;
    properties.name = "Changing";
    ChangingCategory first(map, properties);
    ChangingCategory inner(map, properties);
    ChangingCategory last(map, properties);
    std::vector<OrvGenApi::MemoryInteger *> integers;
    map.root().addFeature(first);
    for (const char *name : {"A", "B", "C", "D"})
        integers.push_back(&map.addInteger(name, 0, "Everything"));
    map.root().addFeature(last);
    map.root().addFeature(inner);

    const GenParamTreeModel model(&map);
    connect(&model, &GenParamTreeModel::dataChanged, this, [&model](const QModelIndex &cell) {
        QCOMPARE(model.index(cell.row(), 1, cell.parent()), cell);
    });
    std::mt19937 random(1);
    for (int change = 0; change < 1000; ++change) {
        ChangingCategory &changed = *std::array{&first, &inner, &last}[random() % 3];
        changed.isSilent = random() % 8 == 0;
        changed.features.clear();
        for (unsigned count = random() % 4; count > 0; --count)
            changed.features.push_back(integers[random() % integers.size()]);
        if (&changed != &inner && random() % 2)
            changed.features.insert(changed.features.begin(), &inner);

        for (OrvGenApi::MemoryInteger *integer : integers)
            integer->changed();
        QHash<void *, QModelIndex> parents;
        noteParents(model, QModelIndex(), parents);
        QModelIndexList cells;
        collect(model, QModelIndex(), cells);
        for (const QModelIndex &cell : cells)
            QCOMPARE(cell.parent(), parents.value(cell.internalPointer()));
    }
}

// The model reads the list again when its length changes, and in the next iteration of the event
// loop.
void TestGenParamTreeModel::changedLongCategory()
{
    OrvGenApi::MemoryNodeMap map;
    OrvGenApi::NodeProperties properties;
    ChangingCategory category(map, properties);
    map.root().addFeature(category);
    for (int i = 0; i < 1000; ++i)
        category.features.push_back(&map.addInteger("Feature" + std::to_string(i), i, ""));
    GenParamTreeModel model(&map);
    const QModelIndex parent = model.index(0, 0);
    const auto valueAt = [&](int row) { return model.index(row, 1, parent).data().toInt(); };

    QCOMPARE(valueAt(999), 999);
    std::reverse(category.features.begin(), category.features.end());
    QCoreApplication::processEvents();
    QCOMPARE(valueAt(0), 999);
    category.features.erase(category.features.begin());
    QCOMPARE(model.rowCount(parent), 999);
    QCOMPARE(valueAt(0), 998);
    category.features.push_back(&map.addInteger("Feature1000", 1000, ""));
    QCOMPARE(valueAt(999), 1000);
}

// A category within itself is omitted where the traversal would enter it again; other rows are
// shown.
void TestGenParamTreeModel::circularCategories()
{
    OrvGenApi::MemoryNodeMap map;
    auto &a = map.addCategory("A");
    auto &b = map.addCategory("B", "A");
    map.addInteger("First", 1, "B");
    b.addFeature(a);
    b.addFeature(b);
    b.addFeature(map.root());
    auto &last = map.addInteger("Last", 2, "B");
    map.root().addFeature(b);

    GenParamTreeModel model(&map);
    QModelIndexList cells;
    collect(model, QModelIndex(), cells);
    QStringList names;
    for (const QModelIndex &cell : cells) {
        if (cell.column() == 0)
            names << nameOf(cell);
    }
    QCOMPARE(names, QString("A B First Last B First Last").split(' '));
    QCOMPARE(nameOf(valueCell(model, "Last").parent()), QString("B"));
    QSignalSpy changes(&model, &GenParamTreeModel::dataChanged);
    last.change(3);
    QCOMPARE(changes.count(), 2);
    QCOMPARE(changes.first().first().toModelIndex(), valueCell(model, "Last"));
}

void TestGenParamTreeModel::names()
{
    SampleNodeMap map;
    const GenParamTreeModel model(&map);
    map.integer("FirmwareKey").properties().displayName = "Schl\xc3\xbcssel";
    const QModelIndex key = cellOf(model, "FirmwareKey", 0);
    QCOMPARE(key.data().toString(), QString("Schl\u00fcssel"));
    QCOMPARE(key.data(Qt::ToolTipRole).toString(), QString("Schl\u00fcssel"));
    QVERIFY(!key.data(Qt::BackgroundRole).isValid());
    QCOMPARE(cellOf(model, "Gain", 0).data().toString(), QString("Gain"));
    QCOMPARE(cellOf(model, "DeviceModelName", 0).data(Qt::ToolTipRole).toString(),
             QString("Model of the device"));

    QCOMPARE(cellOf(model, "DeviceControl", 0).data(Qt::BackgroundRole).value<QBrush>(),
             QPalette().brush(QPalette::Active, QPalette::Midlight));
    const QModelIndex categoryValue = valueCell(model, "DeviceControl");
    QVERIFY(!categoryValue.data().isValid() && !categoryValue.data(Qt::EditRole).isValid());
    QVERIFY(!(categoryValue.flags() & Qt::ItemIsEditable));
}

void TestGenParamTreeModel::values_data()
{
    QTest::addColumn<ValueCase>("row");
    const bool grey = true;
    const bool editable = true;
    const QVariant width = QVariant::fromValue(1280L);
    const QVariant format = QVariant::fromValue(0x01080001L);
    for (const ValueCase &row :
         {ValueCase{"Width", GenApi::RW, "1280", !grey, editable, width},
          ValueCase{"Width", GenApi::RO, "1280", grey, !editable, width},
          ValueCase{"Width", GenApi::WO, "<Value not readable>", grey, editable},
          ValueCase{"Width", GenApi::NA, "<Value not available>", grey, !editable},
          ValueCase{"Width", GenApi::NI, "<Value not available>", grey, !editable},
          ValueCase{"GevCurrentSubnetMask", GenApi::RW, "255.255.255.0", !grey, editable},
          ValueCase{"GevPersistentSubnetMask", GenApi::RW, "255.255.0.0", !grey, editable},
          ValueCase{"GevPersistentIPAddress", GenApi::RO, "192.168.1.2", grey, !editable},
          ValueCase{"GevMACAddress", GenApi::RO, "00:11:AA:BB:CC:DD", grey, !editable},
          ValueCase{"GevDeviceModeCapability", GenApi::RW, "FF", !grey, editable},
          ValueCase{"Offset", GenApi::RW, "FFFFFFFFFFFFFFFF", !grey, editable},
          ValueCase{"Timestamp", GenApi::RO, "9223372036854775807", grey, !editable,
                    QVariant::fromValue(0x7fffffffffffffffL)},
          ValueCase{"ReverseX", GenApi::RW, "false", !grey, editable, false},
          ValueCase{"ExposureTime", GenApi::RW, "10000", !grey, editable, 10000.0},
          ValueCase{"DeviceModelName", GenApi::RO, "Sample 1300", grey, !editable},
          ValueCase{"PixelFormat", GenApi::RW, "Mono8", !grey, editable, format},
          ValueCase{"DeviceReset", GenApi::WO, "Execute", !grey, editable},
          ValueCase{"DeviceReset", GenApi::RO, "Execute", grey, !editable},
          ValueCase{"DeviceReset", GenApi::NA, "<Value not available>", grey, !editable},
          ValueCase{"UserMemory", GenApi::RO, "0xdead", grey, !editable}})
        QTest::addRow("%s %d", row.feature, row.mode) << row;
}

void TestGenParamTreeModel::values()
{
    QFETCH(ValueCase, row);
    SampleNodeMap map;
    map.addInteger("Timestamp", INT64_C(0x7fffffffffffffff));
    map.addInteger("Offset", -1).setRepresentation(GenApi::HexNumber);
    map.addInteger("GevPersistentSubnetMask", 0xffff0000);
    const GenParamTreeModel model(&map);
    map.GetNode(row.feature)->ImposeAccessMode(row.mode);
    const QModelIndex cell = valueCell(model, row.feature);
    const QVariant edit = row.edit.isValid() ? row.edit : QVariant(QString(row.display));

    QCOMPARE(cell.data().toString(), QString(row.display));
    QCOMPARE(cell.data(Qt::EditRole), edit);
    QCOMPARE(cell.data(Qt::EditRole).userType(), edit.userType());
    QCOMPARE(cell.data(Qt::ForegroundRole).isValid(), row.grey);
    if (row.grey) {
        QCOMPARE(cell.data(Qt::ForegroundRole).value<QBrush>(),
                 QPalette().brush(QPalette::Disabled, QPalette::Text));
    }
    QCOMPARE(cell.flags(), Qt::ItemIsSelectable | Qt::ItemIsEnabled |
                               (row.editable ? Qt::ItemIsEditable : Qt::NoItemFlags));
    QVERIFY(!cell.data(Qt::ToolTipRole).isValid());
    QVERIFY(!(cell.sibling(cell.row(), 0).flags() & Qt::ItemIsEditable));
}

// A failing node leaves its own cells empty; the other rows are shown.
void TestGenParamTreeModel::unreadableNodes()
{
    SampleNodeMap map;
    const GenParamTreeModel model(&map);
    map.integer("Width").onRead(throwTimeout);
    const QModelIndex cell = valueCell(model, "Width");
    QVERIFY(!cell.data().isValid());
    QVERIFY(!cell.data(Qt::EditRole).isValid());
    QVERIFY(cell.data(Qt::UserRole).isValid());

    auto &height = map.addInteger("Height", 1024, "ImageFormatControl");
    height.bindMax([]() -> int64_t { throwTimeout(); });
    const QModelIndex heightCell = valueCell(model, "Height");
    QVERIFY(!heightCell.data(Qt::WhatsThisRole).isValid());
    QCOMPARE(heightCell.data().toInt(), 1024);
}

void TestGenParamTreeModel::writesValues()
{
    const struct
    {
        const char *feature;
        QVariant value;
        QString written;
    } rows[] = {
        {"Width", 640, "640"},
        {"Width", "640", "640"},
        {"GevDeviceModeCapability", qlonglong(0xabc), "0xABC"},
        {"GevPersistentIPAddress", "10.0.0.1", "167772161"},
        {"ReverseX", true, "1"},
        {"ExposureTime", 12.5, "12.5"},
        {"DeviceUserID", QString("\u00b5 1"), QString("\u00b5 1")},
        {"PixelFormat", qlonglong(0x01100005), "Mono12"},
        {"GainSelector", "1", "Red"}, // entries, by number and by name
        {"GainSelector", "Red", "Red"},
    };
    for (const auto &row : rows) {
        SampleNodeMap map;
        GenParamTreeModel model(&map);
        const QModelIndex cell = valueCell(model, row.feature);
        QSignalSpy changes(&model, &GenParamTreeModel::dataChanged);
        QVERIFY2(model.setData(cell, row.value), row.feature);
        const GenApi::CValuePtr node(map.GetNode(row.feature));
        QCOMPARE(QString::fromUtf8(node->ToString().c_str()), row.written);

        // The node reports the change first, without a role; then the model reports it with the
        // role.
        QCOMPARE(changes.first().at(0).toModelIndex(), cell);
        QVERIFY(changes.first().at(2).value<QVector<int>>().isEmpty());
        QCOMPARE(changes.last().at(1).toModelIndex(), cell);
        QCOMPARE(changes.last().at(2).value<QVector<int>>(), QVector<int>{Qt::EditRole});
    }
}

void TestGenParamTreeModel::refusedWrites()
{
    const struct
    {
        const char *feature;
        QVariant value;
        int column, role;
    } rows[] = {
        {"Width", 640, 1, Qt::DisplayRole},      {"Width", 640, 0, Qt::EditRole},
        {"Width", 641, 1, Qt::EditRole}, // not a multiple of the increment
        {"Width", 12800, 1, Qt::EditRole},       {"DeviceModelName", "x", 1, Qt::EditRole},
        {"TriggerDivider", 2, 1, Qt::EditRole}, // not available
        {"PixelFormat", 255, 1, Qt::EditRole},   {"PixelFormat", "Mono9", 1, Qt::EditRole},
        {"UserMemory", "0x00", 1, Qt::EditRole}, {"DeviceControl", "x", 1, Qt::EditRole},
    };
    SampleNodeMap map;
    GenParamTreeModel model(&map);
    QSignalSpy changes(&model, &GenParamTreeModel::dataChanged);
    for (const auto &row : rows) {
        const QVariant before = valueCell(model, row.feature).data();
        const QModelIndex cell = cellOf(model, row.feature, row.column);
        QVERIFY2(!model.setData(cell, row.value, row.role), row.feature);
        QCOMPARE(valueCell(model, row.feature).data(), before);
        QCOMPARE(changes.count(), 0);
    }
}

// A node may throw GenICam exceptions or others.
void TestGenParamTreeModel::commands()
{
    SampleNodeMap map;
    GenParamTreeModel model(&map);
    auto &reset = map.get<OrvGenApi::MemoryCommand>("DeviceReset");
    reset.setAccessMode(GenApi::WO);
    const QModelIndex cell = valueCell(model, "DeviceReset");
    QVERIFY(model.setData(cell, QVariant()));
    QCOMPARE(map.resets, 1);
    QSignalSpy changes(&model, &GenParamTreeModel::dataChanged);
    reset.onExecute([] { throw std::runtime_error("not now"); });
    QVERIFY(!model.setData(cell, true));
    QCOMPARE(changes.count(), 0);
}

void TestGenParamTreeModel::descriptions_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<QStringList>("lines");
    const auto row = [](const QString &feature, const QString &name, const QString &type,
                        const QStringList &more) {
        QStringList lines{"<i>Name:</i> " + name, "<i>Type:</i> " + type, "<i>Description:</i> ",
                          "<i>Streamable:</i> False"};
        if (type.isEmpty())
            lines.removeAt(1);
        QTest::newRow(qPrintable(feature)) << feature << lines + more;
    };
    row("DeviceControl", "Device Control", "", {});
    row("BinningHorizontal", "", "Integer", {"<i>Valid values</i>: 1,2,4,8"});
    row("Mode", "", "Integer", {"<i>Valid values</i>: 0x10,0x20,0xaf"});
    row("GevPersistentIPAddress", "", "Integer", {"<i>Limits</i>: Min: 0, Max: 4294967295"});
    row("ExposureTime", "Exposure Time", "Float", {"<i>Limits</i>: Min: 10, Max: 1e+06"});
    row("PixelFormat", "Pixel Format", "Enumeration",
        {"<i>Enumeration entries</i>:", "\"Mono8\": 17301505 (0x01080001)",
         "\"Mono12\": 17825797 (0x01100005)", "\"RGB8\": 255 (0x000000ff)"});
    row("DeviceReset", "Device Reset", "Command", {});
    // "%1" is not a place marker, and every byte is a Latin-1 character.
    row("DeviceUserID", QString("100 %1 \u00c2\u00b5"), "String", {});

    QTest::newRow("integer with increment")
        << "Width"
        << QStringList{"<i>Name:</i> Width",
                       "<i>Type:</i> Integer",
                       "<i>Description:</i> Width of the image in pixels.",
                       "<i>Streamable:</i> True",
                       "<i>Limits</i>: Min: 16, Max: 1280",
                       "<i>Increment</i>: 16"};
    QTest::newRow("selected float list")
        << "Gain" << QStringList{"<i>Name:</i> ",
                                 "<i>Type:</i> Float",
                                 "<i>Selectors:</i> Gain Selector,Reverse X",
                                 "<i>Description:</i> ",
                                 "<i>Streamable:</i> False",
                                 "<i>Valid values</i>: 0,1.5,3,6,12,24"};
}

void TestGenParamTreeModel::descriptions()
{
    QFETCH(QString, feature);
    QFETCH(QStringList, lines);

    SampleNodeMap map;
    auto &mode = map.addInteger("Mode", 16);
    mode.setRepresentation(GenApi::HexNumber);
    mode.setValidValues({16, 32, 175});
    map.get<OrvGenApi::MemoryBoolean>("ReverseX").select(map.number("Gain"));
    map.get<OrvGenApi::MemoryString>("DeviceUserID").properties().displayName = "100 %1 \xc2\xb5";

    const GenParamTreeModel model(&map);
    for (const int column : {0, 1}) {
        const QVariant text = cellOf(model, feature, column).data(Qt::WhatsThisRole);
        QCOMPARE(text.toString().split(QString("<br />")), lines);
    }
}

QTEST_MAIN(TestGenParamTreeModel)
#include "tst_genparamtreemodel.moc"
