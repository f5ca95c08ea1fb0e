// SPDX-License-Identifier: MIT
#include <simulatednodemap.h>

#include <QtTest>

/// The simulated camera's description, as hosts see it.
class TestCameraDescription : public QObject
{
    Q_OBJECT

private slots:
    void featuresAreDocumented();
    void dialogsFindTheirFeatures();

private:
    OrvSimulation::SimulatedCamera m_camera;
    const std::unique_ptr<OrvDescription::NodeMap> m_map = openNodeMap(m_camera);
};

void TestCameraDescription::featuresAreDocumented()
{
    GenApi::NodeList_t nodes;
    m_map->GetNodes(nodes);
    for (GenApi::INode *node : nodes) {
        const QByteArray name(node->GetName().c_str());
        if (!node->IsFeature() || name == "Root")
            continue;
        QVERIFY2(!node->GetToolTip().empty() && !node->GetDescription().empty(), name);
    }
}

// Every quoted feature name in the sources of the dialogs must exist in the camera.
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
    GenApi::NodeList_t nodes;
    m_map->GetNodes(nodes);
    for (GenApi::INode *node : nodes) {
        if (const auto *entry = dynamic_cast<GenApi::IEnumEntry *>(node))
            known << entry->GetSymbolic().c_str();
        else if (node->IsFeature())
            known << node->GetName().c_str();
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

QTEST_GUILESS_MAIN(TestCameraDescription)
#include "tst_cameradescription.moc"
