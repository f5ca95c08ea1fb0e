// SPDX-License-Identifier: MIT
#include <cameraapi/nodemaparray.h>
#include <cameraio/memoryport.h>
#include <cameratestsupport.h>
#include <description/nodemap.h>
#include <featuresteps.h>

#include <GenApi/GenApi.h>

#include <QAbstractEventDispatcher>
#include <QtTest>

#include <atomic>
#include <functional>

using namespace GenApi;

namespace {

/// Wraps nodes in a description that has the nodes every test needs.
QByteArray description(const QByteArray &nodes)
{
    return R"(<?xml version="1.0" encoding="utf-8"?>
<RegisterDescription ModelName="Model" VendorName="Vendor" StandardNameSpace="None"
    SchemaMajorVersion="1" SchemaMinorVersion="1" SchemaSubMinorVersion="0" MajorVersion="1"
    MinorVersion="0" SubMinorVersion="0" ToolTip=""
    ProductGuid="1F3C6A72-7842-4edd-9130-E2E90A2058BA"
    VersionGuid="7645D2A1-A41E-4ac6-B486-1531FB7BECE6"
    xmlns="http://www.genicam.org/GenApi/Version_1_1">)" +
           nodes + R"(<Port Name="Device"/></RegisterDescription>)";
}

/// An integer register of four bytes.
QByteArray intReg(const QByteArray &name, const QByteArray &address, const QByteArray &more = {})
{
    return "<IntReg Name='" + name + "'>" + more + "<Address>" + address +
           "</Address><Length>4</Length><AccessMode>RW</AccessMode><pPort>Device</pPort>"
           "<Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>";
}

/// A root category with these features.
QByteArray root(const QByteArrayList &features)
{
    QByteArray xml = "<Category Name='Root'>";
    for (const QByteArray &feature : features)
        xml += "<pFeature>" + feature + "</pFeature>";
    return xml + "</Category>";
}

std::unique_ptr<OrvDescription::NodeMap> load(const QByteArray &nodes)
{
    const QByteArray xml = description(nodes);
    return OrvDescription::NodeMap::fromText(xml.constData(), static_cast<std::size_t>(xml.size()),
                                             "test.xml");
}

QString textOf(INodeMap &map, const char *name)
{
    try {
        return QString::fromUtf8(CValuePtr(map.GetNode(name))->ToString().c_str());
    } catch (const GenICam::GenericException &e) {
        return QString("exception: ") + e.GetDescription();
    }
}

IInteger &integer(INodeMap &map, const char *name)
{
    return *CIntegerPtr(map.GetNode(name));
}

IFloat &real(INodeMap &map, const char *name)
{
    return *CFloatPtr(map.GetNode(name));
}

EAccessMode access(INodeMap &map, const char *name)
{
    return map.GetNode(name)->GetAccessMode();
}

QStringList names(const FeatureList_t &features)
{
    QStringList result;
    for (std::size_t i = 0; i < features.size(); ++i)
        result << features[i]->GetNode()->GetName().c_str();
    return result;
}

} // namespace

/// Descriptions without a camera; their registers are in memory.
class TestNodeMap : public QObject
{
    Q_OBJECT

private slots:
    void invalidFiles();
    void interfacesFollowTheElement();
    void propertiesOfNodes();
    void orderOfTheFile();
    void registers();
    void bitFieldsShareTheirRegister();
    void values_data();
    void values();
    void variableAddresses();
    void accessModes();
    void limitsAndIncrements();
    void validValues();
    void invalidReferences();
    void invalidNodes();
    void circularReferences();
    void costOfReferences();
    void manyNodes();
    void longRegisters();
    void readsInFewTransfers();
    void cameraDoesNotAnswer();
    void cachingModes();
    void pollingAndInvalidation();
    void pollingReportsChangesOnly();
    void waitingForChangesKeepsPolling();
    void unusedChangesEndPolling();
};

void TestNodeMap::invalidFiles()
{
    const QTemporaryDir folder;
    for (const QString &name : {folder.filePath("missing.xml"), folder.path()}) {
        try {
            OrvDescription::NodeMap::fromFile(name.toStdString());
            QFAIL(qPrintable(name + " was accepted"));
        } catch (const GenICam::RuntimeException &e) {
            QVERIFY2(QString(e.GetDescription()).startsWith(name + ": "), e.GetDescription());
        }
    }
}

void TestNodeMap::interfacesFollowTheElement()
{
    const auto map = load(root({}) + intReg("Reg", "0") +
                          "<Integer Name='Integer'><pValue>Reg</pValue></Integer>"
                          "<Float Name='Float'><pValue>Reg</pValue></Float>"
                          "<Boolean Name='Boolean'><pValue>Reg</pValue></Boolean>"
                          "<Command Name='Command'><pValue>Reg</pValue></Command>"
                          "<String Name='String'><Value>x</Value></String>"
                          "<Enumeration Name='Enumeration'><EnumEntry Name='Off'><Value>0</Value>"
                          "</EnumEntry><pValue>Reg</pValue></Enumeration>"
                          "<IntSwissKnife Name='Knife'><Formula>1</Formula></IntSwissKnife>"
                          "<Group Comment='g'><Float Name='Grouped'><Value>1</Value></Float>"
                          "</Group><Surprise Name='Unknown'/>");
    for (const auto &[name, type] : {std::make_pair("Root", intfICategory),
                                     {"Reg", intfIInteger},
                                     {"Integer", intfIInteger},
                                     {"Float", intfIFloat},
                                     {"Boolean", intfIBoolean},
                                     {"Command", intfICommand},
                                     {"String", intfIString},
                                     {"Enumeration", intfIEnumeration},
                                     {"EnumEntry_Enumeration_Off", intfIEnumEntry},
                                     {"Knife", intfIInteger},
                                     {"Grouped", intfIFloat},
                                     {"Device", intfIPort},
                                     {"Unknown", intfIBase}})
        QVERIFY2(map->GetNode(name)->GetPrincipalInterfaceType() == type, name);
    // The engine's other interfaces are not accessible.
    QVERIFY(!CFloatPtr(map->GetNode("Enumeration")).IsValid());
    QVERIFY(!CStringPtr(map->GetNode("Enumeration")).IsValid());
    QVERIFY(CSelectorPtr(map->GetNode("Float")).IsValid());
    QCOMPARE(map->GetDeviceName().c_str(), "Model");
    QCOMPARE(map->GetNumNodes(), uint64_t(13));
}

