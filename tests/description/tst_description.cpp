// SPDX-License-Identifier: MIT
#include <Base/GCException.h>
#include <cameraio/limits.h>
#include <description/description.h>

#include <QtTest>

#include <thread>

#include <unistd.h>

using OrvDescription::Description;
using OrvDescription::DescriptionNode;
namespace Limits = OrvCameraIo::Limits;

namespace {

const QByteArray root = "<Category Name='Root'/>";

QByteArray document(const QByteArray &nodes)
{
    return "<RegisterDescription ModelName='M' SchemaMajorVersion='1' SchemaMinorVersion='0'>" +
           root + nodes + "</RegisterDescription>";
}

std::shared_ptr<const Description> read(const QByteArray &xml)
{
    return Description::shared({xml.constData(), static_cast<std::size_t>(xml.size())}, "a.xml");
}

QString errorOf(const QByteArray &xml)
{
    try {
        read(xml);
    } catch (const GenICam::RuntimeException &e) {
        return e.GetDescription();
    }
    return "accepted";
}

QByteArray repeated(const QByteArray &text, std::size_t count)
{
    return text.repeated(static_cast<int>(count));
}

QString textOf(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

} // namespace

class TestDescription : public QObject
{
    Q_OBJECT

private slots:
    void descriptionContents();
    void invalidDescriptionsAreRefused_data();
    void invalidDescriptionsAreRefused();
    void parserPrintsNothing();
    void descriptionLimits();
    void descriptionsAreShared();
};

void TestDescription::descriptionContents()
{
    const auto description = read(document(
        "<Group><Integer Name='A' NameSpace='Standard'><ToolTip> a &amp; <![CDATA[<b>]]> &#228; "
        "</ToolTip>"
        "<pVariable Name='X' "
        "other='1'>B</pVariable><Extension><Deep>text</Deep></Extension></Integer></Group>"
        "<Enumeration Name='E'><EnumEntry "
        "Name='On'><Symbolic>Really</Symbolic></EnumEntry><Value>1</Value></Enumeration>"
        "<StructReg><Address>8</Address><StructEntry "
        "Name='S'><Bit>1</Bit></StructEntry><Length>4</Length></StructReg>"
        "<IntReg "
        "Name='R'><IntSwissKnife><Formula>1</Formula></IntSwissKnife></IntReg><Nameless/>"));
    QCOMPARE(textOf(description->modelName()), QString("M"));
    QCOMPARE(description->schemaMinorVersion(), 0);
    const auto &nodes = description->nodes();
    QCOMPARE(nodes.size(), std::size_t(6));
    QVERIFY(nodes[1].isStandard && nodes[1].tag == "Integer");
    QCOMPARE(textOf(nodes[1].text("ToolTip")), QString::fromUtf8("a & <b> \xc3\xa4"));
    QCOMPARE(textOf(nodes[1].find("pVariable")->name()), QString("X"));
    QCOMPARE(textOf(nodes[1].text("Extension")), QString());
    QCOMPARE(textOf(nodes[1].text("Missing", "other")), QString("other"));
    QCOMPARE(textOf(nodes[3].name), QString("EnumEntry_E_On"));
    QCOMPARE(QString(textOf(nodes[3].owner) + "." + textOf(nodes[3].symbolic)),
             QString("E.Really"));
    QCOMPARE(QString(textOf(nodes[4].text("Bit")) + "@" + textOf(nodes[4].text("Address"))),
             QString("1@8"));
    QCOMPARE(textOf(nodes[5].properties[0].properties()[0].text), QString("1"));
}

void TestDescription::invalidDescriptionsAreRefused_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *name, const QByteArray &xml, const char *message) {
        QTest::newRow(name) << xml << QString("a.xml: ") + message;
    };
    const QByteArray bomb = "<!DOCTYPE r [<!ENTITY a 'aaaaaaaaaa'><!ENTITY b '&a;&a;&a;&a;'>]>\n";
    row("entities", bomb + document("&b;"), "line 1: a document type definition is not allowed");
    row("file", "\n<!DOCTYPE r SYSTEM 'file:///etc/hostname'>" + document({}),
        "line 2: a document type definition is not allowed");
    row("unknown entity", document("&b;"), "line 1: Entity 'b' not defined");
    row("no root category", "<RegisterDescription/>", "the description has no category 'Root'");
    row("root of another kind", "<RegisterDescription><Integer Name='Root'/></RegisterDescription>",
        "the description has no category 'Root'");
    row("empty", "", "the description is empty");
    row("other XML", "<html/>", "this is no GenICam device description");
    row("no XML", "hello", "line 1: ");
    row("cut off", "<RegisterDescription>\n<a", "line ");
    row("zero bytes", QByteArray(100, '\0'), "");
    row("deep", document(repeated("<Group>", 40) + repeated("</Group>", 40)),
        "line 1: there are too many elements within each other");
    row("too many nodes", document(repeated("<Integer Name='N'/>", Limits::nodeCount)),
        "line 1: there are too many nodes");
    row("too many entries",
        document("<Enumeration Name='E'>" +
                 repeated("<EnumEntry Name='N'/>", Limits::entryCount + 1) + "</Enumeration>"),
        "line 1: there are too many entries in an enumeration");
    row("structures multiply",
        document("<StructReg>" + repeated("<Length>4</Length>", 3000) +
                 repeated("<StructEntry Name='N'/>", 3000) + "</StructReg>"),
        "line 1: there are too many elements");
    row("too large", document(repeated(" ", Limits::descriptionSize)),
        "the description is too large");
}

