// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam.h>

#include <QString>
#include <QTextStream>

/// Looks for the camera of that identifier, serial number or name; without a name, for the first
/// that can be used. Null when there is none, with `error` one line.
OrvCam::DeviceInfo *findCamera(OrvCam::System &system, const QString &name, QString *error);

/// Looks for cameras and prints one a line: the identifier (MAC address, or vendor and serial
/// number), the name, the IPv4 address (empty for a camera without one) and the access, with tabs
/// between them. Returns how many there are.
int printCameras(OrvCam::System &system, QTextStream &out);
