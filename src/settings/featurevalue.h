// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/GenApi.h>

#include <QCoreApplication>
#include <QString>

namespace OrvGui {

/// Values of features as text.
///
/// Functions that read or write block for the camera, throw GenICam's exceptions, and may be called
/// on any thread.
class FeatureValue
{
    Q_DECLARE_TR_FUNCTIONS(OrvGui::FeatureValue)

public:
    /// Whether the feature has a value that can be saved: false for categories and commands.
    static bool exists(GenApi::IValue *feature);

    /// The exact value in the format of settings files.
    static QString text(GenApi::IValue *feature);

    /// Sets the value from such a text, also from one that another tool has written.
    static void write(GenApi::IValue *feature, const QString &text);

    /// The value in the format of the feature tree.
    static QString shownText(GenApi::IValue *feature);
    static void writeShown(GenApi::IValue *feature, const QString &text);

    /// Whether two texts of files are the same value. Without a feature, texts that look like
    /// numbers are compared as numbers. Never throws, and reads nothing from the camera.
    static bool areSame(GenApi::IValue *feature, const QString &left, const QString &right);

    /// The reason why the camera refused the read or write, for the user.
    static QString reason(GenApi::IValue *feature, const GenICam::GenericException &exception);

    /// The reason why the feature cannot be written; empty if it can.
    static QString refusal(GenApi::IValue *feature);

    /// The reason to show when the camera has no feature of that name.
    static QString missing(const QString &name);
};

} // namespace OrvGui
