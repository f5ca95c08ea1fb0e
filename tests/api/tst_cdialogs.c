/* SPDX-License-Identifier: MIT */
/*
 * A host in C with a GLib main loop opens every dialog on a simulated camera. No function may
 * block, and notifications must still arrive afterwards.
 */
#include <orvcameraguiapi.h>
#include <orvgenparamapi.h>

#include <glib.h>
#include <stdio.h>

static int changesSeen;

static int fail(const char *what)
{
    fprintf(stderr, "tst_cdialogs: %s\n", what);
    return 1;
}

static void noteChange(OrvGenApiNode *node, void *userData)
{
    (void)node;
    (void)userData;
    ++changesSeen;
}

/* Watches a feature that the camera changes continuously. */
static OrvGenParamWatch *startWatching(OrvCamDevice *device)
{
    OrvGenApiNodeMap *map = OrvGenParam_GetNodeMap(OrvCam_GetParamArray(device, NULL), NULL);
    OrvGenParam_SetSymbolic(OrvGenParam_FindNode(map, "BalanceWhiteAuto"), "Continuous");
    return OrvGenParam_Watch(OrvGenParam_FindNode(map, "RedCoefficient"), noteChange, NULL, NULL);
}

static int showAll(OrvCamDevice *device)
{
    void (*const functions[])(OrvCamDevice *, unsigned long) = {
        ShowCamConfigDialog, ShowColorDialog,  ShowFrameABDialog, ShowOutputDialog,
        ShowPulseDialog,     ShowStrobeDialog, ShowTriggerDialog};
    for (unsigned int i = 0; i < sizeof functions / sizeof functions[0]; ++i) {
        const gint64 start = g_get_monotonic_time();
        functions[i](device, 0);
        if (g_get_monotonic_time() - start > 2000000)
            return fail("a dialog blocks");
    }
    return 0;
}

int main(void)
{
    OrvCamSystem *cameras = OrvCam_GetSystem();
    OrvCam_RefreshDevices(cameras, 0);
    OrvCamDevice *device =
        OrvCam_CreateDevice(OrvCam_GetDeviceInfo(cameras, 0), NULL, OrvCam_AccessControl);
    if (!device)
        return fail("the camera cannot be opened");
    OrvGenParamWatch *watch = startWatching(device);
    int result = showAll(device);
    changesSeen = 0;
    const gint64 end = g_get_monotonic_time() + 5000000;
    while (changesSeen < 3 && g_get_monotonic_time() < end) {
        g_main_context_iteration(NULL, FALSE);
        g_usleep(2000);
    }
    if (result == 0 && changesSeen < 3)
        result = fail("no parameter changes are seen any more");
    OrvGenParam_Unwatch(watch);
    OrvCam_ReleaseDevice(device);
    OrvCam_ReleaseSystem(cameras);
    return result;
}
