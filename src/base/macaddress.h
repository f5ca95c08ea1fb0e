// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// A MAC address as text, such as 00:1B:2C:3D:4E:5F: the low six bytes of the number, the most
/// significant one first.
QString macAddressText(quint64 address);
