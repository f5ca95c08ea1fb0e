// SPDX-License-Identifier: MIT
#include "genparamtreemodel.h"
#include "samplenodemap.h"
#include "treecells.h"

#include <QAbstractItemModelTester>
#include <QBrush>
#include <QPalette>
#include <QThread>
#include <QtTest>

#include <stdexcept>
#include <thread>

using GenICam::AccessException;
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

/// All cells below an index.
void collect(const QAbstractItemModel &model, const QModelIndex &parent, QModelIndexList &indexes)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        indexes << model.index(row, 0, parent) << model.index(row, 1, parent);
        collect(model, model.index(row, 0, parent), indexes);
    }
}

} // namespace

class TestGenParamTreeModel : public QObject
{
    Q_OBJECT

private slots:
    void structure();
    void emptyModels();
    void featureListedTwice();
    void parentTable();
    void names();
    void values_data();
    void values();
    void typesOfValues();
    void unreadableNodes();
    void write_data();
    void write();
    void refusedWrites_data();
    void refusedWrites();
    void modelDestroyedByItsOwnWrite();
    void descriptions_data();
    void descriptions();
    void notifications();
    void notificationOnAnotherThread();
    void costsNoReadWithoutLooking();
};

void TestGenParamTreeModel::structure()
{
    SampleNodeMap map;
    GenParamTreeModel model(&map);
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);

    QCOMPARE(model.rowCount(), 4);
    QCOMPARE(model.columnCount(), 2);
    const QModelIndex device = model.index(0, 0);
    QCOMPARE(model.columnCount(device), 2);
    QCOMPARE(model.rowCount(device), 6);
    QCOMPARE(model.rowCount(model.index(0, 1)), 0);
    QCOMPARE(model.rowCount(model.index(0, 0, device)), 0);
    QVERIFY(!model.index(0, 0, model.index(0, 1)).isValid());
    QVERIFY(!model.index(6, 0, device).isValid());
    QVERIFY(!model.index(0, 2, device).isValid());

    const QModelIndex mac = valueCell(model, QStringLiteral("GevMACAddress"));
    QCOMPARE(nameOf(mac.parent()), QStringLiteral("GigE Vision"));
    QCOMPARE(mac.parent().column(), 0);
    QCOMPARE(nameOf(mac.parent().parent()), QStringLiteral("Transport Layer Control"));
    QVERIFY(!mac.parent().parent().parent().isValid());

    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
        QCOMPARE(model.headerData(0, orientation).toString(), QStringLiteral("Name"));
        QCOMPARE(model.headerData(1, orientation).toString(), QStringLiteral("Value"));
    }
    QVERIFY(!model.headerData(0, Qt::Horizontal, Qt::ToolTipRole).isValid());
    QVERIFY(!model.headerData(2, Qt::Horizontal).isValid());

    // The model follows a category that gets another feature.
    map.addInteger("Height", 1024, "ImageFormatControl");
    const QModelIndex height = valueCell(model, QStringLiteral("Height"));
    QCOMPARE(height.row(), 4);
    QCOMPARE(height.data().toInt(), 1024);
}