void TestNodeMap::propertiesOfNodes()
{
    const auto map = load(
        root({"A"}) +
        "<Integer Name='A' NameSpace='Standard'><ToolTip>Tip &amp; trick</ToolTip>"
        "<Description> L\xc3\xa4nge </Description><DisplayName>The A</DisplayName>"
        "<Visibility>Guru</Visibility><Streamable>Yes</Streamable><pValue>Reg</pValue></Integer>" +
        intReg("Reg", "0",
               "<Visibility>Invisible</Visibility><Cachable>WriteAround</Cachable>"
               "<PollingTime>250</PollingTime><Unit>mm</Unit>"
               "<Representation>HexNumber</Representation>") +
        "<Float Name='F'><Value>0</Value><Unit>dB</Unit><DisplayNotation>Fixed"
        "</DisplayNotation><DisplayPrecision>2</DisplayPrecision></Float>");
    INode *a = map->GetNode("A");
    QCOMPARE(a->GetToolTip().c_str(), "Tip & trick");
    QCOMPARE(a->GetDescription().c_str(), "L\xc3\xa4nge");
    QCOMPARE(a->GetDisplayName().c_str(), "The A");
    QCOMPARE(a->GetVisibility(), Guru);
    QVERIFY(a->IsStreamable() && a->IsFeature() && a->GetNameSpace() == Standard);
    QCOMPARE(integer(*map, "A").GetUnit().c_str(), "mm");
    QCOMPARE(integer(*map, "A").GetRepresentation(), HexNumber);
    INode *reg = map->GetNode("Reg");
    QVERIFY(reg->GetDisplayName().empty() && !reg->IsFeature() && !reg->IsStreamable());
    QCOMPARE(reg->GetVisibility(), Invisible);
    QCOMPARE(reg->GetCachingMode(), WriteAround);
    QCOMPARE(reg->GetPollingTime(), int64_t(250));
    QCOMPARE(a->GetPollingTime(), int64_t(-1));
    QCOMPARE(real(*map, "F").GetDisplayPrecision(), int64_t(2));
    QCOMPARE(real(*map, "F").GetDisplayNotation(), fnFixed);
    QCOMPARE(real(*map, "F").GetUnit().c_str(), "dB");
}

void TestNodeMap::orderOfTheFile()
{
    QByteArray nodes;
    QByteArrayList features;
    QByteArray entries;
    QByteArray selected;
    for (const char *name : {"Zeta", "Alpha", "Mid", "Beta"}) {
        features << name;
        nodes += QByteArray("<Integer Name='") + name + "'><Value>1</Value></Integer>";
        entries += QByteArray("<EnumEntry Name='") + name + "'><Value>" +
                   QByteArray::number(entries.count('V')) + "</Value></EnumEntry>";
        selected += QByteArray("<pSelected>") + name + "</pSelected>";
    }
    const auto map = load(root(features) + nodes + "<Enumeration Name='E'>" + entries +
                          "<Value>0</Value>" + selected + "</Enumeration>");
    const QStringList expected = {"Zeta", "Alpha", "Mid", "Beta"};
    FeatureList_t list;
    CCategoryPtr(map->GetNode("Root"))->GetFeatures(list);
    QCOMPARE(names(list), expected);
    CSelectorPtr(map->GetNode("E"))->GetSelectedFeatures(list);
    QCOMPARE(names(list), expected);
    CSelectorPtr(map->GetNode("Mid"))->GetSelectingFeatures(list);
    QCOMPARE(names(list), QStringList("E"));
    NodeList_t entryList;
    CEnumerationPtr(map->GetNode("E"))->GetEntries(entryList);
    QCOMPARE(entryList.size(), std::size_t(4));
    QCOMPARE(CEnumEntryPtr(entryList[0])->GetSymbolic().c_str(), "Zeta");
    QCOMPARE(CEnumEntryPtr(entryList[3])->GetSymbolic().c_str(), "Beta");
}

void TestNodeMap::registers()
{
    const QByteArray common = "<AccessMode>RW</AccessMode><pPort>Device</pPort>";
    const auto map = load(
        root({}) + intReg("Big", "0x10") +
        "<IntReg Name='Little'><Address>0x10</Address><Length>4</Length>" + common +
        "<Sign>Signed</Sign><Endianess>LittleEndian</Endianess></IntReg>"
        "<FloatReg Name='Float'><Address>0x20</Address><Length>4</Length>" +
        common +
        "<Endianess>BigEndian</Endianess></FloatReg>"
        "<Register Name='Bytes'><Address>0x20</Address><Length>6</Length>" +
        common + "</Register><StringReg Name='Text'><Address>0x30</Address><Length>8</Length>" +
        common + "</StringReg><Register Name='Nothing'><Address>0x40</Address><Length>0</Length>" +
        common + "</Register>");
    integer(*map, "Big") = 0xfffffffe;
    QCOMPARE(integer(*map, "Little").GetValue(), int64_t(int32_t(0xfeffffff)));
    QCOMPARE(integer(*map, "Little").GetMin(), int64_t(INT32_MIN));
    QCOMPARE(integer(*map, "Big").GetMax(), int64_t(0xffffffff));

    real(*map, "Float") = 1.0;
    CRegisterPtr bytes(map->GetNode("Bytes"));
    QCOMPARE(bytes->ToString().c_str(), "0x3f8000000000");
    QCOMPARE(bytes->GetAddress(), int64_t(0x20));
    QCOMPARE(bytes->GetLength(), int64_t(6));
    QCOMPARE(textOf(*map, "Nothing"), QString("0x"));

    CStringPtr text(map->GetNode("Text"));
    QCOMPARE(text->GetMaxLength(), int64_t(8));
    text->SetValue("\xc3\xa4"
                   "bcdefg");
    QCOMPARE(text->GetValue().c_str(), "\xc3\xa4"
                                       "bcdefg");
    QVERIFY_EXCEPTION_THROWN(text->SetValue("123456789"), GenICam::OutOfRangeException);
}