void TestDescription::invalidDescriptionsAreRefused()
{
    QFETCH(QByteArray, xml);
    QFETCH(QString, message);
    const QString error = errorOf(xml);
    QVERIFY2(error.startsWith(message) && !error.contains('\n'), qPrintable(error));
}

void TestDescription::parserPrintsNothing()
{
    QTemporaryFile output;
    QVERIFY(output.open());
    const int before = dup(STDERR_FILENO);
    dup2(output.handle(), STDERR_FILENO);
    // The second half of a character in UTF-16 is missing.
    const QByteArray name("\xfe\xff\0<\0a\0/\0>\xd8\0\0s\0t", 16);
    const QStringList errors = {errorOf(name), errorOf("<a>&b;</a>"), errorOf("\xff\xff")};
    dup2(before, STDERR_FILENO);
    close(before);
    QVERIFY(!errors.contains("accepted"));
    QCOMPARE(output.size(), qint64(0));
}

void TestDescription::descriptionLimits()
{
    QCOMPARE(errorOf(document(repeated("<Group>", 31) + repeated("</Group>", 31))),
             QString("accepted"));
    const QByteArray longText = repeated("x", 5000000);
    const auto description =
        read(document("<Integer Name='N'><ToolTip>" + longText + "</ToolTip></Integer>"));
    QCOMPARE(description->nodes()[1].text("ToolTip").size(), std::size_t(longText.size()));
}

void TestDescription::descriptionsAreShared()
{
    const QByteArray xml = document("<Integer Name='Shared'/>");
    std::vector<std::shared_ptr<const Description>> all(4);
    std::vector<std::thread> threads;
    for (auto &one : all)
        threads.emplace_back([&] { one = read(xml); });
    for (std::thread &thread : threads)
        thread.join();
    for (const auto &one : all)
        QCOMPARE(one, all.front());
    QVERIFY(read(document("<Integer Name='Other'/>")) != all.front());
    const std::weak_ptr<const Description> weak = all.front();
    all.clear();
    QVERIFY(weak.expired());
    QCOMPARE(read(xml)->nodes().size(), std::size_t(2));
}

QTEST_GUILESS_MAIN(TestDescription)
#include "tst_description.moc"
