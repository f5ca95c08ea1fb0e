/* SPDX-License-Identifier: MIT */
#pragma once

/*
 * The C functions for the parameters of a camera, or of a description without a camera.
 *
 *     OrvGenApiNodeMap *nodeMap = OrvGenParam_GetNodeMap(parameters, NULL);
 *     OrvGenApiNode *exposure = OrvGenParam_FindNode(nodeMap, "ExposureTime");
 *     double value;
 *     if (OrvGenParam_SetFloat(exposure, 5000) == OrvCam_Success &&
 *         OrvGenParam_GetFloat(exposure, &value) == OrvCam_Success)
 *         printf("%f\n", value);
 *
 * A parameter is a node. It belongs to its node map, must not be released, and stays valid as long
 * as the node map; that of a camera exists as long as the device. While the camera is unplugged
 * every function that accesses it returns OrvCam_ErrorGone.
 *
 * Functions that can fail return OrvCam_Success or an error of orvcameraapi.h. On failure they set
 * their results to 0 or "". The error is OrvCam_ErrorInvalidArgument for null in place of a node or
 * of a text to write, OrvCam_ErrorNotFound for a node of another kind. Results are stored through
 * the last arguments, any of which may be null. No function throws.
 *
 * Texts are UTF-8. A result is copied to `text`, which has room for `size` bytes. It is truncated
 * between characters if necessary, and always ends with a 0. Its full length in bytes, without the
 * 0, is stored in *length, so a truncated text has a length of `size` or more. To query the length
 * alone, pass null and 0.
 *
 * Lists of nodes are copied to `nodes`, which has room for `capacity` of them, or is null with a
 * capacity of 0. The result is the full number of nodes, which may exceed the capacity.
 *
 * Reading blocks for the camera when the value is not cached, writing always does. All functions
 * are thread-safe; they wait for calls of other threads on the same camera. Only watches are bound
 * to a thread.
 */

#include <orvcameraapi.h>

