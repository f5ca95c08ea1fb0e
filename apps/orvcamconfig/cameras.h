// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam.h>

#include <QString>
#include <QTextStream>

/// Searches for the camera with that identifier, serial number or name or, without a name, for the
/// first usable one. Null when there is none, with a one-line `error`.
OrvCam::DeviceInfo *findCamera(OrvCam::System &system, const QString &name, QString *error);

/// Searches for cameras and prints one per line: the identifier (MAC address, or vendor and serial
/// number), the name, the IPv4 address (empty for a camera without one) and the access, separated
/// by tabs. Returns the number of cameras.
int printCameras(OrvCam::System &system, QTextStream &out);