void TestNodeMap::bitFieldsShareTheirRegister()
{
    const QByteArray reg = "<Address>0</Address><Length>4</Length><AccessMode>RW</AccessMode>"
                           "<pPort>Device</pPort><Endianess>LittleEndian</Endianess>";
    const auto map =
        load(root({}) + "<MaskedIntReg Name='Low'>" + reg +
             "<LSB>0</LSB><MSB>3</MSB><Sign>Signed</Sign></MaskedIntReg>"
             "<MaskedIntReg Name='Bit'>" +
             reg + "<Bit>7</Bit><Sign>Unsigned</Sign></MaskedIntReg><StructReg>" + reg +
             "<StructEntry Name='Field'><LSB>8</LSB><MSB>15</MSB></StructEntry>"
             "<StructEntry Name='Flag'><Bit>16</Bit></StructEntry></StructReg>");
    integer(*map, "Low") = -3;
    integer(*map, "Bit") = 1;
    integer(*map, "Field") = 0xab;
    integer(*map, "Flag") = 1;
    QCOMPARE(integer(*map, "Low").GetValue(), int64_t(-3));
    QCOMPARE(integer(*map, "Bit").GetValue(), int64_t(1));
    QCOMPARE(integer(*map, "Field").GetValue(), int64_t(0xab));
    QCOMPARE(integer(*map, "Low").GetMax(), int64_t(7));
    QVERIFY_EXCEPTION_THROWN(integer(*map, "Low") = 8, GenICam::OutOfRangeException);
    QCOMPARE(map->transactions().reads, uint64_t(1));
    QCOMPARE(map->transactions().writes, uint64_t(4));
}

void TestNodeMap::values_data()
{
    QTest::addColumn<QByteArray>("nodes");
    QTest::addColumn<QString>("steps");
    const auto row = [](const char *name, const QByteArray &nodes, const char *steps) {
        QTest::newRow(name) << nodes << QString(steps);
    };
    row("variables of formulas",
        "<Integer Name='Int'><Value>5</Value><Min>1</Min><Max>9</Max><Inc>2</Inc></Integer>"
        "<Boolean Name='Bool'><Value>1</Value></Boolean>"
        "<Enumeration Name='Enum'><EnumEntry Name='A'><Value>3</Value></EnumEntry>"
        "<EnumEntry Name='B'><Value>4</Value></EnumEntry><Value>4</Value></Enumeration>"
        "<IntSwissKnife Name='Limits'><pVariable Name='V.Max'>Int</pVariable>"
        "<pVariable Name='V.Min'>Int</pVariable><pVariable Name='V.Inc'>Int</pVariable>"
        "<Formula>V.Max * 100 + V.Min * 10 + V.Inc</Formula></IntSwissKnife>"
        "<IntSwissKnife Name='Others'><pVariable Name='B'>Bool</pVariable>"
        "<pVariable Name='E'>Enum</pVariable><pVariable Name='E.Enum.A'>Enum</pVariable>"
        "<Formula>B * 100 + E * 10 + E.Enum.A</Formula></IntSwissKnife>",
        "Limits?912 Others?143 Enum=A Bool=0 Others?33");
    row("formulas",
        intReg("Reg", "0") +
            "<IntSwissKnife Name='I'><pVariable Name='V'>Reg</pVariable><Constant Name='C'>100"
            "</Constant><Expression Name='E'>V * 2</Expression><Formula>(E + C) / (V - 1)"
            "</Formula></IntSwissKnife><SwissKnife Name='F'><pVariable Name='V'>Reg</pVariable>"
            "<Formula>(V &lt;&gt; 7) || (V &gt;= 7) ? V / 2 : 0</Formula></SwissKnife>"
            "<Integer Name='Feature'><pValue>I</pValue></Integer>"
            "<IntSwissKnife Name='Wrong'><Formula>1 +</Formula></IntSwissKnife>",
        "Reg=7 I?19 F?3.5 Feature?19 I:RO Feature:RO Wrong:NA Reg=1 I:NA Feature:NA Feature!1");
    row("converters",
        intReg("Reg", "0") +
            "<Integer "
            "Name='Raw'><pValue>Reg</pValue><Min>1</Min><Max>200</Max><Inc>2</Inc></Integer>"
            "<Converter Name='Rate'><FormulaTo>1000 / FROM</FormulaTo>"
            "<FormulaFrom>1000 / TO</FormulaFrom><pValue>Raw</pValue><Slope>Decreasing</Slope>"
            "</Converter>"
            "<Converter Name='Linear'><FormulaTo>FROM * 10</FormulaTo>"
            "<FormulaFrom>TO / 10</FormulaFrom><pValue>Raw</pValue><Slope>Increasing</Slope>"
            "<IsLinear>Yes</IsLinear></Converter>"
            "<IntConverter Name='Double'><FormulaTo>FROM / 2</FormulaTo>"
            "<FormulaFrom>TO * 2</FormulaFrom><pValue>Raw</pValue></IntConverter>"
            "<Float Name='Feature'><pValue>Rate</pValue><Unit>Hz</Unit></Float>",
        "Feature:WO Feature=40 Reg?25 Feature:RW Feature?40 Feature.Min?5 "
        "Feature.Max?1000 Linear?2.5 Linear.Inc?0.2 Double=30 Raw?15 "
        "Double.Max?400 Rate!1001");
    row("indexed values",
        intReg("Reg", "0") + "<Integer Name='Index'><Value>0</Value></Integer>"
                             "<Integer Name='Value'><pIndex>Index</pIndex>"
                             "<ValueIndexed Index='0'>10</ValueIndexed>"
                             "<pValueIndexed Index='1'>Reg</pValueIndexed>"
                             "<ValueDefault>99</ValueDefault></Integer>",
        "Value?10 Index=1 Value=55 Reg?55 Index=2 Value?99");
    row("integers of real numbers",
        "<Float Name='Real'><Value>1</Value><Min>-0.5</Min><Max>10.7</Max></Float>"
        "<Integer Name='Whole'><pValue>Real</pValue></Integer>",
        "Whole?1 Whole.Min?0 Whole.Max?10 Whole!11");
    row("commands and copies",
        intReg("Reg", "0") + intReg("Value", "4") + intReg("Copy", "8") +
            "<Command Name='Start'><pValue>Reg</pValue>"
            "<CommandValue>77</CommandValue></Command>"
            "<Command Name='Other'><pValue>Both</pValue>"
            "<pCommandValue>Value</pCommandValue></Command>"
            "<Integer Name='Both'><pValue>Reg</pValue>"
            "<pValueCopy>Copy</pValueCopy></Integer>",

        "Start?1 Start=1 Reg?77 Start?0 Reg=0 Start?1 Value=5 Copy?0 Other=1 "
        "Reg?5 Copy?5");
}

