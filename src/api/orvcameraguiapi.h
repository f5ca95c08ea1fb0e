/* SPDX-License-Identifier: MIT */
#ifndef ORVCAMERAGUIAPI_H
#define ORVCAMERAGUIAPI_H

/*
 * The C functions of libOrvCameraGuiApi: ready-made windows for programs in any language.
 *
 * Each function that shows a window makes a Qt application when the process has none; a host that
 * has one of its own must have made a QApplication. All of them are called from one and the same
 * thread, that of the application. Those for settings files need none, and can be called on any.
 *
 * Nothing here but SelectCamera runs an event loop. A host that is not a Qt program has to let Qt's
 * events run, otherwise a window is neither painted nor heard: on Linux Qt waits on the default
 * GLib main context, so it is enough to run that, for instance with
 * g_main_context_iteration(NULL, FALSE) from the host's own loop, as examples/c-host shows, or to
 * call OrvCameraGuiApi_ProcessEvents.
 *
 * Texts come in two kinds: functions whose name ends in A take UTF-8, those that end in W take
 * 32-bit wide characters. Both end with a zero. Parent windows are native window ids (on X11 a
 * Window), 0 for none.
 */

#include "orvcameraguiapi_export.h"
#include "orvcameraguiapi_version.h"

#include <orvcameraapi.h>

#include <stddef.h>

