// SPDX-License-Identifier: MIT
#pragma once

#include <Base/GCBase.h>

#include <cstdint>

namespace GenApi_3_0 {

/// The present access mode of a node.
typedef enum _EAccessMode {
    NI,                   ///< not implemented
    NA,                   ///< not available
    WO,                   ///< write only
    RO,                   ///< read only
    RW,                   ///< read and write
    _UndefinedAccesMode,  ///< not yet determined
    _CycleDetectAccesMode ///< being determined; used to find cycles
} EAccessMode;

/// The audience a node is meant for.
typedef enum _EVisibility {
    Beginner = 0,
    Expert = 1,
    Guru = 2,
    Invisible = 3,
    _UndefinedVisibility = 99
} EVisibility;

/// The recommended presentation of a number.
typedef enum _ERepresentation {
    Linear,
    Logarithmic,
    Boolean,
    PureNumber,
    HexNumber,
    IPV4Address,
    MACAddress,
    _UndefinedRepresentation
} ERepresentation;

/// The distribution of the valid values of a number between its limits.
typedef enum _EIncMode {
    noIncrement,    ///< every value
    fixedIncrement, ///< minimum plus a multiple of the increment
    listIncrement   ///< the values of a list
} EIncMode;

/// The interface by which a client should use a node.
typedef enum _EInterfaceType {
    intfIValue,
    intfIBase,
    intfIInteger,
    intfIBoolean,
    intfICommand,
    intfIFloat,
    intfIString,
    intfIRegister,
    intfICategory,
    intfIEnumeration,
    intfIEnumEntry,
    intfIPort
} EInterfaceType;

/// When a callback runs, as seen from the node map's lock.
typedef enum _ECallbackType {
    cbPostInsideLock = 1, ///< after the change, lock still held
    cbPostOutsideLock = 2 ///< after the change, lock released
} ECallbackType;

/// The effect of a write on the cached value of a register.
typedef enum _ECachingMode {
    NoCache,      ///< the register is read every time
    WriteThrough, ///< a write also sets the cached value
    WriteAround,  ///< a write drops the cached value
    _UndefinedCachingMode
} ECachingMode;

/// The origin of a node's name.
typedef enum _ENameSpace { Custom, Standard, _UndefinedNameSpace } ENameSpace;

typedef enum _EYesNo { No = 0, Yes = 1, _UndefinedYesNo = 2 } EYesNo;

/// The recommended notation of a floating-point number.
typedef enum _EDisplayNotation {
    fnAutomatic,
    fnFixed,
    fnScientific,
    _UndefinedEDisplayNotation
} EDisplayNotation;

/// The requested neighbours of a node.
typedef enum _ELinkType {
    ctParentNodes,          ///< nodes that refer to this one
    ctReadingChildren,      ///< nodes read when this one is read
    ctWritingChildren,      ///< nodes written when this one is written
    ctInvalidatingChildren, ///< nodes whose change invalidates this one
    ctDependingNodes,       ///< nodes that this one's change invalidates, directly or not
    ctTerminalNodes,        ///< the registers at the ends of the reading chain
    ctValueChangingChildren ///< nodes whose change can change this one's value
} ELinkType;

/// Identifies one registration of a callback at a node.
typedef intptr_t CallbackHandleType;

} // namespace GenApi_3_0

// Clients write only the alias, so that they compile against every release of the interfaces.
namespace GenApi = GenApi_3_0;