void TestNodeMap::values()
{
    QFETCH(QByteArray, nodes);
    QFETCH(QString, steps);
    QCOMPARE(FeatureSteps(*load(root({}) + nodes)).run(steps), QString());
}

void TestNodeMap::variableAddresses()
{
    const QByteArray rest = "<Length>4</Length><AccessMode>RW</AccessMode><pPort>Device</pPort>"
                            "<Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>";
    const auto map = load(
        root({}) + intReg("Selector", "0") +
        "<IntReg Name='ByIndex'><Address>0x100</Address><pIndex Offset='0x10'>Selector</pIndex>" +
        rest +
        "<IntReg Name='ByFormula'><IntSwissKnife Name='Inner'><pVariable Name='S'>Selector"
        "</pVariable><Formula>0x200 + S * 4</Formula></IntSwissKnife>" +
        rest + "<IntReg Name='ByNode'><pAddress>Address</pAddress>" + rest +
        "<IntSwissKnife Name='Address'><pVariable Name='S'>Selector</pVariable>"
        "<Formula>0x300 / (2 - S)</Formula></IntSwissKnife>");
    const QString steps = "Selector=0 %1=11 Selector=1 %1?0 %1=22 Selector=0 %1?11";
    for (const char *name : {"ByIndex", "ByFormula", "ByNode"})
        QCOMPARE(FeatureSteps(*map).run(steps.arg(name)), QString());
    // If an address cannot be computed, nothing may be read from another address.
    integer(*map, "Selector") = 2;
    const uint64_t reads = map->transactions().reads;
    QVERIFY(textOf(*map, "ByNode").startsWith("exception: "));
    QCOMPARE(map->transactions().reads, reads);
}

void TestNodeMap::accessModes()
{
    QByteArray nodes = root({}) + intReg("Implemented", "0") + intReg("Available", "4") +
                       intReg("Locked", "8") + intReg("Reg", "12") +
                       "<IntReg Name='WriteOnly'><Address>16</Address><Length>4</Length>"
                       "<AccessMode>WO</AccessMode><pPort>Device</pPort></IntReg>"
                       "<Integer Name='A'><pIsImplemented>Implemented</pIsImplemented>"
                       "<pIsAvailable>Available</pIsAvailable><pIsLocked>Locked</pIsLocked>"
                       "<pValue>Reg</pValue></Integer>"
                       "<Integer Name='Above'><pValue>A</pValue></Integer>"
                       "<Integer Name='Imposed'><ImposedAccessMode>RO</ImposedAccessMode>"
                       "<pValue>Reg</pValue></Integer>"
                       "<Command Name='Command'><pIsLocked>Locked</pIsLocked>"
                       "<pValue>WriteOnly</pValue></Command>";
    const auto map = load(nodes);
    QCOMPARE(FeatureSteps(*map).run(
                 "A:NI Implemented=1 A:NA Above:NA Available=1 A:RW Command:WO Locked=1 "
                 "A:RO Above:RO Command:NA Imposed:RO Root:RO A!1 WriteOnly:WO"),
             QString());
    QVERIFY_EXCEPTION_THROWN(integer(*map, "A") = 1, GenICam::AccessException);
    QVERIFY_EXCEPTION_THROWN(integer(*map, "WriteOnly").GetValue(), GenICam::AccessException);
}

void TestNodeMap::limitsAndIncrements()
{
    const auto map =
        load(root({}) + intReg("Reg", "0") + intReg("Offset", "4") +
             "<Integer Name='Width'><pValue>Reg</pValue><Min>16</Min><pMax>Room</pMax><Inc>4</Inc>"
             "</Integer><IntSwissKnife Name='Room'><pVariable Name='O'>Offset</pVariable>"
             "<Formula>100 - O</Formula></IntSwissKnife>"
             "<Integer Name='Above'><pValue>Width</pValue></Integer>"
             "<Integer Name='Free'><pValue>Reg</pValue></Integer>"
             "<Float Name='F'><pValue>Width</pValue></Float>");
    QCOMPARE(FeatureSteps(*map).run(
                 "Above.Min?16 Above.Max?100 Above.Inc?4 Offset=40 Above.Max?60 F.Max?60 "
                 "Above!62 Above!30 Above=32 Reg?32"),
             QString());
    QCOMPARE(integer(*map, "Above").GetIncMode(), fixedIncrement);
    QCOMPARE(integer(*map, "Free").GetIncMode(), noIncrement);
    QVERIFY_EXCEPTION_THROWN(integer(*map, "Above") = 62, GenICam::OutOfRangeException);
}

void TestNodeMap::validValues()
{
    const auto map = load(root({}) + "<Integer Name='I'><Value>2</Value><Max>8</Max>"
                                     "<ValidValueSet>1;2; 4;8;16</ValidValueSet></Integer>"
                                     "<Float Name='F'><Value>1</Value><Min>0</Min><Max>10</Max>"
                                     "<ValidValueSet>0.5;1;2.5</ValidValueSet></Float>");
    QCOMPARE(integer(*map, "I").GetIncMode(), listIncrement);
    const int64_autovector_t values = integer(*map, "I").GetListOfValidValues();
    QCOMPARE(values.size(), std::size_t(4));
    QCOMPARE(values[2], int64_t(4));
    QVERIFY_EXCEPTION_THROWN(integer(*map, "I") = 3, GenICam::OutOfRangeException);
    integer(*map, "I") = 8;
    real(*map, "F") = 2.5;
    QVERIFY_EXCEPTION_THROWN(real(*map, "F") = 2, GenICam::OutOfRangeException);
}

