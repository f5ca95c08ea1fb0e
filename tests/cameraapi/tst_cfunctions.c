/* SPDX-License-Identifier: MIT */
/* A C program, without Qt, that finds, opens and closes simulated cameras. */
#include <orvcameraapi.h>

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

    array = OrvCam_GetParamArray(device, &error);
    CHECK(array && error == OrvCam_Success);
    CHECK(OrvGenParam_GetNodeMap(array, &error) && error == OrvCam_Success);

    /* Who looks again sees the same record in another state. */
    CHECK(OrvCam_RefreshDevices(system, 200) == OrvCam_Success);
    CHECK(OrvCam_GetAccessState(info) == OrvCam_AccessNone);
    OrvCam_ReleaseDevice(device);
    CHECK(OrvCam_RefreshDevices(system, 200) == OrvCam_Success);
    CHECK(find(system, OrvCam_AccessReadWrite) == info);
}

static void descriptions(void)
{
    char reason[20] = "";
    OrvGenApiNodeMap *map = OrvGenParam_LoadDescription(ORV_DESCRIPTION, reason, sizeof reason);
    CHECK(map && !reason[0]);
    OrvGenParam_ReleaseNodeMap(map);
    CHECK(!OrvGenParam_LoadDescription("/no/such/folder/file.xml", reason, sizeof reason));
    CHECK(strcmp(reason, "/no/such/folder/fil") == 0); /* cut */
}

static void nothing(void)
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
    descriptions();
    nothing();
    OrvCam_ReleaseSystem(system);
    if (failures == 0)
        puts("all well");
    return failures > 0;
}
