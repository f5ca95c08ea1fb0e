// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/GenApi.h>

#include <QCoreApplication>
#include <QString>

namespace OrvGui {

/// Values of features as text.
///
/// What reads or writes throws the exceptions of GenICam, waits for the camera, and may be called
/// on any thread.
class FeatureValue
{
    Q_DECLARE_TR_FUNCTIONS(OrvGui::FeatureValue)

public:
    /// Whether the feature has a value that can be kept: no category and no command.
    static bool exists(GenApi::IValue *feature);

    /// The exact value, as settings files have it.
    static QString text(GenApi::IValue *feature);

    /// Sets it to such a text, or to what another tool would have written.
    static void write(GenApi::IValue *feature, const QString &text);

    /// The value as the feature tree shows it.
    static QString shownText(GenApi::IValue *feature);
    static void writeShown(GenApi::IValue *feature, const QString &text);

    /// Whether two texts of files mean the same value. Without a feature, what looks like a number
    /// is one. Never throws, and asks nothing of the camera.
    static bool areSame(GenApi::IValue *feature, const QString &left, const QString &right);

    /// Why the camera did not do what was asked of the feature, for the user.
    static QString reason(GenApi::IValue *feature, const GenICam::GenericException &exception);

    /// What keeps the feature from being written, or empty.
    static QString refusal(GenApi::IValue *feature);
};

} // namespace OrvGui
