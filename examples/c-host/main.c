/* SPDX-License-Identifier: MIT */
/*
 * A program without Qt: it creates its windows with Xlib and shows the features of a camera in one
 * of them. README.md explains the steps.
 *
 *   c-host             the first camera that can be controlled
 *   c-host --simulate  a simulated one
 */
#include <orvcameraguiapi.h>

#include <X11/Xlib.h>
#include <glib-unix.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

enum { HEADER_HEIGHT = 40, MARGIN = 8, SEARCH_MS = 200 };

typedef struct
{
    Display *display;
    Window window; /* the program's own window, with a line of text at its top */
    Window panel;  /* a child window for the tree */
    GC gc;
    Atom deleteWindow;
    int closed;
} Host;

static Window createPanel(Host *host, unsigned int width, unsigned int height)
{
    const unsigned long background = WhitePixel(host->display, DefaultScreen(host->display));
    return XCreateSimpleWindow(host->display, host->window, MARGIN, HEADER_HEIGHT,
                               width - 2 * MARGIN, height - HEADER_HEIGHT - MARGIN, 0, 0,
                               background);
}

static int openWindow(Host *host)
{
    const unsigned int width = 640;
    const unsigned int height = 520;

    host->display = XOpenDisplay(NULL);
    if (!host->display)
        return 0;
    const int screen = DefaultScreen(host->display);
    host->window = XCreateSimpleWindow(host->display, RootWindow(host->display, screen), 0, 0,
                                       width, height, 0, 0, 0xd8e4f0);
    host->gc = XCreateGC(host->display, host->window, 0, NULL);
    host->deleteWindow = XInternAtom(host->display, "WM_DELETE_WINDOW", False);
    XStoreName(host->display, host->window, "C host");
    XSetWMProtocols(host->display, host->window, &host->deleteWindow, 1);
    XSelectInput(host->display, host->window, ExposureMask | StructureNotifyMask);

    host->panel = createPanel(host, width, height);
    XMapWindow(host->display, host->panel);
    XMapWindow(host->display, host->window);
    XSync(host->display, False); /* the panel must exist before another connection uses it */
    return 1;
}

static void layOut(Host *host, int width, int height)
{
    const int panelWidth = width - 2 * MARGIN;
    const int panelHeight = height - HEADER_HEIGHT - MARGIN;
    XResizeWindow(host->display, host->panel, (unsigned int)(panelWidth > 1 ? panelWidth : 1),
                  (unsigned int)(panelHeight > 1 ? panelHeight : 1));
}

static void drawHeader(Host *host)
{
    const char *text = "This part is drawn with Xlib. The tree below is resized with the window.";
    XDrawString(host->display, host->window, host->gc, MARGIN, HEADER_HEIGHT / 2 + 4, text,
                (int)strlen(text));
}

static void handleEvent(Host *host, const XEvent *event)
{
    switch (event->type) {
    case Expose:
        drawHeader(host);
        break;
    case ConfigureNotify:
        layOut(host, event->xconfigure.width, event->xconfigure.height);
        break;
    case ClientMessage:
        if (event->xclient.window == host->window &&
            (Atom)event->xclient.data.l[0] == host->deleteWindow)
            host->closed = 1;
        break;
    default:
        break;
    }
}

/* Only ends the wait; the loop reads the events. */
static gboolean wakeUp(gint fd, GIOCondition condition, gpointer data)
{
    (void)fd;
    (void)condition;
    (void)data;
    return G_SOURCE_CONTINUE;
}

static gboolean onSignal(gpointer data)
{
    ((Host *)data)->closed = 1;
    return G_SOURCE_CONTINUE;
}

/* The default GLib main context runs all of Qt, including the tree. */
static void run(Host *host)
{
    g_unix_fd_add(ConnectionNumber(host->display), G_IO_IN, wakeUp, NULL);
    g_unix_signal_add(SIGINT, onSignal, host);
    g_unix_signal_add(SIGTERM, onSignal, host);
    while (!host->closed) {
        while (XPending(host->display)) {
            XEvent event;
            XNextEvent(host->display, &event);
            handleEvent(host, &event);
        }
        g_main_context_iteration(NULL, TRUE);
    }
}

static OrvCamDevice *openCamera(OrvCamSystem *system)
{
    OrvCam_RefreshDevices(system, SEARCH_MS);
    for (uint32_t i = 0; i < OrvCam_GetDeviceCount(system); ++i) {
        OrvCamDeviceInfo *info = OrvCam_GetDeviceInfo(system, i);
        if (OrvCam_GetAccessState(info) != OrvCam_AccessReadWrite)
            continue;
        int32_t error = OrvCam_Success;
        OrvCamDevice *device = OrvCam_CreateDevice(info, &error, OrvCam_AccessControl);
        if (device)
            return device;
        fprintf(stderr, "c-host: %s: error %d\n", OrvCam_GetDisplayName(info), (int)error);
    }
    return NULL;
}

static void showCamera(Host *host, OrvCamDevice *camera)
{
    OrvGuiParamTreeView *tree = CreateGenParamTreeViewForArrayA(OrvCam_GetParamArray(camera, NULL),
                                                                "Features", host->panel);
    run(host);
    DestroyGenParamTreeView(tree); /* before the camera and the panel */
}

int main(int argc, char **argv)
{
    if (argc > 1 && strcmp(argv[1], "--simulate") == 0)
        setenv("ORVCAM_SIMULATION", "1", 1);
    setenv("QT_QPA_PLATFORM", "xcb", 1); /* Qt must use X as well, even in a Wayland session */

    Host host;
    memset(&host, 0, sizeof host);
    if (!openWindow(&host)) {
        fprintf(stderr, "c-host: no X display\n");
        return 1;
    }

    OrvCamSystem *system = OrvCam_GetSystem();
    OrvCamDevice *camera = openCamera(system);
    if (camera)
        showCamera(&host, camera);
    else
        fprintf(stderr, "c-host: no camera that can be controlled\n");

    OrvCam_ReleaseDevice(camera);
    OrvCam_ReleaseSystem(system);
    XCloseDisplay(host.display);
    return camera ? 0 : 1;
}