void TestGenParamTreeModel::emptyModels()
{
    GenParamTreeModel withoutMap(static_cast<GenApi::INodeMap *>(nullptr));
    GenParamTreeModel withoutArray(static_cast<OrvGenParam::Array *>(nullptr));
    OrvGenApi::NodeMapBase rootless("Rootless");
    GenParamTreeModel withoutRoot(&rootless);
    for (GenParamTreeModel *model : {&withoutMap, &withoutArray, &withoutRoot}) {
        const QAbstractItemModelTester tester(
            model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(model->rowCount(), 0);
        QCOMPARE(model->columnCount(), 2);
        QVERIFY(!model->index(0, 0).isValid());
        QVERIFY(!model->setData(QModelIndex(), 1));
    }
}

void TestGenParamTreeModel::featureListedTwice()
{
    SampleNodeMap map;
    auto &gain = map.number("Gain");
    map.addCategory("Favourites").addFeature(gain);
    GenParamTreeModel model(&map);

    const QModelIndex favourites = model.index(4, 0);
    QCOMPARE(model.rowCount(favourites), 1);
    const QModelIndex first = valueCell(model, QStringLiteral("Gain"));
    const QModelIndex second = model.index(0, 1, favourites);
    QCOMPARE(second.data(Qt::UserRole), first.data(Qt::UserRole));
    QCOMPARE(nameOf(first.parent()), QStringLiteral("Acquisition Control"));
    QCOMPARE(nameOf(second.parent()), QStringLiteral("Acquisition Control"));

    // One callback for each place, each of which reports the first place.
    QSignalSpy changes(&model, &GenParamTreeModel::dataChanged);
    gain.changed();
    QCOMPARE(changes.count(), 2);
    for (const QList<QVariant> &change : changes)
        QCOMPARE(change.at(0).toModelIndex(), first);
}

// The table says what a search says, also of a feature in two places, and only while it lives.
void TestGenParamTreeModel::parentTable()
{
    SampleNodeMap map;
    map.addCategory("Favourites").addFeature(map.number("Gain"));
    const GenParamTreeModel model(&map);
    QModelIndexList indexes;
    collect(model, QModelIndex(), indexes);
    QVERIFY(indexes.size() > 40);
    QModelIndexList parents;
    for (const QModelIndex &index : indexes)
        parents << index.parent();
    {
        const GenParamTreeModel::ParentTable table(model);
        for (int i = 0; i < indexes.size(); ++i)
            QCOMPARE(indexes.at(i).parent(), parents.at(i));
    }
    map.addInteger("Late", 1, "Favourites");
    QCOMPARE(nameOf(valueCell(model, QStringLiteral("Late")).parent()),
             QStringLiteral("Favourites"));
}

void TestGenParamTreeModel::names()
{
    SampleNodeMap map;
    const GenParamTreeModel model(&map);
    const auto name = [&model](const char *feature, int role) {
        return cellOf(model, QString::fromLatin1(feature), 0).data(role);
    };

    map.integer("FirmwareKey").properties().displayName = "Schl\xc3\xbcssel";
    QCOMPARE(name("FirmwareKey", Qt::DisplayRole).toString(), QStringLiteral("Schl\u00fcssel"));
    QCOMPARE(name("FirmwareKey", Qt::ToolTipRole).toString(), QStringLiteral("Schl\u00fcssel"));
    QCOMPARE(name("Gain", Qt::DisplayRole).toString(), QStringLiteral("Gain"));
    QCOMPARE(name("DeviceModelName", Qt::DisplayRole).toString(),
             QStringLiteral("Device Model Name"));
    QCOMPARE(name("DeviceModelName", Qt::ToolTipRole).toString(),
             QStringLiteral("Model of the device"));
    QVERIFY(!name("Gain", Qt::EditRole).isValid());

    QCOMPARE(name("DeviceControl", Qt::BackgroundRole).value<QBrush>(),
             QPalette().brush(QPalette::Active, QPalette::Midlight));
    QVERIFY(!name("Gain", Qt::BackgroundRole).isValid());
    const QModelIndex categoryValue = valueCell(model, QStringLiteral("DeviceControl"));
    for (int role = 0; role < Qt::UserRole; ++role)
        QVERIFY(role == Qt::WhatsThisRole || !categoryValue.data(role).isValid());
    QVERIFY(!(categoryValue.flags() & Qt::ItemIsEditable));
}

void TestGenParamTreeModel::values_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("display");
    QTest::addColumn<QVariant>("edit");
    QTest::addColumn<bool>("grey");
    QTest::addColumn<bool>("editable");

    const auto row = [](const char *feature, GenApi::EAccessMode mode, const char *display,
                        const QVariant &edit, bool grey, bool editable) {
        QTest::newRow(qPrintable(QStringLiteral("%1 %2").arg(QLatin1String(feature)).arg(mode)))
            << feature << static_cast<int>(mode) << display << edit << grey << editable;
    };
    const auto sameText = [&row](const char *feature, GenApi::EAccessMode mode, const char *text,
                                 bool grey, bool editable) {
        row(feature, mode, text, QString::fromLatin1(text), grey, editable);
    };

    row("Width", GenApi::RW, "1280", QVariant::fromValue(1280L), false, true);
    row("Width", GenApi::RO, "1280", QVariant::fromValue(1280L), true, false);
    sameText("Width", GenApi::WO, "<Value not readable>", true, true);
    sameText("Width", GenApi::NA, "<Value not available>", true, false);
    sameText("Width", GenApi::NI, "<Value not available>", true, false);
    sameText("GevCurrentSubnetMask", GenApi::RW, "255.255.255.0", false, true);
    sameText("GevPersistentIPAddress", GenApi::RO, "192.168.1.2", true, false);
    sameText("GevMACAddress", GenApi::RO, "00:11:AA:BB:CC:DD", true, false);
    sameText("GevDeviceModeCapability", GenApi::RW, "FF", false, true);
    row("ReverseX", GenApi::RW, "false", false, false, true);
    row("ExposureTime", GenApi::RW, "10000", 10000.0, false, true);
    sameText("DeviceModelName", GenApi::RO, "Sample 1300", true, false);
    row("PixelFormat", GenApi::RW, "Mono8", QVariant::fromValue(0x01080001L), false, true);
    sameText("DeviceReset", GenApi::WO, "Execute", false, true);
    sameText("DeviceReset", GenApi::RO, "Execute", true, false);
    sameText("DeviceReset", GenApi::NA, "<Value not available>", true, false);
    sameText("UserMemory", GenApi::RO, "0xdead", true, false);
}

