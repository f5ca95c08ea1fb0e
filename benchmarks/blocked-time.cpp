// SPDX-License-Identifier: MIT
//
// How long does the feature tree block the user interface?
//
//   blocked-time [--categories COUNT | --width FEATURES] [FEATURES ...]
//   tests/support/with-netns.sh blocked-time --camera MS [...]
//
// For each number of features (5000, 20000 and 100000 by default) the program prints three figures:
// - the processor time of the GUI thread for the call and for all the event handling that it
//   causes, painting included; other programs have no influence on it;
// - the same time per feature, which should not grow with the number of features;
// - the longest time for which the event loop was blocked without using the processor.
// The features are in 100 categories by default; the options set the number of categories, or the
// number of features per category.
//
// The node map is in memory, or that of a GigE Vision camera that answers after MS milliseconds.
// Reads from the camera that follow a call belong to the call. A write waits for its answer.

#include "guimeter.h"
#include "largedescription.h"

#include <GenApi/GenApi.h>
#include <OrvCam.h>
#include <OrvGenParam.h>
#include <cameranetwork.h>
#include <memorynodemap.h>
#include <orvgenparamtreeview.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QEventLoop>
#include <QTextStream>
#include <QTimer>
#include <QTreeView>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace {

constexpr int notificationCount = 200;

/// The given number of features, of all types and levels, distributed over the categories.
class LargeNodeMap : public OrvGenApi::MemoryNodeMap
{
public:
    LargeNodeMap(int features, int categories) : MemoryNodeMap("Large"), m_categories(categories)
    {
        for (int i = 0; i < m_categories; ++i)
            addCategory(category(i)).properties().description = "A category.";
        m_selector = &addInteger("Selector", 0, category(0));
        for (int i = 0; i < features; ++i)
            addFeature(i);
    }

    /// The integer features (a quarter of all), which send notifications.
    const std::vector<OrvGenApi::MemoryInteger *> &integers() const { return m_integers; }

private:
    static std::string category(int i) { return "Category" + std::to_string(i); }

    void addFeature(int i)
    {
        const std::string name = "Feature" + std::to_string(i);
        const std::string parent = category(i % m_categories);
        const auto visibility = static_cast<GenApi::EVisibility>(i / m_categories % 3);
        switch (i / m_categories % 4) {
        case 0:
            m_integers.push_back(&addInteger(name, i, parent));
            m_integers.back()->properties().visibility = visibility;
            m_integers.back()->dependsOn(*m_selector);
            GenApi::Register(
                m_integers.back(), [](GenApi::INode *) {}, GenApi::cbPostOutsideLock);
            break;
        case 1:
            addFloat(name, i, parent).properties().visibility = visibility;
            break;
        case 2:
            addString(name, "text", parent).properties().visibility = visibility;
            break;
        default:
            addEnumeration(name, {{"Off", 0}, {"On", 1}}, 0, parent).properties().visibility =
                visibility;
            break;
        }
    }

    const int m_categories;
    OrvGenApi::MemoryInteger *m_selector = nullptr;
    std::vector<OrvGenApi::MemoryInteger *> m_integers;
};

/// A camera with the same features, in a private network.
class LargeCamera
{
public:
    LargeCamera(int features, int categories, int delay)
    {
        TestCamera::Settings settings = m_network.cameraSettings(0x020000000001, "10.1.0.2");
        settings.description = LargeDescription(features, categories).text();
        settings.isZipped = true;
        settings.unknownRegisters = TestCameraMemory::Unknown::Zero;
        m_camera = std::make_unique<TestCamera>(settings);
        m_system.reset(OrvCam_GetSystem());
        for (int attempt = 0; attempt < 50 && !m_device; ++attempt) {
            OrvCam_RefreshDevices(m_system.get(), 200);
            if (OrvCam::DeviceInfo *found = OrvCam_GetDeviceInfo(m_system.get(), 0))
                m_device.reset(OrvCam_CreateDevice(found, nullptr, OrvCam::AccessControl));
        }
        if (!m_device)
            qFatal("The camera cannot be opened");
        m_camera->setMood("delay", delay);
    }

    GenApi::INodeMap &map() { return *m_device->GetParamArray()->GetNodeMap(); }

private:
    CameraNetwork m_network{QStringLiteral("orv0"), QStringLiteral("10.1.0.1/24"),
                            QStringLiteral("10.1.0.2/24")};
    std::unique_ptr<TestCamera> m_camera;
    OrvCam::Released<OrvCam::System> m_system;
    OrvCam::Released<OrvCam::Device> m_device;
};

class Benchmark
{
public:
    /// Without a delay, the features are in memory.
    Benchmark(int features, int categories, std::optional<int> delay)
        : m_features(features), m_pause(delay ? 200 + 6 * *delay : 0)
    {
        if (delay)
            m_camera = std::make_unique<LargeCamera>(features, categories, *delay);
        else
            m_memory = std::make_unique<LargeNodeMap>(features, categories);
    }

