// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace OrvCam {

/// Result of every operation that can fail, either returned or stored through an `int32_t *`
/// argument, which may always be null.
enum ErrorCode : int32_t {
    Success = 0,
    ErrorFailed = -1,          ///< any failure without a code of its own
    ErrorInvalidArgument = -2, ///< an argument is null or invalid
    ErrorNotFound = -3,        ///< no parameter of that name and type
    ErrorNotAvailable = -4,    ///< the parameter exists but cannot be used at present
    ErrorAccessDenied = -5,    ///< read-only, write-only, locked, or refused by the camera
    ErrorOutOfRange = -6,      ///< outside the limits or off the increment
    ErrorTimeout = -7,         ///< no answer in time
    ErrorBusy = -8,            ///< another program, or this one, has the camera open
    ErrorGone = -9,            ///< the camera is no longer there
    ErrorWrongSubnet = -10,    ///< the camera's address does not fit the adapter's subnet
    ErrorBadDescription = -11  ///< the camera's description cannot be understood
};

/// `DeviceInfo::GetAccessState`.
enum AccessState : int32_t {
    AccessUnknown = 0,
    AccessReadWrite = 1,
    AccessReadOnly = 2,
    AccessNone = 3,
    AccessSubnetMismatch = 1001
};

/// `OrvCam_CreateDevice`: the access that the caller requests.
enum AccessMode : int32_t {
    AccessMonitor = 1, ///< read only; other programs may have control
    AccessControl = 2  ///< read and write; refused while another program has control
};

/// `Interface::GetTransportKind`.
enum TransportKind : int32_t {
    TransportCustom = 0,
    TransportUsb3Vision = 1,
    TransportGigEVision = 2,
    TransportCameraLink = 3,
    TransportCoaXPress = 4,
    TransportHdSdi = 5
};

/// `System::GetInterfaceSet`: the requested interface types; bits may be combined.
enum InterfaceType : uint32_t {
    InterfaceUsb3Vision = 1u << 0,
    InterfaceGigEVision = 1u << 1,
    InterfaceCameraLink = 1u << 2,
    InterfaceCoaXPress = 1u << 3,
    InterfaceHdSdi = 1u << 4,
    InterfaceCustom = 1u << 7,
    InterfaceAll = 255
};

/// `Device::RegisterEvent`.
enum EventCode : int32_t {
    EventReconnected = 1003, ///< the camera is back; the device works again
    EventDisconnected = 1004 ///< the camera no longer answers
};

} // namespace OrvCam