void TestGenParamTreeModel::values()
{
    QFETCH(QString, feature);
    QFETCH(int, mode);
    QFETCH(QString, display);
    QFETCH(QVariant, edit);
    QFETCH(bool, grey);
    QFETCH(bool, editable);

    SampleNodeMap map;
    const GenParamTreeModel model(&map);
    map.GetNode(feature.toLatin1().constData())
        ->ImposeAccessMode(static_cast<GenApi::EAccessMode>(mode));
    const QModelIndex cell = valueCell(model, feature);

    QCOMPARE(cell.data().toString(), display);
    QCOMPARE(cell.data(Qt::EditRole), edit);
    QCOMPARE(cell.data(Qt::EditRole).userType(), edit.userType());
    QCOMPARE(cell.data(Qt::ForegroundRole).isValid(), grey);
    if (grey) {
        QCOMPARE(cell.data(Qt::ForegroundRole).value<QBrush>(),
                 QPalette().brush(QPalette::Disabled, QPalette::Text));
    }
    QCOMPARE(cell.flags(), Qt::ItemIsSelectable | Qt::ItemIsEnabled |
                               (editable ? Qt::ItemIsEditable : Qt::NoItemFlags));
    QVERIFY(!cell.data(Qt::ToolTipRole).isValid());
    QVERIFY(!(cell.sibling(cell.row(), 0).flags() & Qt::ItemIsEditable));
}

void TestGenParamTreeModel::typesOfValues()
{
    SampleNodeMap map;
    auto &large = map.addInteger("Timestamp", INT64_C(0x7fffffffffffffff));
    auto &negative = map.addInteger("Offset", -1);
    negative.setRepresentation(GenApi::HexNumber);
    const GenParamTreeModel model(&map);

    const QVariant timestamp = valueCell(model, QStringLiteral("Timestamp")).data();
    QCOMPARE(timestamp.userType(), static_cast<int>(QMetaType::Long));
    QCOMPARE(timestamp.toLongLong(), large.GetValue());
    QCOMPARE(valueCell(model, QStringLiteral("Offset")).data().toString(),
             QStringLiteral("FFFFFFFFFFFFFFFF"));
    QCOMPARE(QString::fromLatin1(model.index(0, 0).data(Qt::UserRole).typeName()),
             QStringLiteral("GenApi::IValue*"));
}