#ifdef __cplusplus
#include <GenApi/INode.h>
typedef GenApi::INode OrvGenApiNode;
extern "C" {
#else
typedef struct OrvGenApiNode OrvGenApiNode;
#endif

/* OrvGenParam_GetKind. The first six numbers are those of OrvGenParam::ParamType. */
enum {
    OrvGenParam_KindInteger = 0,
    OrvGenParam_KindFloat = 1,
    OrvGenParam_KindEnumeration = 2,
    OrvGenParam_KindBoolean = 3,
    OrvGenParam_KindCommand = 4,
    OrvGenParam_KindString = 5,
    OrvGenParam_KindCategory = 6,
    OrvGenParam_KindRegister = 7, /* as text: "0x" and two hexadecimal digits a byte */
    OrvGenParam_KindEntry = 8,    /* of an enumeration */
    OrvGenParam_KindOther = 9     /* without a value; treat further numbers likewise */
};

/* OrvGenParam_GetVisibility: the audience of a parameter. */
enum {
    OrvGenParam_VisibilityBasic = 0,
    OrvGenParam_VisibilityExpert = 1,
    OrvGenParam_VisibilityGuru = 2,
    OrvGenParam_VisibilityInvisible = 3
};

/* OrvGenParam_GetAccess: the present access; from 2 on the parameter is available. */
enum {
    OrvGenParam_AccessNotImplemented = 0,
    OrvGenParam_AccessNotAvailable = 1,
    OrvGenParam_AccessWriteOnly = 2,
    OrvGenParam_AccessReadOnly = 3,
    OrvGenParam_AccessReadWrite = 4
};

/* The meaning of an error code in English, also for an unknown one. A static text, never null. */
ORVCAMERAAPI_EXPORT const char *OrvCam_GetErrorText(int32_t error);

/*
 * The reason of the last failure of a function of this header on the calling thread, in English,
 * with the camera's reason and the relevant names; "" before the first. Valid until the next
 * function of this header fails on the same thread. Functions that succeed do not change it.
 */
ORVCAMERAAPI_EXPORT const char *OrvCam_GetLastErrorMessage(void);

/*
 * Runs the default GLib main context for that number of milliseconds, 0 for pending events only.
 * For programs that neither run the context nor the event loop of Qt. Changes by the camera are
 * noticed only while it runs. Call it on the thread that opened the camera.
 */
ORVCAMERAAPI_EXPORT void OrvCam_ProcessEvents(uint32_t durationMs);

/* The node of that name ("Name", "Std::Name" or "Cust::Name"), or null. "Root" is a category. */
ORVCAMERAAPI_EXPORT OrvGenApiNode *OrvGenParam_FindNode(OrvGenApiNodeMap *nodeMap,
                                                        const char *name);

/* All parameters that are in a category, in the order of the description; no categories. */
ORVCAMERAAPI_EXPORT size_t OrvGenParam_GetFeatures(OrvGenApiNodeMap *nodeMap, OrvGenApiNode **nodes,
                                                   size_t capacity);

/* The entries of a category, parameters and categories, in that order; none for another kind. */
ORVCAMERAAPI_EXPORT size_t OrvGenParam_GetCategoryFeatures(OrvGenApiNode *category,
                                                           OrvGenApiNode **nodes, size_t capacity);

/*
 * The entries of an enumeration, available or not, in the order of the description; none for
 * another kind. The symbolic name and number of an entry are read like those of an enumeration; its
 * access states whether it is available.
 */
ORVCAMERAAPI_EXPORT size_t OrvGenParam_GetEntries(OrvGenApiNode *enumeration, OrvGenApiNode **nodes,
                                                  size_t capacity);

/* -1 for null. */
ORVCAMERAAPI_EXPORT int32_t OrvGenParam_GetKind(const OrvGenApiNode *node);

/*
 * Texts of the description, which never change. Without a display name it is the name. The unit is
 * "" for a number without one, and for other kinds.
 */
ORVCAMERAAPI_EXPORT int32_t OrvGenParam_GetName(OrvGenApiNode *node, char *text, size_t size,
                                                size_t *length);
ORVCAMERAAPI_EXPORT int32_t OrvGenParam_GetDisplayName(OrvGenApiNode *node, char *text, size_t size,
                                                       size_t *length);
ORVCAMERAAPI_EXPORT int32_t OrvGenParam_GetToolTip(OrvGenApiNode *node, char *text, size_t size,
                                                   size_t *length);
ORVCAMERAAPI_EXPORT int32_t OrvGenParam_GetDescription(OrvGenApiNode *node, char *text, size_t size,
                                                       size_t *length);
ORVCAMERAAPI_EXPORT int32_t OrvGenParam_GetUnit(OrvGenApiNode *node, char *text, size_t size,
                                                size_t *length);
ORVCAMERAAPI_EXPORT int32_t OrvGenParam_GetVisibility(OrvGenApiNode *node, int32_t *visibility);

/* May read from the camera. OrvCam_ErrorGone, and not available, while it is unplugged. */
ORVCAMERAAPI_EXPORT int32_t OrvGenParam_GetAccess(OrvGenApiNode *node, int32_t *access);

/* Integers, and enumerations by the number of an entry; also the number of an entry itself. */
ORVCAMERAAPI_EXPORT int32_t OrvGenParam_GetInteger(OrvGenApiNode *node, int64_t *value);
ORVCAMERAAPI_EXPORT int32_t OrvGenParam_SetInteger(OrvGenApiNode *node, int64_t value);

/* A valid value is *min plus a multiple of *increment, up to *max. The increment is 1 or more. */
ORVCAMERAAPI_EXPORT int32_t OrvGenParam_GetIntegerLimits(OrvGenApiNode *node, int64_t *min,
                                                         int64_t *max, int64_t *increment);

/* In the unit of the parameter. */
ORVCAMERAAPI_EXPORT int32_t OrvGenParam_GetFloat(OrvGenApiNode *node, double *value);
ORVCAMERAAPI_EXPORT int32_t OrvGenParam_SetFloat(OrvGenApiNode *node, double value);

/* The increment is 0 when every value within the limits is valid. */
ORVCAMERAAPI_EXPORT int32_t OrvGenParam_GetFloatLimits(OrvGenApiNode *node, double *min,
                                                       double *max, double *increment);

/* 0 and 1; any other number counts as 1. */
ORVCAMERAAPI_EXPORT int32_t OrvGenParam_GetBoolean(OrvGenApiNode *node, int32_t *value);
ORVCAMERAAPI_EXPORT int32_t OrvGenParam_SetBoolean(OrvGenApiNode *node, int32_t value);

/*
 * An enumeration by the symbolic name of an entry; "" when the camera's value has no entry. Also
 * the name of an entry itself.
 */
ORVCAMERAAPI_EXPORT int32_t OrvGenParam_GetSymbolic(OrvGenApiNode *node, char *text, size_t size,
                                                    size_t *length);
ORVCAMERAAPI_EXPORT int32_t OrvGenParam_SetSymbolic(OrvGenApiNode *node, const char *symbolic);

/* Text parameters. *maxLength is in bytes, without the terminating 0. */
ORVCAMERAAPI_EXPORT int32_t OrvGenParam_GetString(OrvGenApiNode *node, char *text, size_t size,
                                                  size_t *length);
ORVCAMERAAPI_EXPORT int32_t OrvGenParam_SetString(OrvGenApiNode *node, const char *value);
ORVCAMERAAPI_EXPORT int32_t OrvGenParam_GetMaxLength(OrvGenApiNode *node, int64_t *maxLength);

/*
 * The value of any kind as text, in the format of settings files: decimal numbers with a point, or
 * "0x" and hexadecimal digits, "1" and "0" or "true" and "false" for booleans, symbolic names.
 * Commands cannot be set.
 */
ORVCAMERAAPI_EXPORT int32_t OrvGenParam_GetValueText(OrvGenApiNode *node, char *text, size_t size,
                                                     size_t *length);
ORVCAMERAAPI_EXPORT int32_t OrvGenParam_SetValueText(OrvGenApiNode *node, const char *value);

/*
 * Blocks until the camera has accepted a command, not until it has finished. *isDone is 1 when it
 * has finished, otherwise 0; that reads from the camera.
 */
ORVCAMERAAPI_EXPORT int32_t OrvGenParam_Execute(OrvGenApiNode *node);
ORVCAMERAAPI_EXPORT int32_t OrvGenParam_IsDone(OrvGenApiNode *node, int32_t *isDone);

/*
 * Registers `changed` as a callback for changes of a parameter's value, limits or access. It runs
 * on the thread that calls this function, which must be the one that runs the default GLib main
 * context. A change made on that thread calls it at once, from inside the function that makes the
 * change. Changes by the camera or by other threads are collected and reported from the context.
 *
 * `changed` may call any function, including OrvGenParam_Unwatch for its own watch, but must not
 * release the device or node map, nor throw.
 *
 * Null on failure, with the reason in *error unless error is null. The caller owns the watch and
 * destroys it with OrvGenParam_Unwatch on the same thread. The calls end with the node map, but the
 * watch must be destroyed nevertheless.
 */
typedef struct OrvGenParamWatch OrvGenParamWatch;
typedef void (*OrvGenParamChanged)(OrvGenApiNode *node, void *userData);
ORVCAMERAAPI_EXPORT OrvGenParamWatch *
OrvGenParam_Watch(OrvGenApiNode *node, OrvGenParamChanged changed, void *userData, int32_t *error);

/* No calls are made afterwards. Null is ignored. */
ORVCAMERAAPI_EXPORT void OrvGenParam_Unwatch(OrvGenParamWatch *watch);

#ifdef __cplusplus
}
#endif
