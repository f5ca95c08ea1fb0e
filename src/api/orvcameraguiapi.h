/* SPDX-License-Identifier: MIT */
#ifndef ORVCAMERAGUIAPI_H
#define ORVCAMERAGUIAPI_H

/*
 * The C functions of libOrvCameraGuiApi: ready-made windows for programs in any language.
 *
 * Each function creates a Qt application when the process has none. The application of a Qt host
 * must be a QApplication. Call all functions on one thread, that of the application.
 *
 * Only SelectCamera runs an event loop. A host without Qt must dispatch Qt's events; otherwise
 * windows are not painted and get no input. On Linux Qt uses the default GLib main context, so it
 * is enough to run that context, for instance with g_main_context_iteration(NULL, FALSE) from the
 * host's own loop. examples/c-host is an example.
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
typedef OrvGui::IOrvGenParamTreeView OrvGuiParamTreeView;
extern "C" {
#else
typedef struct OrvGuiParamTreeView OrvGuiParamTreeView;
#endif

/*
 * Opens an editable tree of all features of a node map or parameter array. A null source gives an
 * empty tree. Never returns null; only running out of memory throws (std::bad_alloc). The title may
 * be null.
 *
 * With a parent the tree fills that window and is resized with it. The window must exist on the
 * default display until the tree is destroyed. Without a parent the tree is a top-level window.
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

/* Null is ignored. Must not be called from inside a callback of a node that the tree shows. */
ORVCAMERAGUIAPI_EXPORT void DestroyGenParamTreeView(OrvGuiParamTreeView *view);

/*
 * Runs a dialog of that title in which the user picks one of the system's cameras. Returns the
 * record of the camera, which is not open yet, or null when the user cancels. The dialog can also
 * give a GigE Vision camera a working address. A null system has no cameras. The title may be null.
 *
 * With a parent the dialog stays above that window, which must exist on the default display. The
 * host disables its own windows while the dialog is open, if it wants that.
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

#ifdef __cplusplus
}
#endif

#endif