void TestNodeMap::invalidReferences()
{
    const auto map =
        load(root({"Good", "Missing", "NoPort", "Dangling", "Limited", "Switched", "Chunk"}) +
             intReg("Good", "0") +
             "<Integer Name='Dangling'><pValue>Nowhere</pValue></Integer>"
             "<Integer Name='Limited'><pValue>Good</pValue><pMax>Nowhere</pMax>"
             "</Integer><Integer Name='Switched'><pIsAvailable>Dangling"
             "</pIsAvailable><pValue>Good</pValue></Integer>"
             "<Integer Name='Empty'/>"
             "<IntReg Name='Chunk'><Address>0</Address><Length>4</Length>"
             "<AccessMode>RO</AccessMode><pPort>ChunkPort</pPort></IntReg>"
             "<IntReg Name='Portless'><Address>0</Address><Length>4</Length>"
             "<pPort>NoPort</pPort></IntReg>"
             "<Port Name='ChunkPort'><ChunkID>12</ChunkID></Port>");
    FeatureList_t features;
    CCategoryPtr(map->GetNode("Root"))->GetFeatures(features);
    QCOMPARE(features.size(), std::size_t(7));
    QCOMPARE(access(*map, "Good"), RW);
    QCOMPARE(access(*map, "Portless"), RO);
    for (const char *name : {"Missing", "Dangling", "Limited", "Switched", "Empty", "Chunk"}) {
        QCOMPARE(access(*map, name), NA);
        QVERIFY(textOf(*map, name).startsWith("exception: "));
    }
    QCOMPARE(map->transactions().reads, uint64_t(0));
}

void TestNodeMap::invalidNodes()
{
    const QByteArray tail = "<AccessMode>RW</AccessMode><pPort>Device</pPort>";
    const auto map = load(
        root({}) + "<IntReg Name='Endless'><Address>0</Address><Length>-1</Length>" + tail +
        "</IntReg><Register Name='Vast'><Address>0</Address><Length>1099511627776</Length>" + tail +
        "</Register><StringReg Name='Nothing'><Address>0</Address><Length>0</Length>" + tail +
        "</StringReg><Command Name='Constant'><Value>1</Value></Command>"
        "<Integer Name='Twice'><Value>1</Value></Integer><Integer Name='Twice'><pIndex>Twice"
        "</pIndex><ValueDefault>1</ValueDefault></Integer>"
        "<Integer Name='Raw'><Value>1</Value></Integer><IntConverter Name='Unbounded'><FormulaTo>"
        "-FROM</FormulaTo><FormulaFrom>TO / -1</FormulaFrom><pValue>Raw</pValue></IntConverter>"
        "<Register Name='Other'><Address>0</Address><Length>4</Length></Register>"
        "<Integer Name='Other'><Value>1</Value></Integer><String "
        "Name='Circular'><pValue>Circular</pValue></String>");
    for (const char *name :
         {"Endless", "Vast", "Nothing", "Constant", "Twice", "Other", "Circular"})
        QVERIFY2(textOf(*map, name).startsWith("exception: "), name);
    QVERIFY_EXCEPTION_THROWN(CRegisterPtr(map->GetNode("Other"))->GetAddress(),
                             GenICam::PropertyException);
    QCOMPARE(integer(*map, "Unbounded").GetMax(), INT64_MAX);
    QCOMPARE(CStringPtr(map->GetNode("Circular"))->GetMaxLength(), int64_t(INT64_MAX));
    QCOMPARE(access(*map, "Constant"), NA);
    QCOMPARE(map->transactions().reads, uint64_t(0));
}

void TestNodeMap::circularReferences()
{
    const QByteArray tail = "<AccessMode>RW</AccessMode><pPort>Device</pPort>";
    const auto map = load(
        root({"Sub", "A", "Self", "Width", "OffsetX"}) +
        "<Category Name='Sub'><pFeature>B</pFeature><pFeature>Root</pFeature>"
        "<pFeature>Sub</pFeature></Category>"
        "<Integer Name='A'><pValue>B</pValue></Integer>"
        "<Integer Name='B'><pValue>C</pValue></Integer>"
        "<IntSwissKnife Name='C'><pVariable Name='V'>A</pVariable><Formula>V</Formula>"
        "</IntSwissKnife><Integer Name='Self'><pValue>Self</pValue></Integer>"
        "<IntReg Name='Reg'><pAddress>A</pAddress><Length>4</Length><AccessMode>RW</AccessMode>"
        "<pPort>Device</pPort></IntReg>"
        "<IntSwissKnife Name='OwnLimit'><pVariable Name='V.Max'>Bounded</pVariable>"
        "<Formula>V.Max</Formula></IntSwissKnife>"
        "<Integer Name='Bounded'><Value>1</Value><pMax>OwnLimit</pMax></Integer>"
        "<IntReg Name='OwnLength'><Address>0</Address><pLength>OwnLength</pLength>" +
        tail +
        "</IntReg>"
        "<IntReg Name='OwnIndex'><Address>0</Address><pIndex>OwnIndex</pIndex><Length>4</Length>" +
        tail +
        "</IntReg>"
        "<IntReg Name='OwnOffset'><Address>0</Address><pIndex "
        "pOffset='OwnOffset'>WidthReg</pIndex><Length>4</Length>" +
        tail +
        "</IntReg>"
        "<StringReg Name='OwnText'><Address>0</Address><pLength>TextLength</pLength>" +
        tail +
        "</StringReg>"
        "<IntSwissKnife Name='TextLength'><pVariable "
        "Name='T'>OwnLength</pVariable><Formula>T</Formula></IntSwissKnife>"
        "<Integer Name='MaxOfMax'><Value>1</Value><pMax>Between</pMax></Integer>"
        "<Integer Name='Between'><pValue>BetweenMax</pValue></Integer>"
        "<IntSwissKnife Name='BetweenMax'><pVariable "
        "Name='V'>Outer</pVariable><Formula>V.Max</Formula></IntSwissKnife>"
        "<Integer Name='Outer'><pValue>MaxOfMax</pValue></Integer>"
        "<Integer Name='OwnLock'><Value>1</Value><pIsLocked>OwnLock</pIsLocked></Integer>"
        // Limits that refer to each other's values are not a circular reference.
        + intReg("WidthReg", "0") + intReg("OffsetReg", "4") +
        "<Integer Name='Width'><pValue>WidthReg</pValue><pMax>WidthMax</pMax></Integer>"
        "<Integer Name='OffsetX'><pValue>OffsetReg</pValue><pMax>OffsetMax</pMax></Integer>"
        "<IntSwissKnife Name='WidthMax'><pVariable Name='V'>OffsetX</pVariable>"
        "<Formula>100 - V</Formula></IntSwissKnife>"
        "<IntSwissKnife Name='OffsetMax'><pVariable Name='V'>Width</pVariable>"
        "<Formula>100 - V</Formula></IntSwissKnife>");
    for (const char *name : {"A", "B", "C", "Self", "Reg", "OwnLimit"}) {
        QCOMPARE(access(*map, name), NA);
        QVERIFY(textOf(*map, name).startsWith("exception: "));
    }
    QVERIFY_EXCEPTION_THROWN(integer(*map, "Bounded").GetMax(), GenICam::GenericException);
    for (const char *name : {"OwnLength", "OwnIndex", "OwnOffset", "OwnText"})
        QVERIFY2(textOf(*map, name).startsWith("exception: "), name);
    QVERIFY_EXCEPTION_THROWN(CStringPtr(map->GetNode("OwnText"))->GetMaxLength(),
                             GenICam::GenericException);
    QVERIFY_EXCEPTION_THROWN(integer(*map, "MaxOfMax").GetMax(), GenICam::GenericException);
    QCOMPARE(access(*map, "OwnLock"), RO);
    integer(*map, "Width") = 60;
    QCOMPARE(integer(*map, "OffsetX").GetMax(), int64_t(40));
    FeatureList_t features;
    CCategoryPtr(map->GetNode("Sub"))->GetFeatures(features);
    QCOMPARE(names(features), QStringList("B"));
}

