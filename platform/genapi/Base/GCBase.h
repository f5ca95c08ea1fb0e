// SPDX-License-Identifier: MIT
#pragma once

// The GenICam base layer.
#include <Base/GCException.h>
#include <Base/GCString.h>
#include <Base/GCStringVector.h>
#include <Base/GCTypes.h>