// A node that fails makes its own cells empty and nothing else.
void TestGenParamTreeModel::unreadableNodes()
{
    SampleNodeMap map;
    const GenParamTreeModel model(&map);
    map.integer("Width").onRead(throwTimeout);
    const QModelIndex cell = valueCell(model, QStringLiteral("Width"));
    QVERIFY(!cell.data().isValid());
    QVERIFY(!cell.data(Qt::EditRole).isValid());
    QVERIFY(cell.data(Qt::UserRole).isValid());

    auto &height = map.addInteger("Height", 1024, "ImageFormatControl");
    height.bindMax([]() -> int64_t { throwTimeout(); });
    const QModelIndex heightCell = valueCell(model, QStringLiteral("Height"));
    QVERIFY(!heightCell.data(Qt::WhatsThisRole).isValid());
    QCOMPARE(heightCell.data().toInt(), 1024);
}

void TestGenParamTreeModel::write_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("written");

    QTest::newRow("integer") << "Width" << QVariant(640) << "640";
    QTest::newRow("integer from text") << "Width" << QVariant("640") << "640";
    QTest::newRow("64 bits") << "GevDeviceModeCapability" << QVariant(qlonglong(0xabc)) << "0xABC";
    QTest::newRow("IPv4") << "GevPersistentIPAddress" << QVariant("10.0.0.1") << "167772161";
    QTest::newRow("boolean") << "ReverseX" << QVariant(true) << "1";
    QTest::newRow("float") << "ExposureTime" << QVariant(12.5) << "12.5";
    QTest::newRow("string") << "DeviceUserID" << QVariant(QStringLiteral("\u00b5 1"))
                            << QStringLiteral("\u00b5 1");
    QTest::newRow("entry by number")
        << "PixelFormat" << QVariant(qlonglong(0x01100005)) << "Mono12";
    QTest::newRow("entry by numeric text") << "GainSelector" << QVariant("1") << "Red";
    QTest::newRow("entry by name") << "GainSelector" << QVariant("Red") << "Red";
}

void TestGenParamTreeModel::write()
{
    QFETCH(QString, feature);
    QFETCH(QVariant, value);
    QFETCH(QString, written);

    SampleNodeMap map;
    GenParamTreeModel model(&map);
    const QModelIndex cell = valueCell(model, feature);
    QSignalSpy changes(&model, &GenParamTreeModel::dataChanged);
    QVERIFY(model.setData(cell, value));

    const GenApi::CValuePtr node(map.GetNode(feature.toLatin1().constData()));
    QCOMPARE(QString::fromUtf8(node->ToString()), written);

    // The node reports the change first, without naming a role; then the write does.
    QCOMPARE(changes.first().at(0).toModelIndex(), cell);
    QVERIFY(changes.first().at(2).value<QVector<int>>().isEmpty());
    QCOMPARE(changes.last().at(1).toModelIndex(), cell);
    QCOMPARE(changes.last().at(2).value<QVector<int>>(), QVector<int>{Qt::EditRole});
}

void TestGenParamTreeModel::refusedWrites_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("role");

    const int edit = Qt::EditRole;
    QTest::newRow("display role") << "Width" << QVariant(640) << 1 << int(Qt::DisplayRole);
    QTest::newRow("name column") << "Width" << QVariant(640) << 0 << edit;
    QTest::newRow("off the increment") << "Width" << QVariant(641) << 1 << edit;
    QTest::newRow("out of range") << "Width" << QVariant(12800) << 1 << edit;
    QTest::newRow("read only") << "DeviceModelName" << QVariant("x") << 1 << edit;
    QTest::newRow("not available") << "TriggerDivider" << QVariant(2) << 1 << edit;
    QTest::newRow("unavailable entry") << "PixelFormat" << QVariant(255) << 1 << edit;
    QTest::newRow("unknown entry") << "PixelFormat" << QVariant("Mono9") << 1 << edit;
    QTest::newRow("register") << "UserMemory" << QVariant("0x00") << 1 << edit;
    QTest::newRow("category") << "DeviceControl" << QVariant("x") << 1 << edit;
}