void TestNodeMap::costOfReferences()
{
    QByteArray nodes = root({"Category0"}) + intReg("Link0", "0") +
                       intReg("Sum0", "4", "<Cachable>NoCache</Cachable>");
    for (int i = 0; i < 4000; ++i)
        nodes += QString("<Integer Name='Link%1'><pValue>Link%2</pValue></Integer>")
                     .arg(i + 1)
                     .arg(i)
                     .toUtf8();
    for (int i = 0; i < 60; ++i)
        nodes +=
            QString("<IntSwissKnife Name='Sum%1'><pVariable Name='A'>Sum%2</pVariable><pVariable "
                    "Name='B'>Sum%2</pVariable><Formula>A + B</Formula></IntSwissKnife>")
                .arg(i + 1)
                .arg(i)
                .toUtf8();
    // A tree of these categories has more rows than memory can hold.
    for (int i = 0; i < 100; ++i)
        nodes +=
            QString(
                "<Category "
                "Name='Category%1'><pFeature>Category%2</pFeature><pFeature>Again%2</pFeature></"
                "Category><Category Name='Again%2'><pFeature>Category%3</pFeature></Category>")
                .arg(i)
                .arg(i + 1)
                .arg(i + 2)
                .toUtf8();
    QElapsedTimer timer;
    timer.start();
    const auto map = load(nodes);
    QCOMPARE(textOf(*map, "Link255"), QString("0"));
    QCOMPARE(access(*map, "Link256"), NA);
    QCOMPARE(access(*map, "Link4000"), NA);
    QVERIFY(textOf(*map, "Link4000").startsWith("exception: "));
    QCOMPARE(textOf(*map, "Sum10"), QString("0"));
    QVERIFY(textOf(*map, "Sum60").startsWith("exception: "));
    std::function<int(ICategory &)> count = [&](ICategory &category) {
        FeatureList_t features;
        category.GetFeatures(features);
        int rows = 0;
        for (std::size_t i = 0; i < features.size(); ++i) {
            auto *inner = dynamic_cast<ICategory *>(features[i]);
            rows += 1 + (inner ? count(*inner) : 0);
        }
        return rows;
    };
    QVERIFY(count(*CCategoryPtr(map->GetNode("Root"))) <= 500001);
    QVERIFY2(timer.elapsed() < 20000, QByteArray::number(timer.elapsed()));
}

void TestNodeMap::manyNodes()
{
    const auto loadingTime = [](int count) {
        QByteArray nodes = root({}) + intReg("Hub", "0");
        nodes.reserve(count * 130);
        for (int i = 0; i < count; ++i) {
            const QByteArray number = QByteArray::number(i);
            nodes += "<Integer Name='N" + number + "'><pValue>" +
                     (i % 100 ? "N" + QByteArray::number(i - 1) : QByteArray("Hub")) +
                     "</pValue><pIsAvailable>Hub</pIsAvailable></Integer>";
        }
        nodes += "<Enumeration Name='E'><pValue>Hub</pValue>";
        for (int i = 0; i < count; ++i) {
            const QByteArray number = QByteArray::number(i);
            if (i % 2000 == 1999)
                nodes += "</Enumeration><Enumeration Name='E" + number + "'><pValue>Hub</pValue>";
            nodes += "<EnumEntry Name='E" + number + "'><Value>" + number + "</Value></EnumEntry>";
        }
        nodes += "</Enumeration>";
        QElapsedTimer timer;
        timer.start();
        const auto map = load(nodes);
        const qint64 time = timer.elapsed();
        return map->GetNumNodes() > uint64_t(2 * count) ? time : qint64(1) << 40;
    };
    const qint64 few = loadingTime(2000);
    const qint64 many = loadingTime(20000);
    QVERIFY2(many < 40 * few + 1000, qPrintable(QString("%1 ms, %2 ms").arg(few).arg(many)));
}

void TestNodeMap::longRegisters()
{
    const QByteArray tail = "<AccessMode>RW</AccessMode><pPort>Device</pPort>";
    const auto map =
        load(root({}) + "<Register Name='Long'><Address>0</Address><Length>70000</Length>" + tail +
             "</Register><StringReg Name='Text'><Address>0</Address><Length>1000000</Length>" +
             tail + "</StringReg>");
    CRegisterPtr reg(map->GetNode("Long"));
    const std::vector<uint8_t> bytes(3, 0x41);
    reg->Set(bytes.data(), 3);
    const QString text = textOf(*map, "Long");
    QCOMPARE(text.left(10), QString("0x41414100"));
    QCOMPARE(text.size(), 2 + 2 * 256 + 1);
    QVERIFY(text.endsWith(QChar(0x2026)));
    QVERIFY_EXCEPTION_THROWN(reg->FromString(text.toUtf8().constData()),
                             GenICam::InvalidArgumentException);
    std::vector<uint8_t> all(70000);
    reg->Get(all.data(), 70000);
    QCOMPARE(int(all[2]), 0x41);
    QCOMPARE(textOf(*map, "Text"), QString("AAA"));
    QCOMPARE(CStringPtr(map->GetNode("Text"))->GetMaxLength(), int64_t(1000000));
    QVERIFY_EXCEPTION_THROWN(
        CStringPtr(map->GetNode("Text"))->SetValue(QByteArray(70000, 'x').constData()),
        GenICam::OutOfRangeException);
}

