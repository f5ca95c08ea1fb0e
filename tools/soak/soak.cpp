// SPDX-License-Identifier: MIT
// soak [SECONDS [SEED [WINDOW]]]
// Clicks and types at random into all windows, or into one of them, while the camera's values
// change and its connection is interrupted. Checks the resources of the process: heap, resident
// memory, open files. Exit status: 1 if they grow, 2 if the window does not exist or a window got
// no click. No display is needed: QT_QPA_PLATFORM=offscreen will do.
#include "soakcamera.h"
#include "usage.h"

#include <OrvCam.h>
#include <orvcameraapi.h>

#include <orvcamconfig.h>
#include <orvcamconfigcolordialog.h>
#include <orvcamconfigframeabdialog.h>
#include <orvcamconfigoutputdialog.h>
#include <orvcamconfigpulsedialog.h>
#include <orvcamconfigstrobedialog.h>
#include <orvcamconfigtriggerdialog.h>
#include <orvcameraselectordialog.h>
#include <orvgenparamtreeview.h>

#include <QElapsedTimer>
#include <QtTest>
#include <QtWidgets>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <memory>
#include <random>
#include <vector>

using namespace OrvGui;

namespace {

constexpr int stepsPerWindow = 40;
constexpr int warmUpRounds = 15;

/// One of the windows. A null device makes it give up the current one.
struct Window
{
    const char *name;
    std::function<QWidget *(OrvCam::Device *)> make;
    std::function<void(QWidget &, OrvCam::Device *)> setDevice;
    unsigned clicks = 0;
};

template<typename Config>
Window configWindow(const char *name)
{
    return {name, [](OrvCam::Device *device) { return new Config(device); },
            [](QWidget &window, OrvCam::Device *device) {
                static_cast<Config &>(window).SetDevice(device);
            }};
}

Window featureTree()
{
    return {"feature tree",
            [](OrvCam::Device *device) {
                auto *tree = new OrvGenParamTreeView;
                tree->setParams(device->GetParamArray());
                tree->setVisibility(Guru);
                return tree;
            },
            [](QWidget &tree, OrvCam::Device *device) {
                auto &view = static_cast<OrvGenParamTreeView &>(tree);
                const std::string state = view.saveState();
                view.setParams(device ? device->GetParamArray() : nullptr);
                view.loadState(state.c_str());
            }};
}

Window cameraPicker(OrvCam::System *system)
{
    return {"camera picker",
            [system](OrvCam::Device *) { return new OrvCameraSelectorDialog(system); },
            [](QWidget &, OrvCam::Device *) {}};
}

/// The window of that name, or all windows if the name is empty.
std::vector<Window> windows(OrvCam::System *system, const QString &name)
{
    std::vector<Window> all{featureTree(),
                            configWindow<OrvCamConfig>("main window"),
                            cameraPicker(system),
                            configWindow<OrvCamConfigTriggerDialog>("trigger"),
                            configWindow<OrvCamConfigPulseDialog>("pulse"),
                            configWindow<OrvCamConfigStrobeDialog>("strobe"),
                            configWindow<OrvCamConfigOutputDialog>("output"),
                            configWindow<OrvCamConfigColorDialog>("colour"),
                            configWindow<OrvCamConfigFrameABDialog>("frames")};
    const auto isAnother = [&](const Window &window) { return name != window.name; };
    if (!name.isEmpty())
        all.erase(std::remove_if(all.begin(), all.end(), isAnother), all.end());
    return all;
}

/// A user who clicks and types at random.
class Monkey : public QObject
{
public:
    explicit Monkey(unsigned seed) : m_random(seed)
    {
        // Modal dialogs and menus would block the test. A timer does not fire again before its slot
        // has returned, but closing a dialog may open the next one: hence the deferred call.
        connect(&m_popupTimer, &QTimer::timeout, this,
                [this] { QTimer::singleShot(0, this, [this] { leaveWhatStops(); }); });
        m_popupTimer.start(20);
    }

    std::mt19937 &random() { return m_random; }
    unsigned clicks() const { return m_clicks; }

    void doSomethingIn(QWidget &window)
    {
        if (QWidget *popup = QApplication::activePopupWidget())
            return leavePopup(*popup);
        if (!window.isVisible())
            window.show();
        const QList<QWidget *> widgets = window.findChildren<QWidget *>();
        QList<QWidget *> usable;
        for (QWidget *widget : widgets) {
            if (widget->isVisible() && widget->isEnabled() && takesInput(*widget))
                usable << widget;
        }
        if (usable.isEmpty())
            return;
        use(*usable[below(int(usable.size()))]);
        ++m_clicks;
    }

private:
    int below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }

    static bool takesInput(const QWidget &widget)
    {
        return widget.focusPolicy() != Qt::NoFocus || qobject_cast<const QMenuBar *>(&widget) ||
               qobject_cast<const QTabBar *>(&widget);
    }

    QPoint somewhereIn(const QWidget &widget)
    {
        return {below(qMax(1, widget.width())), below(qMax(1, widget.height()))};
    }

    void use(QWidget &widget)
    {
        static const Qt::Key keys[] = {Qt::Key_Up,   Qt::Key_Down,     Qt::Key_Left,  Qt::Key_Right,
                                       Qt::Key_Home, Qt::Key_End,      Qt::Key_Tab,   Qt::Key_Space,
                                       Qt::Key_F2,   Qt::Key_PageDown, Qt::Key_1,     Qt::Key_7,
                                       Qt::Key_Plus, Qt::Key_Return,   Qt::Key_Escape};
        const QPointer<QWidget> target(&widget);
        if (below(3) == 0) {
            widget.setFocus();
            for (int i = 0; i < 3 && target; ++i)
                QTest::keyClick(target, keys[below(static_cast<int>(std::size(keys)))]);
            return;
        }
        auto *area = qobject_cast<QAbstractScrollArea *>(&widget);
        QWidget *clicked = area ? area->viewport() : &widget;
        const QPoint point = somewhereIn(*clicked);
        if (below(4) == 0)
            QTest::mouseDClick(clicked, Qt::LeftButton, {}, point);
        else
            QTest::mouseClick(clicked, Qt::LeftButton, {}, point);
    }

