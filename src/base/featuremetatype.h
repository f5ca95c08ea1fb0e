// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/IValue.h>

#include <QMetaType>

// Before any class with a signal that has a feature: Qt 6 looks at the types of signals.
Q_DECLARE_METATYPE(GenApi::IValue *)
