// SPDX-License-Identifier: MIT
//
// For how long does the feature tree keep a program from answering its user?
//
//   blocked-time [--categories COUNT | --width FEATURES] [FEATURES ...]
//
// For each number of features, by default 5000, 20000 and 100000: the time from the call to the end
// of what it causes in the event loop, painting included. The node map is in memory, so that no
// camera is waited for; the time is the processor's, so that other programs do not count. The
// second figure is the time per feature, which should not grow with their number. The features are
// in 100 categories, or in as many as asked for, or in categories of as many features as asked for.

#include <memorynodemap.h>
#include <orvgenparamtreeview.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QTextStream>
#include <QTreeView>

#include <ctime>
#include <memory>
#include <vector>

namespace {

const int notificationCount = 200;

/// As many features of all types and levels as asked for, spread over the categories.
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

    /// The integer features, which are those that notify: a quarter of all.
    const std::vector<OrvGenApi::MemoryInteger *> &integers() const { return m_integers; }

    /// The feature on which the integer features depend.
    OrvGenApi::MemoryInteger &selector() const { return *m_selector; }

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

class Benchmark
{
public:
    Benchmark(int features, int categories) : m_features(features), m_map(features, categories) {}

    void run()
    {
        QTextStream(stdout) << m_features << " features\n";
        measure("write, a quarter depends, no tree", [&] { writeSelector(); });
        std::unique_ptr<OrvGui::OrvGenParamTreeView> view;
        measure("building and showing the tree", [&] {
            view.reset(new OrvGui::OrvGenParamTreeView(&m_map, nullptr));
            view->show();
        });
        QTreeView *tree = view->treeView();
        measure("level Basic to Guru, collapsed", [&] { view->setVisibility(OrvGui::Guru); });
        measure("expandAll at Guru", [&] { tree->expandAll(); });
        measure("level Guru to Basic, expandAll", [&] { view->setVisibility(OrvGui::Basic); });
        measure("level Basic to Guru, expandAll", [&] { view->setVisibility(OrvGui::Guru); });
        // expandAll makes Qt remember every single row as expanded, a user only the categories.
        measure("collapse, expand each category", [&] {
            tree->collapseAll();
            for (int row = 0; row < tree->model()->rowCount(); ++row)
                tree->expand(tree->model()->index(row, 0));
        });
        measure("level Guru to Basic, expanded", [&] { view->setVisibility(OrvGui::Basic); });
        measure("level Basic to Guru, expanded", [&] { view->setVisibility(OrvGui::Guru); });
        measure("200 notifications", [&] { notify(); });
        measure("scrolling to the end", [&] { tree->scrollToBottom(); });
        measure("200 notifications, scrolled", [&] { notify(); });
        measure("write, a quarter depends", [&] { writeSelector(); });
        measure("saveState", [&] { m_state = view->saveState(); });
        measure("loadState", [&] { view->loadState(m_state.constData()); });
        measure("destroying the tree", [&] { view.reset(); });
    }

private:
    template<typename Function>
    void measure(const char *what, Function function)
    {
        const std::clock_t start = std::clock();
        function();
        QCoreApplication::processEvents();
        const double milliseconds =
            static_cast<double>(std::clock() - start) * 1000 / CLOCKS_PER_SEC;
        QTextStream(stdout) << QStringLiteral("  %1 %2 ms %3 us/feature\n")
                                   .arg(QLatin1String(what), -34)
                                   .arg(milliseconds, 9, 'f', 1)
                                   .arg(milliseconds * 1000 / m_features, 8, 'f', 2);
    }

    /// Spread over all of the tree, in a row: the tree is repainted only after the last.
    void notify()
    {
        const std::vector<OrvGenApi::MemoryInteger *> &integers = m_map.integers();
        for (std::size_t i = 0; i < notificationCount; ++i) {
            OrvGenApi::MemoryInteger &integer = *integers[i * integers.size() / notificationCount];
            integer.change(integer.GetValue() + 1);
        }
    }

    void writeSelector()
    {
        OrvGenApi::MemoryInteger &selector = m_map.selector();
        selector.SetValue(selector.GetValue() + 1);
    }

    const int m_features;
    LargeNodeMap m_map;
    QByteArray m_state;
};

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({{"categories", "How many categories there are.", "count", "100"},
                       {"width", "How many features a category has.", "features", "0"}});
    parser.addPositionalArgument("features", "How many features there are.", "[features ...]");
    parser.process(application);

    QList<int> sizes;
    for (const QString &argument : parser.positionalArguments())
        sizes << argument.toInt();
    if (sizes.isEmpty())
        sizes << 5000 << 20000 << 100000;
    const int width = parser.value("width").toInt();
    for (const int size : sizes) {
        const int categories = width > 0 ? size / width : parser.value("categories").toInt();
        if (size < 4 * notificationCount || categories < 1) {
            QTextStream(stderr) << "blocked-time: at least " << 4 * notificationCount
                                << " features in a category are needed\n";
            return 2;
        }
        Benchmark(size, categories).run();
    }
    return 0;
}
