/* SPDX-License-Identifier: MIT */
/* A C program without Qt that finds, opens and closes simulated cameras. */
#include <orvgenparamapi.h>

#include <math.h>
#include <stdio.h>
#include <string.h>

static int failures = 0;

#define CHECK(condition)                                                                           \
    do {                                                                                           \
        if (!(condition)) {                                                                        \
            fprintf(stderr, "%s:%d: not so: %s\n", __FILE__, __LINE__, #condition);                \
            ++failures;                                                                            \
        }                                                                                          \
    } while (0)

static OrvCamDeviceInfo *find(OrvCamSystem *system, int32_t accessState)
{
    uint32_t i;
    for (i = 0; i < OrvCam_GetDeviceCount(system); ++i) {
        OrvCamDeviceInfo *info = OrvCam_GetDeviceInfo(system, i);
        if (OrvCam_GetAccessState(info) == accessState)
            return info;
    }
    return NULL;
}

static void search(OrvCamSystem *system)
{
    uint32_t i;
    uint32_t nameless = 0;
    CHECK(OrvCam_GetDeviceCount(system) == 0);
    CHECK(OrvCam_RefreshDevices(system, 200) == OrvCam_Success);
    CHECK(OrvCam_GetDeviceCount(system) >= 7);

    for (i = 0; i < OrvCam_GetDeviceCount(system); ++i) {
        const OrvCamDeviceInfo *info = OrvCam_GetDeviceInfo(system, i);
        CHECK(info == OrvCam_GetDeviceInfo(system, i));
        CHECK(strlen(OrvCam_GetDisplayName(info)) > 0);
        CHECK(strlen(OrvCam_GetId(info)) > 0);
        CHECK(strncmp(OrvCam_GetInterfaceDescription(info), "Simulated", 9) == 0);
        nameless += !OrvCam_GetModel(info) && !OrvCam_GetUserName(info);
    }
    CHECK(nameless == 1);
    CHECK(strcmp(OrvCam_GetUserName(OrvCam_GetDeviceInfo(system, 1)), "Inspection") == 0);
    CHECK(strcmp(OrvCam_GetSerial(OrvCam_GetDeviceInfo(system, 1)), "SIM-0002") == 0);
    CHECK(!OrvCam_GetDeviceInfo(system, i));
    CHECK(!OrvCam_GetDeviceInfo(system, UINT32_MAX));
}

static void openAndClose(OrvCamSystem *system)
{
    int32_t error = OrvCam_ErrorFailed;
    OrvCamDeviceInfo *info = find(system, OrvCam_AccessReadWrite);
    OrvCamDevice *device = OrvCam_CreateDevice(info, &error, OrvCam_AccessControl);
    OrvGenParamArray *array;
    CHECK(device && error == OrvCam_Success);
    CHECK(!OrvCam_CreateDevice(info, &error, OrvCam_AccessControl));
    CHECK(error == OrvCam_ErrorBusy);
    CHECK(!OrvCam_CreateDevice(info, &error, 7) && error == OrvCam_ErrorInvalidArgument);

    array = OrvCam_GetParamArray(device, &error);
    CHECK(array && error == OrvCam_Success);
    CHECK(OrvGenParam_GetNodeMap(array, &error) && error == OrvCam_Success);

    /* A new enumeration keeps the record and updates its access state. */
    CHECK(OrvCam_RefreshDevices(system, 200) == OrvCam_Success);
    CHECK(OrvCam_GetAccessState(info) == OrvCam_AccessNone);
    OrvCam_ReleaseDevice(device);
    CHECK(OrvCam_RefreshDevices(system, 200) == OrvCam_Success);
    CHECK(find(system, OrvCam_AccessReadWrite) == info);
}

static void testValues(OrvGenApiNodeMap *map)
{
    char text[64];
    size_t length = 0;
    int64_t integers[3];
    double floats[3];
    int32_t number = 0;
    OrvGenApiNode *width = OrvGenParam_FindNode(map, "Width");
    OrvGenApiNode *delay = OrvGenParam_FindNode(map, "TriggerDelay");
    OrvGenApiNode *mode = OrvGenParam_FindNode(map, "TriggerMode");
    OrvGenApiNode *reverse = OrvGenParam_FindNode(map, "ReverseX");
    OrvGenApiNode *user = OrvGenParam_FindNode(map, "DeviceUserDefinedName");
    OrvGenApiNode *model = OrvGenParam_FindNode(map, "DeviceModelName");
    OrvGenApiNode *start = OrvGenParam_FindNode(map, "TriggerSoftware");

    CHECK(OrvGenParam_GetKind(width) == OrvGenParam_KindInteger);
    CHECK(OrvGenParam_GetIntegerLimits(width, &integers[0], &integers[1], &integers[2]) == 0);
    CHECK(OrvGenParam_SetInteger(width, integers[0] + integers[2]) == OrvCam_Success);
    CHECK(OrvGenParam_GetInteger(width, &integers[2]) == 0 && integers[2] > integers[0]);
    CHECK(OrvGenParam_SetInteger(width, integers[1] + 1) == OrvCam_ErrorOutOfRange);
    CHECK(strstr(OrvCam_GetLastErrorMessage(), "Width"));

    CHECK(OrvGenParam_SetFloat(delay, 5000) == OrvCam_Success);
    CHECK(OrvGenParam_GetFloat(delay, &floats[0]) == 0 && fabs(floats[0] - 5000) < 50);
    CHECK(OrvGenParam_GetFloatLimits(delay, &floats[0], &floats[1], NULL) == 0);
    CHECK(floats[0] < 5000 && floats[1] > 5000);
    CHECK(OrvGenParam_SetFloat(delay, NAN) == OrvCam_ErrorOutOfRange);
    CHECK(OrvGenParam_GetUnit(delay, text, sizeof text, &length) == 0 && length == 2);
    CHECK(OrvGenParam_GetInteger(delay, &integers[0]) == OrvCam_ErrorNotFound);
    CHECK(integers[0] == 0);

    CHECK(OrvGenParam_SetSymbolic(mode, "On") == OrvCam_Success);
    CHECK(OrvGenParam_GetSymbolic(mode, text, sizeof text, &length) == 0);
    CHECK(strcmp(text, "On") == 0 && length == 2);
    CHECK(OrvGenParam_SetSymbolic(mode, "%s%n") != OrvCam_Success);
    CHECK(OrvGenParam_SetValueText(mode, "Off") == OrvCam_Success);
    CHECK(OrvGenParam_GetInteger(mode, &integers[0]) == OrvCam_Success && integers[0] == 0);

    CHECK(OrvGenParam_SetBoolean(reverse, 7) == OrvCam_Success);
    CHECK(OrvGenParam_GetBoolean(reverse, &number) == OrvCam_Success && number == 1);

    /* A truncated text contains no partial characters. */
    CHECK(OrvGenParam_SetString(user, "a\xC3\xA9z") == OrvCam_Success);
    CHECK(OrvGenParam_GetString(user, NULL, 0, &length) == OrvCam_Success && length == 4);
    CHECK(OrvGenParam_GetString(user, text, 3, &length) == OrvCam_Success && length == 4);
    CHECK(strcmp(text, "a") == 0);
    CHECK(OrvGenParam_GetString(user, text, 1, NULL) == OrvCam_Success && !text[0]);
    CHECK(OrvGenParam_GetMaxLength(user, &integers[0]) == OrvCam_Success && integers[0] >= 4);
    CHECK(OrvGenParam_SetString(model, "x") == OrvCam_ErrorAccessDenied);
    CHECK(OrvGenParam_GetAccess(model, &number) == 0 && number == OrvGenParam_AccessReadOnly);

    CHECK(OrvGenParam_Execute(width) == OrvCam_ErrorNotFound);
    CHECK(OrvGenParam_Execute(start) == OrvCam_ErrorNotAvailable); /* the trigger is off */
    CHECK(OrvGenParam_IsDone(start, NULL) != OrvCam_ErrorInvalidArgument);
    CHECK(OrvGenParam_SetValueText(OrvGenParam_FindNode(map, "UserSetLoad"), "") != 0);
}

static void testLists(OrvGenApiNodeMap *map)
{
    OrvGenApiNode *nodes[8];
    char text[64];
    int32_t visibility = -1;
    OrvGenApiNode *root = OrvGenParam_FindNode(map, "Root");
    OrvGenApiNode *mode = OrvGenParam_FindNode(map, "TriggerMode");
    CHECK(OrvGenParam_GetKind(root) == OrvGenParam_KindCategory);
    CHECK(OrvGenParam_GetFeatures(map, NULL, 0) > 100);
    CHECK(OrvGenParam_GetFeatures(map, nodes, 1) > 100);
    CHECK(OrvGenParam_GetKind(nodes[0]) < OrvGenParam_KindCategory);
    CHECK(OrvGenParam_GetCategoryFeatures(root, nodes, 1) > 1);
    CHECK(OrvGenParam_GetKind(nodes[0]) == OrvGenParam_KindCategory);
    CHECK(OrvGenParam_GetCategoryFeatures(mode, nodes, 8) == 0);
    CHECK(OrvGenParam_GetVisibility(mode, &visibility) == 0 && visibility >= 0);

    CHECK(OrvGenParam_GetEntries(mode, nodes, 8) == 2);
    CHECK(OrvGenParam_GetKind(nodes[1]) == OrvGenParam_KindEntry);
    CHECK(OrvGenParam_GetSymbolic(nodes[1], text, sizeof text, NULL) == OrvCam_Success);
    CHECK(strcmp(text, "On") == 0);
    CHECK(OrvGenParam_GetDisplayName(nodes[1], text, sizeof text, NULL) == 0 && text[0]);
    CHECK(OrvGenParam_GetAccess(nodes[1], &visibility) == 0 && visibility > 1);
}

struct Seen
{
    OrvGenParamWatch *watch;
    int calls;
};

static void countOnce(OrvGenApiNode *node, void *userData)
{
    struct Seen *seen = userData;
    CHECK(OrvGenParam_GetKind(node) == OrvGenParam_KindFloat);
    ++seen->calls;
    OrvGenParam_Unwatch(seen->watch); /* in the callback */
    seen->watch = NULL;
}

static void countCall(OrvGenApiNode *node, void *userData)
{
    (void)node;
    ++((struct Seen *)userData)->calls;
}

static void testWatches(OrvGenApiNodeMap *map)
{
    int32_t error = OrvCam_ErrorFailed;
    struct Seen once = {NULL, 0};
    struct Seen all = {NULL, 0};
    OrvGenApiNode *delay = OrvGenParam_FindNode(map, "TriggerDelay");
    once.watch = OrvGenParam_Watch(delay, countOnce, &once, &error);
    all.watch = OrvGenParam_Watch(delay, countCall, &all, NULL);
    CHECK(once.watch && error == OrvCam_Success);
    CHECK(OrvGenParam_SetFloat(delay, 1000) == OrvCam_Success);
    CHECK(OrvGenParam_SetFloat(delay, 2000) == OrvCam_Success);
    OrvCam_ProcessEvents(0);
    CHECK(once.calls == 1 && all.calls >= 2);
    OrvGenParam_Unwatch(all.watch);
    all.calls = 0;
    CHECK(OrvGenParam_SetFloat(delay, 3000) == OrvCam_Success && all.calls == 0);
    CHECK(!OrvGenParam_Watch(delay, NULL, NULL, &error));
    CHECK(error == OrvCam_ErrorInvalidArgument);
}

static void parameters(OrvCamSystem *system)
{
    struct Seen seen = {NULL, 0};
    OrvCamDevice *device =
        OrvCam_CreateDevice(find(system, OrvCam_AccessReadWrite), NULL, OrvCam_AccessControl);
    OrvGenApiNodeMap *map = OrvGenParam_GetNodeMap(OrvCam_GetParamArray(device, NULL), NULL);
    testValues(map);
    testLists(map);
    testWatches(map);
    seen.watch = OrvGenParam_Watch(OrvGenParam_FindNode(map, "Width"), countCall, &seen, NULL);
    OrvCam_ReleaseDevice(device);
    OrvGenParam_Unwatch(seen.watch); /* valid after its node is destroyed */

    map = OrvGenParam_LoadDescription(ORV_DESCRIPTION, NULL, 0);
    CHECK(OrvGenParam_SetValueText(OrvGenParam_FindNode(map, "Height"), "no number") != 0);
    CHECK(OrvGenParam_GetFeatures(map, NULL, 0) > 100);
    OrvGenParam_ReleaseNodeMap(map);
}

static void noParameters(void)
{
    char text[4] = "abc";
    int64_t value = 1;
    int32_t code;
    size_t length = 1;
    OrvGenApiNode *node = OrvGenParam_FindNode(NULL, "Width");
    CHECK(!node && !OrvGenParam_FindNode(NULL, NULL));
    CHECK(OrvGenParam_GetKind(NULL) == -1);
    CHECK(OrvGenParam_GetFeatures(NULL, NULL, 0) == 0 &&
          OrvGenParam_GetEntries(NULL, NULL, 0) == 0);
    CHECK(OrvGenParam_GetName(NULL, text, sizeof text, &length) == OrvCam_ErrorInvalidArgument);
    CHECK(!text[0] && length == 0);
    CHECK(OrvGenParam_GetInteger(NULL, &value) == OrvCam_ErrorInvalidArgument && value == 0);
    CHECK(OrvGenParam_SetString(NULL, NULL) == OrvCam_ErrorInvalidArgument);
    CHECK(OrvGenParam_Execute(NULL) == OrvCam_ErrorInvalidArgument);
    OrvGenParam_Unwatch(NULL);
    for (code = OrvCam_Success; code >= OrvCam_ErrorBadDescription - 1; --code)
        CHECK(strlen(OrvCam_GetErrorText(code)) > 5);
}

static void descriptions(void)
{
    char reason[20] = "";
    OrvGenApiNodeMap *map = OrvGenParam_LoadDescription(ORV_DESCRIPTION, reason, sizeof reason);
    CHECK(map && !reason[0]);
    OrvGenParam_ReleaseNodeMap(map);
    CHECK(!OrvGenParam_LoadDescription("/no/such/folder/file.xml", reason, sizeof reason));
    CHECK(strcmp(reason, "/no/such/folder/fil") == 0); /* truncated */
    CHECK(!OrvGenParam_LoadDescription("/no/such/\xFF\xC3\xA4\xC3\xA4\xC3\xA4", reason, 16));
    CHECK(strcmp(reason, "/no/such/\xEF\xBF\xBD\xC3\xA4") == 0);
}

static void nullArguments(void)
{
    int32_t error = OrvCam_Success;
    CHECK(OrvCam_RefreshDevices(NULL, 200) == OrvCam_ErrorInvalidArgument);
    CHECK(OrvCam_GetDeviceCount(NULL) == 0);
    CHECK(!OrvCam_GetDeviceInfo(NULL, 0));
    CHECK(!OrvCam_GetDisplayName(NULL) && !OrvCam_GetInterfaceDescription(NULL));
    CHECK(OrvCam_GetAccessState(NULL) == OrvCam_AccessUnknown);
    CHECK(!OrvCam_CreateDevice(NULL, &error, OrvCam_AccessControl));
    CHECK(error == OrvCam_ErrorInvalidArgument);
    error = OrvCam_Success;
    CHECK(!OrvCam_GetParamArray(NULL, &error) && error == OrvCam_ErrorInvalidArgument);
    error = OrvCam_Success;
    CHECK(!OrvGenParam_GetNodeMap(NULL, &error) && error == OrvCam_ErrorInvalidArgument);
    CHECK(!OrvGenParam_GetNodeMap(OrvCam_GetParamArray(NULL, NULL), NULL));
    CHECK(!OrvGenParam_LoadDescription(NULL, NULL, 0));
    OrvGenParam_ReleaseNodeMap(NULL);
    OrvCam_ReleaseDevice(NULL);
    OrvCam_ReleaseSystem(NULL);
}

int main(void)
{
    OrvCamSystem *system = OrvCam_GetSystem();
    CHECK(system);
    search(system);
    openAndClose(system);
    parameters(system);
    noParameters();
    descriptions();
    nullArguments();
    OrvCam_ReleaseSystem(system);
    if (failures == 0)
        puts("all well");
    return failures > 0;
}
