// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/IInteger.h>

/// The representation to use for an integer: the declared one, except that the address features of
/// GigE Vision are IPv4 addresses (subnet masks and gateways too) and "GevMACAddress" is a MAC
/// address; the representation in the device description is ignored.
///
/// All code that shows or edits integers uses this function, so that a value and its editor agree.
GenApi::ERepresentation FixIntegerRepresentation(GenApi::IInteger *node);
