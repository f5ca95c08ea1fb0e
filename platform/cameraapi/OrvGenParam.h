// SPDX-License-Identifier: MIT
#pragma once

// Parameters of cameras and interfaces.
#include <OrvGenParam/Array.h>
#include <OrvGenParam/LookAhead.h>
#include <OrvGenParam/ParamEventSink.h>
