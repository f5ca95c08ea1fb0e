// SPDX-License-Identifier: MIT
#pragma once

#include "action.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

/// The options of the command line.
struct Options
{
    Q_DECLARE_TR_FUNCTIONS(Options)

public:
    enum class Window { Tree, Picker, Main };

    Window window = Window::Tree; ///< the first window to show
    /// The dialog to open with the main window, by its name in the option; empty for none.
    QString dialog;
    bool simulate = false;
    bool listCameras = false;
    bool listFeatures = false;
    QString
        camera; ///< identifier, serial number or name; in the tree, empty for the first usable one
    QString description;   ///< file name; empty for a camera
    QString screenshot;    ///< file name; empty for none
    Actions actions;       ///< actions to execute without a window
    bool json = false;     ///< the results of the actions as JSON
    bool anyModel = false; ///< for settings files
    int visibility = 0;    ///< 0 Basic, 1 Expert, 2 Guru
    bool isVisibilityGiven = false;

    /// Reads the arguments; the first one is the program's name. Handles "--help" and "--version"
    /// and exits. For invalid arguments, `error` is one line and the result is meaningless.
    static Options fromArguments(const QStringList &arguments, QString *error);
};
