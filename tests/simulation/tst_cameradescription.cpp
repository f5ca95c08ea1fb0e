// SPDX-License-Identifier: MIT
#include "simulation/cameraregisters.h"
#include "simulation/simulatedcamera.h"

#include <QtTest>

using namespace OrvSimulation;

namespace {

struct Child
{
    QString element;
    QString text;
    QString offset; // of a pIndex
};

struct Node
{
    QString element;
    QString name;
    QVector<Child> children;

    QStringList all(const QString &wanted) const
    {
        QStringList texts;
        for (const Child &child : children) {
            if (child.element == wanted)
                texts << child.text;
        }
        return texts;
    }
    QString text(const QString &wanted) const { return all(wanted).value(0); }
};

// The bytes that a node can address, with the nodes that may lie on the same bytes.
struct Range
{
    QString name;
    bool isPartOfRegister;
    qint64 start;
    qint64 length;
};

// Elements of a node in the order in which the schema wants them.
const QStringList elementOrder =
    QString("ToolTip Description DisplayName Visibility pIsImplemented pIsAvailable pIsLocked "
            "ImposedAccessMode Streamable EnumEntry pVariable FormulaTo FormulaFrom Formula "
            "pAddress Address pIndex Length AccessMode pPort Cachable PollingTime pInvalidator "
            "Value pValue CommandValue pMin Min pMax Max pInc Inc ValidValueSet Bit LSB MSB Sign "
            "Endianess Unit Representation DisplayNotation DisplayPrecision OnValue OffValue Slope "
            "pSelected pFeature StructEntry")
        .split(' ');

constexpr qint64 memorySize = 0x10000;

} // namespace

class TestCameraDescription : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void namesReferencesAndOrder();
    void featuresAreDocumented();
    void registersDoNotOverlap();
    void changesByTheCameraReachTheHost();
    void dialogsFindTheirFeatures();

private:
    void readNode(QXmlStreamReader &xml, int structure);
    void collectFeatures(const QString &category, int depth);
    QVector<Range> ranges(const Node &node) const;
    qint64 highestIndex(const QString &reference) const;

    QVector<Node> m_nodes;
    QHash<QString, int> m_byName;
    QStringList m_features;
    int m_depth = 0;
};

void TestCameraDescription::initTestCase()
{
    const auto text = SimulatedCamera::description();
    QXmlStreamReader xml(QByteArray(text->data(), static_cast<int>(text->size())));
    QVERIFY(xml.readNextStartElement());
    QCOMPARE(xml.name().toString(), QString("RegisterDescription"));
    while (xml.readNextStartElement())
        readNode(xml, -1);
    QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
    for (int i = 0; i < m_nodes.size(); ++i) {
        if (m_nodes[i].element != "EnumEntry" && !m_nodes[i].name.isEmpty())
            m_byName.insert(m_nodes[i].name, i);
    }
    collectFeatures("Root", 0);
    QVERIFY(m_features.size() > 100);
}

// A StructEntry takes over the register of its StructReg, the node with the index structure.
void TestCameraDescription::readNode(QXmlStreamReader &xml, int structure)
{
    Node node{xml.name().toString(), xml.attributes().value("Name").toString(), {}};
    if (structure >= 0) {
        for (const Child &child : m_nodes[structure].children) {
            if (child.element == "Address" || child.element == "Length")
                node.children << child;
        }
    }
    const int self = int(m_nodes.size());
    m_nodes << node;
    while (xml.readNextStartElement()) {
        const QString element = xml.name().toString();
        if (element == "EnumEntry" || element == "StructEntry") {
            m_nodes[self].children << Child{element, {}, {}};
            readNode(xml, element == "StructEntry" ? self : -1);
            continue;
        }
        const QString offset = xml.attributes().value("Offset").toString();
        m_nodes[self].children << Child{element, xml.readElementText(), offset};
    }
}

void TestCameraDescription::collectFeatures(const QString &category, int depth)
{
    m_depth = qMax(m_depth, depth);
    for (const QString &feature : m_nodes[m_byName.value(category)].all("pFeature")) {
        QVERIFY2(m_byName.contains(feature), qPrintable(feature));
        m_features << feature;
        if (m_nodes[m_byName.value(feature)].element == "Category")
            collectFeatures(feature, depth + 1);
    }
}

void TestCameraDescription::namesReferencesAndOrder()
{
    int named = 0;
    for (const Node &node : qAsConst(m_nodes)) {
        if (node.element != "EnumEntry" && !node.name.isEmpty())
            ++named;
        int last = 0;
        for (const Child &child : node.children) {
            const QString &e = child.element;
            if (e.size() > 1 && e[0] == 'p' && e[1].isUpper())
                QVERIFY2(m_byName.contains(child.text), qPrintable(node.name + ": " + child.text));
            if (node.element == "StructEntry" && e == "Address")
                continue;
            const int place = int(elementOrder.indexOf(e));
            QVERIFY2(place >= last, qPrintable(node.name + ": " + e));
            last = place;
        }
    }
    QCOMPARE(m_byName.size(), named);
}

void TestCameraDescription::featuresAreDocumented()
{
    QSet<QString> levels;
    for (const QString &feature : qAsConst(m_features)) {
        const Node &node = m_nodes[m_byName.value(feature)];
        for (const char *element : {"ToolTip", "Description", "DisplayName", "Visibility"})
            QVERIFY2(!node.text(element).isEmpty(), qPrintable(feature + ": " + element));
        levels << node.text("Visibility");
    }
    QCOMPARE(levels, (QSet<QString>{"Beginner", "Expert", "Guru", "Invisible"}));
    QVERIFY(m_depth >= 2);
    QVERIFY(QSet<QString>(m_features.begin(), m_features.end()).size() <
            m_features.size()); // a feature in two categories
}

