// SPDX-License-Identifier: MIT
#pragma once

// The camera system, its interfaces and cameras.
#include <OrvCam/AddressForcing.h>
#include <OrvCam/Codes.h>
#include <OrvCam/Device.h>
#include <OrvCam/DeviceInfo.h>
#include <OrvCam/DeviceInfoList.h>
#include <OrvCam/DeviceOpener.h>
#include <OrvCam/Interface.h>
#include <OrvCam/InterfaceList.h>
#include <OrvCam/Released.h>
#include <OrvCam/System.h>
#include <orvcameraapi.h>