void TestGenParamTreeModel::refusedWrites()
{
    QFETCH(QString, feature);
    QFETCH(QVariant, value);
    QFETCH(int, column);
    QFETCH(int, role);

    SampleNodeMap map;
    GenParamTreeModel model(&map);
    const QVariant before = valueCell(model, feature).data();
    QSignalSpy changes(&model, &GenParamTreeModel::dataChanged);
    QVERIFY(!model.setData(cellOf(model, feature, column), value, role));
    QCOMPARE(valueCell(model, feature).data(), before);
    QCOMPARE(changes.count(), 0);

    // Commands and whatever a node may throw, GenICam's exceptions or others.
    auto &reset = map.get<OrvGenApi::MemoryCommand>("DeviceReset");
    reset.setAccessMode(GenApi::WO);
    const QModelIndex resetCell = valueCell(model, QStringLiteral("DeviceReset"));
    changes.clear();
    QVERIFY(model.setData(resetCell, QVariant()));
    QCOMPARE(map.resets, 1);
    changes.clear();
    reset.onExecute([] { throw std::runtime_error("not now"); });
    QVERIFY(!model.setData(resetCell, true));
    QCOMPARE(changes.count(), 0);
}

void TestGenParamTreeModel::modelDestroyedByItsOwnWrite()
{
    SampleNodeMap map;
    auto *model = new GenParamTreeModel(&map);
    const GenApi::CallbackHandleType handle = GenApi::Register(
        map.GetNode("Width"),
        [&model](GenApi::INode *) {
            delete model;
            model = nullptr;
        },
        GenApi::cbPostOutsideLock);
    QVERIFY(model->setData(valueCell(*model, QStringLiteral("Width")), 640));
    QVERIFY(!model);
    GenApi::Deregister(handle);
    map.integer("Width").changed(); // nobody is called any more
    QCOMPARE(map.integer("Width").GetValue(), int64_t(640));
}

void TestGenParamTreeModel::descriptions_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<QString>("lines");

    QTest::newRow("category") << "DeviceControl"
                              << "<i>Name:</i> Device Control\n"
                                 "<i>Description:</i> \n"
                                 "<i>Streamable:</i> False";
    QTest::newRow("integer with increment") << "Width"
                                            << "<i>Name:</i> Width\n"
                                               "<i>Type:</i> Integer\n"
                                               "<i>Description:</i> Width of the image in pixels.\n"
                                               "<i>Streamable:</i> True\n"
                                               "<i>Limits</i>: Min: 16, Max: 1280\n"
                                               "<i>Increment</i>: 16";
    QTest::newRow("integer list") << "BinningHorizontal"
                                  << "<i>Name:</i> \n"
                                     "<i>Type:</i> Integer\n"
                                     "<i>Description:</i> \n"
                                     "<i>Streamable:</i> False\n"
                                     "<i>Valid values</i>: 1,2,4,8";
    QTest::newRow("hexadecimal list") << "Mode"
                                      << "<i>Name:</i> \n"
                                         "<i>Type:</i> Integer\n"
                                         "<i>Description:</i> \n"
                                         "<i>Streamable:</i> False\n"
                                         "<i>Valid values</i>: 0x10,0x20,0xaf";
    QTest::newRow("address limits") << "GevPersistentIPAddress"
                                    << "<i>Name:</i> \n"
                                       "<i>Type:</i> Integer\n"
                                       "<i>Description:</i> \n"
                                       "<i>Streamable:</i> False\n"
                                       "<i>Limits</i>: Min: 0, Max: 4294967295";
    QTest::newRow("float limits") << "ExposureTime"
                                  << "<i>Name:</i> Exposure Time\n"
                                     "<i>Type:</i> Float\n"
                                     "<i>Description:</i> \n"
                                     "<i>Streamable:</i> False\n"
                                     "<i>Limits</i>: Min: 10, Max: 1e+06";
    QTest::newRow("selected float list") << "Gain"
                                         << "<i>Name:</i> \n"
                                            "<i>Type:</i> Float\n"
                                            "<i>Selectors:</i> Gain Selector,Reverse X\n"
                                            "<i>Description:</i> \n"
                                            "<i>Streamable:</i> False\n"
                                            "<i>Valid values</i>: 0,1.5,3,6,12,24";
    QTest::newRow("enumeration") << "PixelFormat"
                                 << "<i>Name:</i> Pixel Format\n"
                                    "<i>Type:</i> Enumeration\n"
                                    "<i>Description:</i> \n"
                                    "<i>Streamable:</i> False\n"
                                    "<i>Enumeration entries</i>:\n"
                                    "\"Mono8\": 17301505 (0x01080001)\n"
                                    "\"Mono12\": 17825797 (0x01100005)\n"
                                    "\"RGB8\": 255 (0x000000ff)";
    QTest::newRow("command") << "DeviceReset"
                             << "<i>Name:</i> Device Reset\n"
                                "<i>Type:</i> Command\n"
                                "<i>Description:</i> \n"
                                "<i>Streamable:</i> False";
    // What looks like a place marker is none, and every byte is a character.
    QTest::newRow("odd texts") << "DeviceUserID"
                               << QStringLiteral("<i>Name:</i> 100 %1 \u00c2\u00b5\n"
                                                 "<i>Type:</i> String\n"
                                                 "<i>Description:</i> \n"
                                                 "<i>Streamable:</i> False");
}

