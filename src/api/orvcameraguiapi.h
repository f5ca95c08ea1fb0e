/* SPDX-License-Identifier: MIT */
#pragma once

/*
 * The C functions of libOrvCameraGuiApi: ready-made windows for programs in any language.
 *
 * Each function that shows a window creates a Qt application when the process has none. The
 * application of a Qt host must be a QApplication. Call these functions on one thread, that of the
 * application. The functions for settings files need no application; call them on any thread.
 *
 * Only SelectCamera runs an event loop. A host without Qt must dispatch Qt's events; otherwise
 * windows are not painted and get no input. On Linux Qt uses the default GLib main context, so it
 * is enough to run that context, for instance with g_main_context_iteration(NULL, FALSE) from the
 * host's own loop, or to call OrvCameraGuiApi_ProcessEvents. examples/c-host is an example.
 *
 * Functions whose name ends in A take UTF-8 texts, those that end in W take 32-bit wide characters.
 * Both are zero-terminated. Parent windows are native window ids (on X11 a Window), 0 for none.
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
 * Opens an editable tree of all features of a node map or parameter array. A null source gives an
 * empty tree. Never returns null; only running out of memory throws (std::bad_alloc). The title may
 * be null.
 *
 * With a parent the tree fills that window and is resized with it. The window must exist on the
 * default display until the tree is destroyed. Without a parent the tree is a top-level window. On
 * a platform without foreign windows (Wayland) it is always one, and Qt's message handler gets a
 * warning if there is a parent.
 *
 * The caller owns the tree and destroys it with DestroyGenParamTreeView. The node map, and the
 * array that it comes from, must live until then, or until the tree is given other parameters or
 * none; see IOrvGenParamTreeView.
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

/* Null is ignored. Do not call this from inside a callback of a node that the tree shows. */
ORVCAMERAGUIAPI_EXPORT void DestroyGenParamTreeView(OrvGuiParamTreeView *view);

/*
 * Returns the expanded categories, the width of the name column and the visibility level as one
 * UTF-8 text for LoadGenParamTreeViewState; empty when nothing is shown. The pointer is valid until
 * the next call of either function for this tree, or until the tree is destroyed. Returns null for
 * a null tree.
 */
ORVCAMERAGUIAPI_EXPORT const char *SaveGenParamTreeViewState(OrvGuiParamTreeView *view);

/*
 * Restores the state of a tree with the same features. Returns 1 on success. Returns 0 for null and
 * for a text with invalid numbers; the expansion may have been restored by then.
 */
ORVCAMERAGUIAPI_EXPORT int LoadGenParamTreeViewState(OrvGuiParamTreeView *view, const char *state);

/*
 * The visibility level: 0 basic, 1 expert, 2 guru. Setting any other number has no effect. Returns
 * 0 for a null tree.
 */
ORVCAMERAGUIAPI_EXPORT int GetGenParamTreeViewVisibility(OrvGuiParamTreeView *view);
ORVCAMERAGUIAPI_EXPORT void SetGenParamTreeViewVisibility(OrvGuiParamTreeView *view,
                                                          int visibility);

/*
 * Opens a feature browser: the tree with a search, favourites, marks on changed and refused
 * features, and a table of the features that a selector selects. Parameters, parent and lifetimes
 * are those of a tree.
 *
 * The caller owns the browser and destroys it with DestroyFeatureBrowser.
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

/* Null is ignored. Do not call this from inside a callback of a node that the browser shows. */
ORVCAMERAGUIAPI_EXPORT void DestroyFeatureBrowser(OrvGuiFeatureBrowser *browser);

/*
 * Returns the expanded categories, the width of the name column, the visibility level, the
 * favourites of each camera model and the options of the search as one UTF-8 text for
 * LoadFeatureBrowserState. The pointer is valid until the next call of either function for this
 * browser, or until the browser is destroyed. Returns null for a null browser.
 */
ORVCAMERAGUIAPI_EXPORT const char *SaveFeatureBrowserState(OrvGuiFeatureBrowser *browser);

/*
 * Restores the state that SaveFeatureBrowserState, or a tree, returned. Returns 1 on success. Any
 * other text changes nothing and returns 0.
 */
ORVCAMERAGUIAPI_EXPORT int LoadFeatureBrowserState(OrvGuiFeatureBrowser *browser,
                                                   const char *state);

/* The same as for a tree. */
ORVCAMERAGUIAPI_EXPORT int GetFeatureBrowserVisibility(OrvGuiFeatureBrowser *browser);
ORVCAMERAGUIAPI_EXPORT void SetFeatureBrowserVisibility(OrvGuiFeatureBrowser *browser,
                                                        int visibility);

/*
 * Opens the configuration window of a camera, a top-level window that stays open. A null device
 * gives a window without a camera. The user can connect another camera in the window, which opens
 * and closes that camera itself.
 *
 * The caller owns the window and destroys it with DestroyCamConfig, before the device is released.
 * Returns null only when memory runs out.
 */
