// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/GenApi.h>

#include <QCoreApplication>
#include <QString>

namespace OrvGui {

/// Values of features as text.
///
/// Functions that read or write throw GenICam's exceptions, wait for the camera, and may be called
/// on any thread.
class FeatureValue
{
    Q_DECLARE_TR_FUNCTIONS(OrvGui::FeatureValue)

public:
    /// Whether the feature has a value that can be kept: no category and no command.
    static bool exists(GenApi::IValue *feature);

    /// The exact value, as settings files have it.
    static QString text(GenApi::IValue *feature);

    /// Sets it to such a text, or to the text of another tool.
    static void write(GenApi::IValue *feature, const QString &text);

    /// The value as the feature tree shows it.
    static QString shownText(GenApi::IValue *feature);
    static void writeShown(GenApi::IValue *feature, const QString &text);

    /// Whether two texts of files are the same value. Without a feature, a text that looks like a
    /// number is one. Never throws, and reads nothing from the camera.
    static bool areSame(GenApi::IValue *feature, const QString &left, const QString &right);

    /// The reason why the camera refused the read or write, for the user.
    static QString reason(GenApi::IValue *feature, const GenICam::GenericException &exception);

    /// The reason why the feature cannot be written; empty if it can.
    static QString refusal(GenApi::IValue *feature);
};

} // namespace OrvGui
