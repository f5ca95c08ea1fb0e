// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/IValue.h>

#include <QMetaType>
#include <QModelIndex>
#include <QVariant>

// Include before any class whose signals have features as arguments: Qt 6 registers the types of
// the arguments.
Q_DECLARE_METATYPE(GenApi::IValue *)

/// The feature of a row in a model of features; null for a row without one.
inline GenApi::IValue *featureOf(const QModelIndex &index)
{
    return index.data(Qt::UserRole).value<GenApi::IValue *>();
}