namespace {

/// Memory that counts its transfers and can stop answering.
class CountingPort : public OrvCameraIo::Port
{
public:
    struct State
    {
        std::atomic<int> batches{0};
        std::atomic<bool> isSilent{false};
        std::vector<OrvCameraIo::RegisterRange> declared;
        std::vector<uint64_t> reads; ///< addresses, of the immediate port
        OrvCameraIo::MemoryPort memory;
    };

    CountingPort(std::shared_ptr<State> state, bool isImmediate)
        : m_state(std::move(state)), m_isImmediate(isImmediate)
    {
    }

    bool isImmediate() const override { return m_isImmediate; }
    std::size_t batchSize() const override { return 100; }
    void setHints(const OrvCameraIo::PortHints &hints) override
    {
        m_state->declared = hints.declared;
    }
    void read(std::vector<OrvCameraIo::ReadTransfer> &batch) override
    {
        ++m_state->batches;
        for (std::size_t i = 0; i < batch.size() && m_isImmediate; ++i)
            m_state->reads.push_back(batch[i].range.address);
        if (!m_state->isSilent)
            return m_state->memory.read(batch);
        batch.front().status = OrvCameraIo::Status::NoAnswer;
    }
    OrvCameraIo::Status write(uint64_t address, const std::vector<uint8_t> &bytes) override
    {
        return m_state->memory.write(address, bytes);
    }
    Presence probe() override { return m_state->isSilent ? Presence::Silent : Presence::Answers; }

private:
    const std::shared_ptr<State> m_state;
    const bool m_isImmediate;
};

std::unique_ptr<OrvDescription::NodeMap> loadWith(const QByteArray &nodes,
                                                  std::unique_ptr<OrvCameraIo::Port> port)
{
    const QByteArray xml = description(nodes);
    return std::make_unique<OrvDescription::NodeMap>(
        OrvDescription::Description::shared({xml.constData(), static_cast<std::size_t>(xml.size())},
                                            "test.xml"),
        std::move(port));
}

using Addresses = std::vector<uint64_t>;

/// Two features of a polled register, and one that depends on it.
struct Polled
{
    const std::shared_ptr<CountingPort::State> state = std::make_shared<CountingPort::State>();
    const std::unique_ptr<OrvDescription::NodeMap> map = loadWith(
        root({"Live", "Sibling", "Dependent", "Slow"}) + intReg("LiveReg", "0") +
            "<Integer Name='Live'><PollingTime>100</PollingTime><pValue>LiveReg</pValue></Integer>"
            "<Integer Name='Sibling'><pValue>LiveReg</pValue></Integer>" +
            intReg("Dependent", "4", "<pInvalidator>LiveReg</pInvalidator>") +
            intReg("Slow", "8", "<PollingTime>1000</PollingTime>"),
        std::make_unique<CountingPort>(state, true));
    QStringList calls;

    int64_t value(const char *name) { return integer(*map, name).GetValue(); }
    void change(uint64_t address, uint8_t value) { state->memory.write(address, {0, 0, 0, value}); }
    Addresses takeReads() { return std::exchange(state->reads, {}); }

    /// The addresses that were read, sorted because their order in a batch is undefined.
    Addresses poll(int64_t elapsedMs)
    {
        takeReads();
        calls.clear();
        map->pollLater(elapsedMs);
        while (QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)) {
        }
        Addresses reads = takeReads();
        std::sort(reads.begin(), reads.end());
        return reads;
    }
};

} // namespace

void TestNodeMap::readsInFewTransfers()
{
    const auto state = std::make_shared<CountingPort::State>();
    const auto map = loadWith(
        root({}) + intReg("Implemented", "0x100") + intReg("Locked", "0x104") +
            intReg("Base", "8") + intReg("Index", "12") + intReg("A", "16") + intReg("B", "20") +
            intReg("Min", "24") + intReg("Max", "28") +
            "<IntReg Name='Moving'><pAddress>Base</pAddress><pIndex "
            "Offset='4'>Index</pIndex><Length>4</Length><AccessMode>RW</AccessMode><pPort>Device</"
            "pPort></IntReg>"
            "<IntSwissKnife Name='Sum'><pVariable Name='M'>Moving</pVariable><pVariable "
            "Name='A'>A</pVariable><pVariable Name='B'>B</pVariable><Formula>M + A * "
            "B</Formula></IntSwissKnife>"
            "<Integer Name='Feature'><pValue>Sum</pValue><pMin>Min</pMin><pMax>Max</pMax></Integer>"
            "<Integer "
            "Name='Guarded'><pIsLocked>Locked</pIsLocked><pIsAvailable>Implemented</"
            "pIsAvailable><pIsImplemented>Implemented</pIsImplemented><pValue>A</pValue></Integer>",
        std::make_unique<CountingPort>(state, true));
    QCOMPARE(state->declared.size(), std::size_t(8));
    const auto cost = [&](const std::function<void()> &ask) {
        const int before = state->batches;
        ask();
        return state->batches - before;
    };
    // First the variables of formula and address together, then the register at the address.
    QCOMPARE(cost([&] { integer(*map, "Feature").GetValue(); }), 2);
    QCOMPARE(cost([&] { integer(*map, "Feature").GetValue(true); }), 1);
    QCOMPARE(cost([&] { access(*map, "Guarded"); }), 1);
    QCOMPARE(cost([&] { access(*map, "Guarded"); }), 0);
}