// The highest value that a pIndex can have, from the feature that writes its register.
qint64 TestCameraDescription::highestIndex(const QString &reference) const
{
    for (int i = 0; i < m_nodes.size(); ++i) {
        if (m_nodes[i].text("pValue") != reference)
            continue;
        if (m_nodes[i].element == "Integer")
            return m_nodes[i].text("Max").toLongLong();
        qint64 highest = -1;
        for (int entry = i + 1; m_nodes[entry].element == "EnumEntry"; ++entry)
            highest = qMax(highest, m_nodes[entry].text("Value").toLongLong());
        return highest;
    }
    return -1;
}

QVector<Range> TestCameraDescription::ranges(const Node &node) const
{
    const bool isPart = node.element == "MaskedIntReg" || node.element == "StructEntry";
    const qint64 length = node.text("Length").toLongLong();
    if (length == 0 || node.element == "StructReg" || !node.text("pAddress").isEmpty())
        return {};
    const qint64 start = node.text("Address").toLongLong(nullptr, 0);
    QVector<Range> ranges{{node.name, isPart, start, length}};
    for (const Child &child : node.children) {
        if (child.element != "pIndex")
            continue;
        const qint64 highest = highestIndex(child.text);
        for (qint64 index = 1; index <= highest; ++index)
            ranges << Range{node.name, isPart, start + index * child.offset.toLongLong(nullptr, 0),
                            length};
        if (highest < 1)
            ranges << Range{node.name + " has no index", false, memorySize, length};
    }
    return ranges;
}

void TestCameraDescription::registersDoNotOverlap()
{
    using namespace Registers;
    // The two registers whose address is a formula; a value of a table lies in its table on
    // purpose.
    QVector<Range> all{{"Frame_LineTimeReg", false, DualVideoLineTime, 4},
                       {"Frame_LineTimeReg", false, FrameLineTime, 4},
                       {"Frame_LineTimeReg", false, FrameLineTime + FrameStride, 4}};
    for (const Node &node : qAsConst(m_nodes))
        all += ranges(node);
    QVERIFY(all.size() > 150);

    for (int i = 0; i < all.size(); ++i) {
        const Range &a = all[i];
        QVERIFY2(a.start % 4 == 0 && a.start + a.length <= memorySize, qPrintable(a.name));
        for (int j = i + 1; j < all.size(); ++j) {
            const Range &b = all[j];
            const bool isShared = a.isPartOfRegister && b.isPartOfRegister && a.start == b.start;
            const bool isApart = a.start + a.length <= b.start || b.start + b.length <= a.start;
            QVERIFY2(isApart || isShared, qPrintable(a.name + " and " + b.name));
        }
    }
}

// A host caches what it reads: loading a user set must drop every setting, and what the camera
// changes by itself must be polled.
void TestCameraDescription::changesByTheCameraReachTheHost()
{
    using namespace Registers;
    int settings = 0;
    int live = 0;
    for (const Node &node : qAsConst(m_nodes)) {
        const Address address = node.text("Address").toUInt(nullptr, 0);
        const bool isSetting =
            (address >= Settings && address < Settings + SettingsSize) ||
            (address >= FrameSettings && address < FrameSettings + FrameStride) ||
            address == PixelFormat || address == LookUpTables;
        const bool isPolled = !node.text("PollingTime").isEmpty();
        if (isSetting && node.element != "StructEntry") {
            ++settings;
            QVERIFY2(node.all("pInvalidator").contains("UserSetLoad"), qPrintable(node.name));
        }
        if (address >= CurrentTemperature && address <= TimestampLatchValue) {
            ++live;
            QVERIFY2(isPolled, qPrintable(node.name));
        }
    }
    QVERIFY(settings > 60 && live > 5);
    for (const char *name : {"BalanceWhiteAutoReg", "RedCoefficientReg", "GreenCoefficientReg",
                             "BlueCoefficientReg", "PulseGenEnableReg"})
        QVERIFY2(!m_nodes[m_byName.value(name)].text("PollingTime").isEmpty(), name);
}

// Whatever looks like a name in the sources of the dialogs is one that the camera has.
void TestCameraDescription::dialogsFindTheirFeatures()
{
    QSet<QString> known{"Delay",
                        "Disconnected",
                        "Exposure",
                        "Frame",
                        "OpeningProgress",
                        "OrvCameraConfiguration",
                        "Period",
                        "QStyleSheetStyle",
                        "Readout",
                        "Start",
                        "Stop",
                        "Temperature",
                        "Unknown"};
    known += QSet<QString>(m_features.begin(), m_features.end());
    for (const Node &node : qAsConst(m_nodes)) {
        if (node.element == "EnumEntry")
            known << node.name;
    }
    const QRegularExpression name("\"([A-Z]\\w+)\"");
    QSet<QString> used;
    const QDir folder(ORV_DIALOGS);
    for (const QString &file : folder.entryList({"*.cpp", "*.h"})) {
        QFile source(folder.filePath(file));
        QVERIFY(source.open(QIODevice::ReadOnly));
        for (auto match = name.globalMatch(source.readAll()); match.hasNext();)
            used << match.next().captured(1);
    }
    QVERIFY(used.size() > 80);
    used -= known;
    QCOMPARE(used.values(), QStringList());
}

QTEST_APPLESS_MAIN(TestCameraDescription)
#include "tst_cameradescription.moc"