#ifdef __cplusplus
#include "iorvgenparamtreeview.h"
namespace OrvGui {
class OrvCamConfig;
}
typedef OrvGui::OrvCamConfig OrvGuiCamConfig;
typedef OrvGui::IOrvGenParamTreeView OrvGuiParamTreeView;
typedef OrvGui::IOrvGenParamTreeView OrvGuiFeatureBrowser;
extern "C" {
#else
typedef struct OrvGuiCamConfig OrvGuiCamConfig;
typedef struct OrvGuiParamTreeView OrvGuiParamTreeView;
typedef struct OrvGuiFeatureBrowser OrvGuiFeatureBrowser;
#endif

/*
 * Opens a tree of all features of a node map or parameter array, in which the user reads and
 * changes them. A null source gives an empty tree. Never returns null; only running out of memory
 * throws (std::bad_alloc). The title may be null.
 *
 * With a parent the tree fills that window and is resized with it. The window must exist on the
 * default display, and until the tree is destroyed. Without one, the tree is a window of its own;
 * so it is, with a warning by Qt's message handler, on a platform without foreign windows
 * (Wayland).
 *
 * The caller owns the tree and ends it with DestroyGenParamTreeView. The node map, and the array
 * that it comes from, must live until then, or until the tree is given other parameters or none;
 * see IOrvGenParamTreeView.
 */
ORVCAMERAGUIAPI_EXPORT OrvGuiParamTreeView *
CreateGenParamTreeViewForNodemapA(OrvGenApiNodeMap *nodeMap, const char *title,
                                  unsigned long parent);
ORVCAMERAGUIAPI_EXPORT OrvGuiParamTreeView *
CreateGenParamTreeViewForNodemapW(OrvGenApiNodeMap *nodeMap, const wchar_t *title,
                                  unsigned long parent);
ORVCAMERAGUIAPI_EXPORT OrvGuiParamTreeView *
CreateGenParamTreeViewForArrayA(OrvGenParamArray *array, const char *title, unsigned long parent);
ORVCAMERAGUIAPI_EXPORT OrvGuiParamTreeView *CreateGenParamTreeViewForArrayW(OrvGenParamArray *array,
                                                                            const wchar_t *title,
                                                                            unsigned long parent);

/* Null is ignored. Not from inside a callback of a node that the tree shows. */
ORVCAMERAGUIAPI_EXPORT void DestroyGenParamTreeView(OrvGuiParamTreeView *view);

/*
 * Which categories are expanded, the width of the name column and the level of a tree, as one UTF-8
 * text for LoadGenParamTreeViewState; empty when nothing is shown. The pointer stays valid until
 * the next call of either function for this tree, or its end. Null for no tree.
 */
ORVCAMERAGUIAPI_EXPORT const char *SaveGenParamTreeViewState(OrvGuiParamTreeView *view);

/*
 * Restores what was saved of a tree with the same features: 1. Null, and a text with numbers that
 * cannot be: 0; the expansion may be changed by then.
 */
ORVCAMERAGUIAPI_EXPORT int LoadGenParamTreeViewState(OrvGuiParamTreeView *view, const char *state);

/*
 * The level of the features that are shown: 0 basic, 1 expert, 2 guru. Setting any other number
 * does nothing. 0 for no tree.
 */
ORVCAMERAGUIAPI_EXPORT int GetGenParamTreeViewVisibility(OrvGuiParamTreeView *view);
ORVCAMERAGUIAPI_EXPORT void SetGenParamTreeViewVisibility(OrvGuiParamTreeView *view,
                                                          int visibility);

/*
 * Opens a browser of the features: the tree, with a search, favourites, marks on what was changed
 * or refused, and a table of what a selector selects. All else is as with a tree.
 *
 * The caller owns the browser and ends it with DestroyFeatureBrowser.
 */
ORVCAMERAGUIAPI_EXPORT OrvGuiFeatureBrowser *
CreateFeatureBrowserForNodemapA(OrvGenApiNodeMap *nodeMap, const char *title, unsigned long parent);
ORVCAMERAGUIAPI_EXPORT OrvGuiFeatureBrowser *
CreateFeatureBrowserForNodemapW(OrvGenApiNodeMap *nodeMap, const wchar_t *title,
                                unsigned long parent);
ORVCAMERAGUIAPI_EXPORT OrvGuiFeatureBrowser *
CreateFeatureBrowserForArrayA(OrvGenParamArray *array, const char *title, unsigned long parent);
ORVCAMERAGUIAPI_EXPORT OrvGuiFeatureBrowser *
CreateFeatureBrowserForArrayW(OrvGenParamArray *array, const wchar_t *title, unsigned long parent);

/* Null is ignored. Not from inside a callback of a node that the browser shows. */
ORVCAMERAGUIAPI_EXPORT void DestroyFeatureBrowser(OrvGuiFeatureBrowser *browser);

/*
 * What is unfolded, the width of the names, the level, the favourites of each camera model and the
 * options of the search, as one UTF-8 text for LoadFeatureBrowserState. The pointer stays valid
 * until the next call of either function for this browser, or its end. Null for no browser.
 */
ORVCAMERAGUIAPI_EXPORT const char *SaveFeatureBrowserState(OrvGuiFeatureBrowser *browser);

/*
 * Restores what SaveFeatureBrowserState, or a tree, has saved: 1. Any other text changes nothing:
 * 0.
 */
ORVCAMERAGUIAPI_EXPORT int LoadFeatureBrowserState(OrvGuiFeatureBrowser *browser,
                                                   const char *state);

/* As those of a tree. */
ORVCAMERAGUIAPI_EXPORT int GetFeatureBrowserVisibility(OrvGuiFeatureBrowser *browser);
ORVCAMERAGUIAPI_EXPORT void SetFeatureBrowserVisibility(OrvGuiFeatureBrowser *browser,
                                                        int visibility);

/*
 * Opens the configuration window of a camera, a window of its own that stays open. A null device
 * gives a window without a camera. The user can connect another camera in it, which the window
 * opens and closes by itself.
 *
 * The caller owns the window and ends it with DestroyCamConfig, before the device is released. Null
 * only when memory runs out.
 */
ORVCAMERAGUIAPI_EXPORT OrvGuiCamConfig *CreateCamConfig(OrvCamDevice *device);

/* Null is ignored. Not from inside a callback of a parameter. */
ORVCAMERAGUIAPI_EXPORT void DestroyCamConfig(OrvGuiCamConfig *window);

/*
 * Runs Qt's events, which are also those of the default GLib main context, for at most so many
 * milliseconds (0 for what is waiting to be run), for hosts without an event loop. Makes the
 * application when there is none. Returns how many windows are open; as soon as the user has closed
 * the last one it returns 0 without waiting any longer. So
 *
 *     while (OrvCameraGuiApi_ProcessEvents(100) > 0)
 *         ;
 *
 * runs until all windows are closed. A closed window has still to be destroyed.
 */
ORVCAMERAGUIAPI_EXPORT int OrvCameraGuiApi_ProcessEvents(int durationMs);

/*
 * Chooses the language of the windows that are opened from now on: "de", "ja", "en", also with a
 * country ("de_AT"); null for that of the locale. Makes the application when there is none. Returns
 * 1, or 0 for a language that there is no translation for, which changes nothing. Without a call,
 * windows of a host that installs no translator of its own are English. Texts of a camera are shown
 * as they are.
 */
ORVCAMERAGUIAPI_EXPORT int OrvCameraGuiApi_SetLanguage(const char *language);

/*
 * Lets the user pick one of the system's cameras, in a dialog of that title, and returns when he is
 * done: the camera, which is not opened yet, or null when he cancels. He can also give a GigE
 * Vision camera a working address there. A null system has no cameras. The title may be null.
 *
 * With a parent the dialog stands above that window, which must exist on the default display. It
 * is up to the host to keep its own windows from being used in the meantime. On a platform without
 * foreign windows (Wayland) the parent is ignored, with a warning by Qt's message handler.
 *
 * The camera belongs to the system; it is not to be released and stays valid as long as the system.
 */
ORVCAMERAGUIAPI_EXPORT OrvCamDeviceInfo *SelectCameraA(OrvCamSystem *system, const char *title,
                                                       unsigned long parent);
ORVCAMERAGUIAPI_EXPORT OrvCamDeviceInfo *SelectCameraW(OrvCamSystem *system, const wchar_t *title,
                                                       unsigned long parent);

/*
 * Each of these shows a dialog for a device and destroys it again before it returns. It blocks for
 * no longer than that, opens no further window, and leaves nothing behind: no window, and nothing
 * that is registered with the device. A dialog that is to stay open is made from its class in C++.
 *
 * A null device gives a disabled dialog. The device stays the caller's. The parent is the native id
 * of a Qt widget of this process, which the dialog then belongs to; any other id counts as none.
 *
 * ShowFrameABDialog shows the colour dialog, as ShowColorDialog does.
 */
ORVCAMERAGUIAPI_EXPORT void ShowCamConfigDialog(OrvCamDevice *device, unsigned long parent);
ORVCAMERAGUIAPI_EXPORT void ShowColorDialog(OrvCamDevice *device, unsigned long parent);
ORVCAMERAGUIAPI_EXPORT void ShowFrameABDialog(OrvCamDevice *device, unsigned long parent);
ORVCAMERAGUIAPI_EXPORT void ShowOutputDialog(OrvCamDevice *device, unsigned long parent);
ORVCAMERAGUIAPI_EXPORT void ShowPulseDialog(OrvCamDevice *device, unsigned long parent);
ORVCAMERAGUIAPI_EXPORT void ShowStrobeDialog(OrvCamDevice *device, unsigned long parent);
ORVCAMERAGUIAPI_EXPORT void ShowTriggerDialog(OrvCamDevice *device, unsigned long parent);

/*
 * Settings files: text as GenApi's feature persistence has it, with all features that the camera's
 * description calls streamable, for each position of their selectors.
 *
 * These make no application and need no display, and may be called on any thread. They wait for the
 * camera; while one runs, nothing else should write to it. Selectors that are moved are put back.
 * File names are UTF-8.
 *
 * They return an OrvSettingsResult. `report`, which may be null, gets a text of at most
 * `reportSize` bytes in UTF-8, with a zero at its end: one line for each problem ("feature:
 * reason") or difference ("feature", the value in the first file, the value in the camera or in the
 * second file, with tabs between them), after a failure a line that says why; empty without any.
 */
enum OrvSettingsResult {
    OrvSettings_Done = 0,
    OrvSettings_Partly = 1,    /* something was refused, is missing, or differs */
    OrvSettings_Failed = 2,    /* nothing, or not all, was done */
    OrvSettings_OtherModel = 3 /* the file is of another model, and nothing was written */
};

/* Replaces the file as a whole, or not at all. What the camera does not tell is left out. */
ORVCAMERAGUIAPI_EXPORT int SaveCameraSettings(OrvGenApiNodeMap *nodeMap, const char *fileName,
                                              char *report, size_t reportSize);

/*
 * Writes the values in the order of the file, and what the camera refuses again as long as it takes
 * anything more. A file of another model is loaded when `anyModel` is not 0.
 */
ORVCAMERAGUIAPI_EXPORT int LoadCameraSettings(OrvGenApiNodeMap *nodeMap, const char *fileName,
                                              int anyModel, char *report, size_t reportSize);

/* Compares a file with a camera, or, without one, with a second file; the other one may be null. */
ORVCAMERAGUIAPI_EXPORT int CompareCameraSettings(const char *fileName, OrvGenApiNodeMap *nodeMap,
                                                 const char *secondFile, char *report,
                                                 size_t reportSize);

#ifdef __cplusplus
}
#endif

#endif