    void run()
    {
        QTextStream(stdout) << m_features << " features\n";
        GenApi::INodeMap &map = m_camera ? m_camera->map() : *m_memory;
        const GenApi::CIntegerPtr selector(map.GetNode("Selector"));
        const auto writeSelector = [&] { selector->SetValue(selector->GetValue() + 1); };
        const auto notifyAll = [&] {
            if (m_memory)
                measure("200 notifications", [&] { notify(); });
        };
        measure("write, a quarter depends, no tree", writeSelector);
        std::unique_ptr<OrvGui::OrvGenParamTreeView> view;
        measure("building and showing the tree", [&] {
            view.reset(new OrvGui::OrvGenParamTreeView(&map, nullptr));
            view->show();
        });
        QTreeView *tree = view->treeView();
        measure("level Basic to Guru, collapsed", [&] { view->setVisibility(OrvGui::Guru); });
        measure("expandAll at Guru", [&] { tree->expandAll(); });
        measure("level Guru to Basic, expandAll", [&] { view->setVisibility(OrvGui::Basic); });
        measure("level Basic to Guru, expandAll", [&] { view->setVisibility(OrvGui::Guru); });
        // expandAll() makes Qt record every row as expanded; a user expands only categories.
        measure("collapse, expand each category", [&] {
            tree->collapseAll();
            for (int row = 0; row < tree->model()->rowCount(); ++row)
                tree->expand(tree->model()->index(row, 0));
        });
        measure("level Guru to Basic, expanded", [&] { view->setVisibility(OrvGui::Basic); });
        measure("level Basic to Guru, expanded", [&] { view->setVisibility(OrvGui::Guru); });
        notifyAll();
        measure("scrolling to the end", [&] { tree->scrollToBottom(); });
        notifyAll();
        measure("write, a quarter depends", writeSelector);
        measure("saveState", [&] { m_state = view->saveState(); });
        measure("loadState", [&] { view->loadState(m_state.constData()); });
        measure("destroying the tree", [&] { view.reset(); });
    }

private:
    template<typename Function>
    void measure(const char *what, Function function)
    {
        m_meter.take();
        const double start = GuiMeter::now().work;
        function();
        QCoreApplication::processEvents();
        if (m_pause > 0) {
            QEventLoop loop;
            QTimer::singleShot(m_pause, &loop, &QEventLoop::quit);
            loop.exec();
        }
        const double milliseconds = GuiMeter::now().work - start;
        QTextStream(stdout) << QStringLiteral("  %1 %2 ms %3 us/feature, longest wait %4 ms\n")
                                   .arg(QLatin1String(what), -34)
                                   .arg(milliseconds, 9, 'f', 1)
                                   .arg(milliseconds * 1000 / m_features, 8, 'f', 2)
                                   .arg(m_meter.take().longestWait, 5, 'f', 1);
    }

    /// Notifies features all over the tree in one go; the tree is repainted once, after the last.
    void notify()
    {
        const std::vector<OrvGenApi::MemoryInteger *> &integers = m_memory->integers();
        for (std::size_t i = 0; i < notificationCount; ++i) {
            OrvGenApi::MemoryInteger &integer = *integers[i * integers.size() / notificationCount];
            integer.change(integer.GetValue() + 1);
        }
    }

    const int m_features;
    const int m_pause; ///< ms, for the reads from the camera
    std::unique_ptr<LargeNodeMap> m_memory;
    std::unique_ptr<LargeCamera> m_camera;
    GuiMeter m_meter;
    QByteArray m_state;
};

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (qEnvironmentVariableIsEmpty("QT_LOGGING_RULES"))
        qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({{"categories", "How many categories there are.", "count", "100"},
                       {"width", "How many features a category has.", "features", "0"},
                       {"camera", "Of a camera that answers after so many ms.", "ms"}});
    parser.addPositionalArgument("features", "How many features there are.", "[features ...]");
    parser.process(application);

    QList<int> sizes;
    for (const QString &argument : parser.positionalArguments())
        sizes << argument.toInt();
    if (sizes.isEmpty())
        sizes << 5000 << 20000 << 100000;
    std::optional<int> delay;
    if (parser.isSet("camera"))
        delay = parser.value("camera").toInt();
    const int width = parser.value("width").toInt();
    for (const int size : sizes) {
        const int categories = width > 0 ? size / width : parser.value("categories").toInt();
        if (size < 4 * notificationCount || categories < 1) {
            QTextStream(stderr) << "blocked-time: at least " << 4 * notificationCount
                                << " features in a category are needed\n";
            return 2;
        }
        Benchmark(size, categories, delay).run();
    }
    return 0;
}
