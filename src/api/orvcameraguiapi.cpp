// SPDX-License-Identifier: MIT
#include "api/orvcameraguiapi.h"

#include "api/applicationbootstrap.h"
#include "api/creategenparamtreeview.h"
#include "api/language.h"
#include "api/selectcamera.h"
#include "browser/orvfeaturebrowser.h"
#include "camconfig/orvcamconfigcolordialog.h"
#include "camconfig/orvcamconfigoutputdialog.h"
#include "camconfig/orvcamconfigpulsedialog.h"
#include "camconfig/orvcamconfigstrobedialog.h"
#include "camconfig/orvcamconfigtriggerdialog.h"
#include "camconfig/silentcamconfig.h"

#include <QApplication>
#include <QCursor>
#include <QEventLoop>
#include <QTimer>

#include <cstring>
#include <new>
#include <stdexcept>

namespace {

QString fromNarrow(const char *text)
{
    return QString::fromUtf8(text, text ? static_cast<int>(std::strlen(text)) : -1);
}

QString fromWide(const wchar_t *text)
{
    return text ? QString::fromWCharArray(text) : QString();
}

template<class Window>
void destroyWindow(Window *window)
{
    if (!window)
        return;
    delete window;
    // Without an event loop Qt does not send the request that closes the window. QCursor::pos()
    // waits for a reply of the window system, and sends all requests before.
    if (qApp)
        QCursor::pos();
}

bool isLevel(int visibility)
{
    return visibility >= OrvGui::Basic && visibility <= OrvGui::Guru;
}

int countOpenWindows()
{
    int count = 0;
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (const QWidget *widget : widgets) {
        if (widget->isVisible())
            ++count;
    }
    return count;
}

/// The dialog is destroyed on return.
template<class Dialog>
void showDialog(OrvCam::Device *device, unsigned long parent)
{
    OrvGui::ensureApplication();
    Dialog dialog(device, parent ? QWidget::find(parent) : nullptr);
    dialog.show();
}

} // namespace

OrvGuiParamTreeView *CreateGenParamTreeViewForNodemapA(OrvGenApiNodeMap *nodeMap, const char *title,
                                                       unsigned long parent)
{
    return OrvGui::CreateGenParamTreeView(nodeMap, fromNarrow(title), parent);
}

OrvGuiParamTreeView *CreateGenParamTreeViewForNodemapW(OrvGenApiNodeMap *nodeMap,
                                                       const wchar_t *title, unsigned long parent)
{
    return OrvGui::CreateGenParamTreeView(nodeMap, fromWide(title), parent);
}

OrvGuiParamTreeView *CreateGenParamTreeViewForArrayA(OrvGenParamArray *array, const char *title,
                                                     unsigned long parent)
{
    return OrvGui::CreateGenParamTreeView(array, fromNarrow(title), parent);
}

OrvGuiParamTreeView *CreateGenParamTreeViewForArrayW(OrvGenParamArray *array, const wchar_t *title,
                                                     unsigned long parent)
{
    return OrvGui::CreateGenParamTreeView(array, fromWide(title), parent);
}

void DestroyGenParamTreeView(OrvGuiParamTreeView *view)
{
    destroyWindow(view);
}

const char *SaveGenParamTreeViewState(OrvGuiParamTreeView *view)
{
    return view ? view->saveState() : nullptr;
}

int LoadGenParamTreeViewState(OrvGuiParamTreeView *view, const char *state)
{
    if (!view || !state)
        return 0;
    const OrvGui::Visibility before = view->visibility();
    try {
        view->loadState(state);
    } catch (const std::logic_error &) {
        return 0;
    }
    if (isLevel(view->visibility()))
        return 1;
    view->setVisibility(before);
    return 0;
}

int GetGenParamTreeViewVisibility(OrvGuiParamTreeView *view)
{
    return view ? view->visibility() : OrvGui::Basic;
}

void SetGenParamTreeViewVisibility(OrvGuiParamTreeView *view, int visibility)
{
    if (view && isLevel(visibility))
        view->setVisibility(OrvGui::Visibility(visibility));
}

OrvGuiFeatureBrowser *CreateFeatureBrowserForNodemapA(OrvGenApiNodeMap *nodeMap, const char *title,
                                                      unsigned long parent)
{
    return OrvGui::CreateFeatureBrowser(nodeMap, fromNarrow(title), parent);
}

OrvGuiFeatureBrowser *CreateFeatureBrowserForNodemapW(OrvGenApiNodeMap *nodeMap,
                                                      const wchar_t *title, unsigned long parent)
{
    return OrvGui::CreateFeatureBrowser(nodeMap, fromWide(title), parent);
}

