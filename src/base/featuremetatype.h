// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/IValue.h>

#include <QMetaType>
#include <QModelIndex>
#include <QVariant>

// Before any class with a signal that has a feature: Qt 6 looks at the types of signals.
Q_DECLARE_METATYPE(GenApi::IValue *)

/// The feature of a row in a model of features; null for a row without one.
inline GenApi::IValue *featureOf(const QModelIndex &index)
{
    return index.data(Qt::UserRole).value<GenApi::IValue *>();
}
