/* SPDX-License-Identifier: MIT */
/*
 * A host in C that opens every dialog there is a function for, and then goes on to watch its
 * camera. Nobody sits at the screen: the picker is closed as a window manager does it. Runs on
 * simulated cameras; exit status 0 when all went well.
 */
#include "watching.h"

#include <orvcameraguiapi.h>

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <glib.h>
#include <stdio.h>
#include <string.h>

static Display *display;
static int pickersClosed;

static int ignoreError(Display *d, XErrorEvent *event)
{
    (void)d;
    (void)event; /* of a window that has gone meanwhile */
    return 0;
}

/* How many windows on the screen have this title; the last of them in *found. */
static int countWindows(const char *title, Window *found)
{
    Window root = 0;
    Window parent = 0;
    Window *children = NULL;
    unsigned int count = 0;
    int result = 0;
    XQueryTree(display, DefaultRootWindow(display), &root, &parent, &children, &count);
    for (unsigned int i = 0; i < count; ++i) {
        char *name = NULL;
        XWindowAttributes attributes;
        if (XFetchName(display, children[i], &name) && name && strcmp(name, title) == 0 &&
            XGetWindowAttributes(display, children[i], &attributes) &&
            attributes.map_state == IsViewable) {
            *found = children[i];
            ++result;
        }
        if (name)
            XFree(name);
    }
    if (children)
        XFree(children);
    return result;
}

static gboolean closePicker(gpointer title)
{
    Window window = 0;
    if (countWindows(title, &window) == 0)
        return G_SOURCE_CONTINUE;
    XEvent event;
    memset(&event, 0, sizeof event);
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = XInternAtom(display, "WM_PROTOCOLS", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = (long)XInternAtom(display, "WM_DELETE_WINDOW", False);
    XSendEvent(display, window, False, NoEventMask, &event);
    XSync(display, False);
    ++pickersClosed;
    return G_SOURCE_REMOVE;
}

static int fail(const char *what)
{
    fprintf(stderr, "ninedialogs: %s\n", what);
    return 1;
}

static void letPass(unsigned int milliseconds)
{
    const gint64 end = g_get_monotonic_time() + 1000 * (gint64)milliseconds;
    while (g_get_monotonic_time() < end) {
        g_main_context_iteration(NULL, FALSE);
        g_usleep(2000);
    }
}

static int pick(OrvCamSystem *cameras)
{
    g_timeout_add(50, closePicker, "Pick one");
    if (SelectCameraA(cameras, "Pick one", 0) || pickersClosed != 1)
        return fail("SelectCameraA");
    g_timeout_add(50, closePicker, "Pick another");
    if (SelectCameraW(cameras, L"Pick another", 0) || pickersClosed != 2)
        return fail("SelectCameraW");
    return 0;
}

static int showAll(OrvCamDevice *device)
{
    void (*const functions[])(OrvCamDevice *, unsigned long) = {
        ShowCamConfigDialog, ShowColorDialog,  ShowFrameABDialog, ShowOutputDialog,
        ShowPulseDialog,     ShowStrobeDialog, ShowTriggerDialog};
    for (unsigned int i = 0; i < sizeof functions / sizeof functions[0]; ++i) {
        const gint64 start = g_get_monotonic_time();
        functions[i](device, 0);
        const gint64 milliseconds = (g_get_monotonic_time() - start) / 1000;
        printf("function %u returned after %d ms\n", i, (int)milliseconds);
        if (milliseconds > 2000)
            return fail("a dialog blocks");
    }
    letPass(100);
    Window window = 0;
    const char *const titles[] = {"CamConfig", "Color", "Frame A/B", "Trigger Control"};
    for (unsigned int i = 0; i < sizeof titles / sizeof titles[0]; ++i) {
        if (countWindows(titles[i], &window) != 0)
            return fail("a dialog is left on the screen");
    }
    return 0;
}

int main(void)
{
    display = XOpenDisplay(NULL);
    if (!display)
        return fail("no X display");
    XSetErrorHandler(ignoreError);

    OrvCamSystem *cameras = OrvCam_GetSystem();
    if (!cameras || pick(cameras) != 0)
        return 1;
    OrvCam_RefreshDevices(cameras, 0);
    OrvCamDevice *device =
        OrvCam_CreateDevice(OrvCam_GetDeviceInfo(cameras, 0), NULL, OrvCam_AccessControl);
    if (!device)
        return fail("the camera cannot be opened");

    /* What is watched before, meanwhile and afterwards, and changes by itself. */
    startWatching(device);
    int result = showAll(device);
    for (int waited = 0; changesSeen() < 3 && waited < 100; ++waited)
        letPass(50);
    if (result == 0 && changesSeen() < 3)
        result = fail("no parameter changes are seen any more");
    stopWatching();

    OrvCam_ReleaseDevice(device);
    OrvCam_ReleaseSystem(cameras);
    XCloseDisplay(display);
    return result;
}
