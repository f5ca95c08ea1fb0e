// SPDX-License-Identifier: MIT
#pragma once

// Everything of the GenICam base layer.
#include <Base/GCException.h>
#include <Base/GCString.h>
#include <Base/GCStringVector.h>
#include <Base/GCTypes.h>