void TestNodeMap::cameraDoesNotAnswer()
{
    const auto state = std::make_shared<CountingPort::State>();
    const auto map = loadWith(root({}) + intReg("Reg", "0") + intReg("Other", "4") +
                                  "<Integer Name='Feature'><pValue>Reg</pValue></Integer>",
                              std::make_unique<CountingPort>(state, false));
    QStringList calls;
    for (const char *name : {"Feature", "Other"})
        Register(map->GetNode(name), [&calls](INode *node) { calls << node->GetName().c_str(); });
    QCOMPARE(textOf(*map, "Other"), QString("0"));
    state->isSilent = true;
    for (int i = 0; i < 2; ++i) {
        QVERIFY_EXCEPTION_THROWN(integer(*map, "Feature").GetValue(), GenICam::TimeoutException);
        QVERIFY(textOf(*map, "Feature").contains("Reg: the camera does not answer"));
    }
    QCOMPARE(textOf(*map, "Other"), QString("0"));
    QCOMPARE(calls, QStringList());
    state->isSilent = false;
    QTRY_COMPARE(calls, QStringList("Feature"));
    QCOMPARE(textOf(*map, "Feature"), QString("0"));
}

void TestNodeMap::cachingModes()
{
    const auto map = load(root({}) + intReg("Through", "0") +
                          intReg("Around", "4", "<Cachable>WriteAround</Cachable>") +
                          intReg("Never", "8", "<Cachable>NoCache</Cachable>") +
                          "<Integer Name='Feature'><pValue>Never</pValue></Integer>");
    const auto cost = [&](const char *name) {
        const uint64_t before = map->transactions().reads;
        integer(*map, name).GetValue();
        return map->transactions().reads - before;
    };
    QCOMPARE(cost("Through"), uint64_t(1));
    integer(*map, "Through") = 1;
    QCOMPARE(cost("Through"), uint64_t(0));
    QCOMPARE(cost("Around"), uint64_t(1));
    QCOMPARE(cost("Around"), uint64_t(0));
    integer(*map, "Around") = 1;
    QCOMPARE(cost("Around"), uint64_t(1));
    QCOMPARE(cost("Feature"), uint64_t(1));
    QCOMPARE(cost("Feature"), uint64_t(1));
    QVERIFY(!map->GetNode("Feature")->IsCachable() && map->GetNode("Around")->IsCachable());
    QCOMPARE(map->GetNode("Feature")->GetCachingMode(), NoCache);
    const uint64_t before = map->transactions().reads;
    integer(*map, "Through").GetValue(false, true);
    QCOMPARE(map->transactions().reads, before + 1);
}

void TestNodeMap::pollingAndInvalidation()
{
    const auto map =
        load(root({}) + intReg("Reg", "0") + intReg("Trigger", "4") +
             intReg("Invalidated", "8", "<pInvalidator>Trigger</pInvalidator>") +
             "<Integer Name='Polled'><PollingTime>100</PollingTime><pValue>Reg</pValue></Integer>"
             "<Integer Name='Sibling'><pValue>Reg</pValue></Integer>");
    QStringList calls;
    for (const char *name : {"Polled", "Sibling", "Invalidated"}) {
        integer(*map, name).GetValue();
        Register(map->GetNode(name), [&calls](INode *node) { calls << node->GetName().c_str(); });
    }
    const uint64_t before = map->transactions().reads;
    map->Poll(99);
    QCOMPARE(calls, QStringList());
    map->Poll(1);
    // The register is read again, so its other features are notified as well.
    QCOMPARE(calls, QStringList({"Polled", "Sibling"}));
    integer(*map, "Polled").GetValue();
    integer(*map, "Sibling").GetValue();
    QCOMPARE(map->transactions().reads, before + 1);

    calls.clear();
    integer(*map, "Trigger") = 1;
    QCOMPARE(calls, QStringList("Invalidated"));
    integer(*map, "Invalidated").GetValue();
    QCOMPARE(map->transactions().reads, before + 2);
    map->GetNode("Polled")->InvalidateNode();
    integer(*map, "Polled").GetValue();
    QCOMPARE(map->transactions().reads, before + 3);
}

void TestNodeMap::pollingReportsChangesOnly()
{
    Polled polled;
    for (const char *name : {"Live", "Sibling", "Dependent", "Slow"}) {
        Register(polled.map->GetNode(name),
                 [&](INode *node) { polled.calls << node->GetName().c_str(); });
        polled.value(name);
    }
    QCOMPARE(polled.poll(99), Addresses());
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(polled.poll(i == 0 ? 1 : 100), Addresses({0}));
        QCOMPARE(polled.calls, QStringList());
        for (const char *name : {"Live", "Sibling", "Dependent"})
            polled.value(name);
        QCOMPARE(polled.takeReads(), Addresses());
    }

    polled.change(0, 7);
    polled.change(4, 8);
    QCOMPARE(polled.poll(100), Addresses({0}));
    polled.calls.sort();
    QCOMPARE(polled.calls, QStringList({"Dependent", "Live", "Sibling"}));
    QCOMPARE(polled.value("Live"), int64_t(7)); // the polled value
    QCOMPARE(polled.value("Sibling"), int64_t(7));
    QCOMPARE(polled.takeReads(), Addresses());
    QCOMPARE(polled.value("Dependent"), int64_t(8));
    QCOMPARE(polled.poll(100), Addresses({0}));
    QCOMPARE(polled.calls, QStringList());
    QCOMPARE(polled.poll(1000), Addresses({0, 8})); // all due registers in one batch
}

void TestNodeMap::waitingForChangesKeepsPolling()
{
    Polled polled;
    CountingSink sink;
    const OrvGenParam::NodeMapArray array(*polled.map);
    array.GetInt("Live")->RegisterEventSink(&sink);
    QCOMPARE(polled.poll(100), Addresses({0})); // sets the value to compare with
    QCOMPARE(sink.count, 0);
    for (uint8_t i = 1; i <= 3; ++i) {
        polled.change(0, i);
        QCOMPARE(polled.poll(100), Addresses({0}));
        QCOMPARE(sink.count, int(i));
        QCOMPARE(polled.poll(100), Addresses({0}));
        QCOMPARE(sink.count, int(i));
    }
}

void TestNodeMap::unusedChangesEndPolling()
{
    Polled polled;
    QCOMPARE(polled.poll(100), Addresses());
    polled.value("Live");
    QCOMPARE(polled.poll(100), Addresses({0}));
    polled.change(0, 1);
    QCOMPARE(polled.poll(100), Addresses({0})); // the last, as the change is not read
    polled.change(0, 2);
    QCOMPARE(polled.poll(100), Addresses());
    QCOMPARE(polled.value("Live"), int64_t(2));
    QCOMPARE(polled.poll(100), Addresses({0}));
}

QTEST_GUILESS_MAIN(TestNodeMap)
#include "tst_nodemap.moc"