ORVCAMERAGUIAPI_EXPORT OrvGuiCamConfig *CreateCamConfig(OrvCamDevice *device);

/* Null is ignored. Do not call this from inside a callback of a parameter. */
ORVCAMERAGUIAPI_EXPORT void DestroyCamConfig(OrvGuiCamConfig *window);

/*
 * Runs Qt's events, which include those of the default GLib main context, for hosts without an
 * event loop. Returns after the given number of milliseconds, or after the pending events when it
 * is 0. Creates the application when there is none. Returns the number of open windows; when the
 * user closes the last one the function returns 0 at once. So
 *
 *     while (OrvCameraGuiApi_ProcessEvents(100) > 0)
 *         ;
 *
 * runs until all windows are closed. Closed windows must still be destroyed.
 */
ORVCAMERAGUIAPI_EXPORT int OrvCameraGuiApi_ProcessEvents(int durationMs);

/*
 * Sets the language of windows that are opened from now on: "de", "ja", "en", also with a country
 * ("de_AT"); null for the language of the locale. Creates the application when there is none.
 * Returns 1, or 0 without an effect when there is no translation. Without a call, windows are
 * English in a host that installs no translator. Texts of a camera are not translated.
 */
ORVCAMERAGUIAPI_EXPORT int OrvCameraGuiApi_SetLanguage(const char *language);

/*
 * Runs a dialog of that title in which the user picks one of the system's cameras. Returns the
 * record of the camera, which is not open yet, or null when the user cancels. The dialog can also
 * give a GigE Vision camera a working address. A null system has no cameras. The title may be null.
 *
 * With a parent the dialog stays above that window, which must exist on the default display. The
 * host disables its own windows while the dialog is open, if it wants that. On a platform without
 * foreign windows (Wayland) the parent is ignored, and Qt's message handler gets a warning.
 *
 * The record belongs to the system, must not be released, and stays valid as long as the system.
 */
ORVCAMERAGUIAPI_EXPORT OrvCamDeviceInfo *SelectCameraA(OrvCamSystem *system, const char *title,
                                                       unsigned long parent);
ORVCAMERAGUIAPI_EXPORT OrvCamDeviceInfo *SelectCameraW(OrvCamSystem *system, const wchar_t *title,
                                                       unsigned long parent);

/*
 * Each of these functions shows a dialog for a device and destroys it before it returns. It does
 * not block beyond that, opens no further window, and leaves no window and no registration at the
 * device. For a dialog that stays open, use its C++ class.
 *
 * A null device gives a disabled dialog. The caller keeps ownership of the device. The parent is
 * the native id of a Qt widget of this process, which becomes the parent of the dialog; any other
 * id counts as none.
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
 * Settings files are texts in the format of GenApi's feature persistence. They contain all features
 * that the camera's description marks as streamable, for each value of their selectors.
 *
 * These functions create no application, need no display, and may be called on any thread. They
 * block while they access the camera. Do not write to the camera from another place during a call.
 * Selectors that a call moves are restored. File names are UTF-8.
 *
 * All return an OrvSettingsResult. `report`, which may be null, receives a zero-terminated UTF-8
 * text of at most `reportSize` bytes, including the zero. It has one line per problem ("feature:
 * reason") or difference ("feature", the value in the first file, the value in the camera or in the
 * second file, separated by tabs). After a failure a line gives the reason. The text is empty when
 * there is nothing to report.
 */
enum OrvSettingsResult {
    OrvSettings_Done = 0,
    OrvSettings_Partly = 1,    /* a value was refused, is missing, or differs */
    OrvSettings_Failed = 2,    /* the operation was not done, or not completed */
    OrvSettings_OtherModel = 3 /* the file is of another model; nothing was written */
};

/* Replaces the file as a whole, or not at all. Values that cannot be read are left out. */
ORVCAMERAGUIAPI_EXPORT int SaveCameraSettings(OrvGenApiNodeMap *nodeMap, const char *fileName,
                                              char *report, size_t reportSize);

/*
 * Writes the values in the order of the file. Refused values are written again as long as the
 * camera accepts further ones. A file of another model is loaded only when `anyModel` is not 0.
 */
ORVCAMERAGUIAPI_EXPORT int LoadCameraSettings(OrvGenApiNodeMap *nodeMap, const char *fileName,
                                              int anyModel, char *report, size_t reportSize);

/*
 * Compares a file with a camera or, when `nodeMap` is null, with a second file. The unused one of
 * the two may be null.
 */
ORVCAMERAGUIAPI_EXPORT int CompareCameraSettings(const char *fileName, OrvGenApiNodeMap *nodeMap,
                                                 const char *secondFile, char *report,
                                                 size_t reportSize);

#ifdef __cplusplus
}
#endif