    void leavePopup(QWidget &popup)
    {
        const QPointer<QWidget> open(&popup);
        if (below(2) == 0)
            QTest::mouseClick(&popup, Qt::LeftButton, {}, somewhereIn(popup));
        if (open)
            open->close();
    }

    void leaveWhatStops()
    {
        if (QWidget *popup = QApplication::activePopupWidget())
            return leavePopup(*popup);
        QWidget *dialog = QApplication::activeModalWidget();
        if (!dialog)
            return;
        const auto buttons = dialog->findChildren<QAbstractButton *>();
        const int chosen = below(int(buttons.size()) + 1);
        const QPointer<QWidget> open(dialog);
        if (chosen < buttons.size() && buttons[chosen]->isVisible())
            QTest::mouseClick(buttons[chosen], Qt::LeftButton);
        if (open)
            open->close();
    }

    std::mt19937 m_random;
    QTimer m_popupTimer;
    unsigned m_clicks = 0;
};

class Soak
{
public:
    Soak(std::vector<Window> windows, unsigned seed) : m_monkey(seed), m_windows(std::move(windows))
    {
    }

    /// Uses every window once, with the same camera.
    void round()
    {
        SoakCamera camera;
        const OrvCam::Released<OrvCam::Device> device(camera.open());
        for (Window &window : m_windows) {
            const unsigned before = clicks();
            visit(window, camera, *device);
            window.clicks += clicks() - before;
        }
    }

    unsigned clicks() const { return m_monkey.clicks(); }

    /// The first window that got no click; null if there is none.
    const char *untouched() const
    {
        for (const Window &window : m_windows) {
            if (window.clicks == 0)
                return window.name;
        }
        return nullptr;
    }

private:
    void visit(const Window &window, SoakCamera &camera, OrvCam::Device &device)
    {
        waitUntil([&] { return device.IsConnected(); });
        const std::unique_ptr<QWidget> widget(window.make(&device));
        widget->show();
        for (int step = 0; step < stepsPerWindow; ++step) {
            SoakCamera::changeSomething(device, m_monkey.random());
            if (step == stepsPerWindow / 2)
                replug(window, *widget, camera, device);
            m_monkey.doSomethingIn(*widget);
            QApplication::processEvents();
        }
        window.setDevice(*widget, nullptr);
        m_monkey.doSomethingIn(*widget);
    }

    void replug(const Window &window, QWidget &widget, SoakCamera &camera, OrvCam::Device &device)
    {
        camera.unplug();
        waitUntil([&] { return !device.IsConnected(); });
        for (int i = 0; i < 5; ++i) // the window may not have noticed the disconnection yet
            m_monkey.doSomethingIn(widget);
        camera.plugIn();
        waitUntil([&] { return device.IsConnected(); });
        window.setDevice(widget, &device);
    }

    template<typename Condition>
    static void waitUntil(Condition condition)
    {
        if (!QTest::qWaitFor(condition, 10000))
            qFatal("the camera did not come or go");
    }

    Monkey m_monkey;
    std::vector<Window> m_windows;
};

/// The usage without the caches.
Usage usageNow()
{
    QPixmapCache::clear();
    return Usage::now();
}

/// Prints a message, except the platform "offscreen"'s warnings of missing features.
void printMessage(QtMsgType, const QMessageLogContext &, const QString &text)
{
    if (!text.startsWith("This plugin does not support "))
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("ORVCAM_SIMULATION", "1");
    qInstallMessageHandler(printMessage);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QStringList arguments = QApplication::arguments();
    const int seconds = arguments.value(1, "60").toInt();
    const unsigned seed = arguments.value(2, "1").toUInt();

    OrvCam::Released<OrvCam::System> system(OrvCam_GetSystem());
    std::vector<Window> used = windows(system.get(), arguments.value(3));
    if (used.empty()) {
        std::printf("soak: there is no window '%s'\n", qPrintable(arguments.value(3)));
        return 2;
    }
    auto soak = std::make_unique<Soak>(std::move(used), seed);
    Usage before;
    Usage after;
    int rounds = -warmUpRounds; // Qt and Aravis make their permanent allocations in these
    QElapsedTimer clock;
    // Each round is an event of its own, so that deferred deletions happen between two rounds.
    QTimer next;
    QObject::connect(&next, &QTimer::timeout, [&] {
        if (rounds == 0) {
            before = usageNow();
            std::printf("soak: at the start %s\n", before.text().c_str());
            std::fflush(stdout);
            clock.start();
        } else if (rounds > 0 && clock.elapsed() >= seconds * 1000) {
            after = usageNow();
            std::printf("soak: after %d rounds and %u clicks %s\n", rounds, soak->clicks(),
                        after.text().c_str());
            QCoreApplication::exit();
            return;
        }
        soak->round();
        ++rounds;
    });
    next.start(0);
    QApplication::exec();
    const char *untouched = soak->untouched();
    soak.reset();
    system.reset();

    if (untouched) {
        std::printf("soak: nothing in the window '%s' takes a click\n", untouched);
        return 2;
    }
    const std::string growth = after.grownBeyond(before, rounds);
    if (growth.empty())
        return 0;
    std::printf("soak: too much growth: %s\n", growth.c_str());
    return 1;
}