OrvGuiFeatureBrowser *CreateFeatureBrowserForArrayA(OrvGenParamArray *array, const char *title,
                                                    unsigned long parent)
{
    return OrvGui::CreateFeatureBrowser(array, fromNarrow(title), parent);
}

OrvGuiFeatureBrowser *CreateFeatureBrowserForArrayW(OrvGenParamArray *array, const wchar_t *title,
                                                    unsigned long parent)
{
    return OrvGui::CreateFeatureBrowser(array, fromWide(title), parent);
}

void DestroyFeatureBrowser(OrvGuiFeatureBrowser *browser)
{
    destroyWindow(browser);
}

const char *SaveFeatureBrowserState(OrvGuiFeatureBrowser *browser)
{
    return browser ? browser->saveState() : nullptr;
}

int LoadFeatureBrowserState(OrvGuiFeatureBrowser *browser, const char *state)
{
    auto *widget = dynamic_cast<OrvGui::OrvFeatureBrowser *>(browser);
    return widget && widget->restoreState(state) ? 1 : 0;
}

int GetFeatureBrowserVisibility(OrvGuiFeatureBrowser *browser)
{
    return GetGenParamTreeViewVisibility(browser);
}

void SetFeatureBrowserVisibility(OrvGuiFeatureBrowser *browser, int visibility)
{
    SetGenParamTreeViewVisibility(browser, visibility);
}

OrvGuiCamConfig *CreateCamConfig(OrvCamDevice *device)
{
    try {
        OrvGui::ensureApplication();
        OrvGuiCamConfig *window = new OrvGui::SilentCamConfig(device);
        window->show();
        return window;
    } catch (const std::bad_alloc &) {
        return nullptr;
    }
}

void DestroyCamConfig(OrvGuiCamConfig *window)
{
    destroyWindow(window);
}

int OrvCameraGuiApi_ProcessEvents(int durationMs)
{
    OrvGui::ensureApplication();
    QEventLoop loop;
    QTimer::singleShot(qMax(durationMs, 0), &loop, &QEventLoop::quit);
    QTimer watch; // lastWindowClosed is emitted only while QApplication::exec() runs
    if (countOpenWindows() > 0) {
        QObject::connect(&watch, &QTimer::timeout, &loop, [&loop] {
            if (countOpenWindows() == 0)
                loop.quit();
        });
        watch.start(20);
    }
    loop.exec();
    return countOpenWindows();
}

int OrvCameraGuiApi_SetLanguage(const char *language)
{
    OrvGui::ensureApplication();
    return OrvGui::setLanguage(QString::fromUtf8(language)) ? 1 : 0;
}

OrvCamDeviceInfo *SelectCameraA(OrvCamSystem *system, const char *title, unsigned long parent)
{
    return OrvGui::SelectCamera(system, fromNarrow(title), parent);
}

OrvCamDeviceInfo *SelectCameraW(OrvCamSystem *system, const wchar_t *title, unsigned long parent)
{
    return OrvGui::SelectCamera(system, fromWide(title), parent);
}

void ShowCamConfigDialog(OrvCamDevice *device, unsigned long parent)
{
    showDialog<OrvGui::SilentCamConfig>(device, parent);
}

void ShowColorDialog(OrvCamDevice *device, unsigned long parent)
{
    showDialog<OrvGui::OrvCamConfigColorDialog>(device, parent);
}

void ShowFrameABDialog(OrvCamDevice *device, unsigned long parent)
{
    ShowColorDialog(device, parent); // documented behaviour, on which hosts depend
}

void ShowOutputDialog(OrvCamDevice *device, unsigned long parent)
{
    showDialog<OrvGui::OrvCamConfigOutputDialog>(device, parent);
}

void ShowPulseDialog(OrvCamDevice *device, unsigned long parent)
{
    showDialog<OrvGui::OrvCamConfigPulseDialog>(device, parent);
}

void ShowStrobeDialog(OrvCamDevice *device, unsigned long parent)
{
    showDialog<OrvGui::OrvCamConfigStrobeDialog>(device, parent);
}

void ShowTriggerDialog(OrvCamDevice *device, unsigned long parent)
{
    showDialog<OrvGui::OrvCamConfigTriggerDialog>(device, parent);
}

uint32_t OrvCameraGuiApi_GetVersion()
{
    return ORVCAMERAGUIAPI_VERSION;
}

const char *OrvCameraGuiApi_GetVersionText()
{
    return ORVCAMERAGUIAPI_VERSION_TEXT;
}