void TestGenParamTreeModel::descriptions()
{
    QFETCH(QString, feature);
    QFETCH(QString, lines);

    SampleNodeMap map;
    auto &mode = map.addInteger("Mode", 16);
    mode.setRepresentation(GenApi::HexNumber);
    mode.setValidValues({16, 32, 175});
    map.get<OrvGenApi::MemoryBoolean>("ReverseX").select(map.number("Gain"));
    map.get<OrvGenApi::MemoryString>("DeviceUserID").properties().displayName = "100 %1 \xc2\xb5";

    const GenParamTreeModel model(&map);
    for (const int column : {0, 1}) {
        const QVariant text = cellOf(model, feature, column).data(Qt::WhatsThisRole);
        QCOMPARE(text.toString().split(QStringLiteral("<br />")), lines.split(QLatin1Char('\n')));
    }
}

// A change reaches the cells of the node and of what depends on it, and no others.
void TestGenParamTreeModel::notifications()
{
    SampleNodeMap map;
    map.number("Gain").dependsOn(map.enumeration("GainSelector"));
    map.number("ExposureTime").dependsOn(map.number("Gain"));
    GenParamTreeModel model(&map);

    QStringList changed;
    connect(&model, &GenParamTreeModel::dataChanged, this,
            [&changed](const QModelIndex &topLeft, const QModelIndex &bottomRight) {
                QCOMPARE(topLeft, bottomRight);
                QCOMPARE(topLeft.column(), 1);
                changed.append(nameOf(topLeft));
            });
    map.enumeration("GainSelector").change(1);
    changed.sort();
    QCOMPARE(changed, (QStringList{QStringLiteral("Exposure Time"), QStringLiteral("Gain"),
                                   QStringLiteral("Gain Selector")}));
}

void TestGenParamTreeModel::notificationOnAnotherThread()
{
    SampleNodeMap map;
    GenParamTreeModel model(&map);
    std::thread::id emittedOn;
    connect(
        &model, &GenParamTreeModel::dataChanged, this,
        [&emittedOn] { emittedOn = std::this_thread::get_id(); }, Qt::DirectConnection);
    QList<QModelIndex> queued;
    connect(
        &model, &GenParamTreeModel::dataChanged, this,
        [&queued](const QModelIndex &cell) { queued.append(cell); }, Qt::QueuedConnection);

    std::thread other([&map] { map.integer("Width").change(320); });
    const std::thread::id otherId = other.get_id();
    other.join();
    QVERIFY(emittedOn == otherId);
    QTRY_COMPARE(queued.count(), 1);
    QCOMPARE(queued.first().data().toInt(), 320);
}

// Building the model and walking its structure asks the camera for nothing.
void TestGenParamTreeModel::costsNoReadWithoutLooking()
{
    SampleNodeMap map;
    const GenParamTreeModel model(&map);
    QVERIFY(!cellOf(model, QStringLiteral("no such feature"), 0).isValid());
    QCOMPARE(map.integer("Width").reads(), 0);

    const QModelIndex cell = valueCell(model, QStringLiteral("Width"));
    for (int i = 0; i < 3; ++i) {
        cell.data(Qt::DisplayRole);
        cell.data(Qt::WhatsThisRole);
    }
    QCOMPARE(map.integer("Width").reads(), 1);
}

QTEST_MAIN(TestGenParamTreeModel)
#include "tst_genparamtreemodel.moc"
