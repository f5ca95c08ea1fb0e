// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam.h>
#include <OrvGenParam.h>

#include <QCoreApplication>
#include <QString>

#include <memory>

struct Options;

/// The features that the program shows, and what keeps them alive.
class FeatureSource
{
    Q_DECLARE_TR_FUNCTIONS(FeatureSource)

public:
    virtual ~FeatureSource() = default;

    virtual GenApi::INodeMap *nodeMap() const = 0;

    /// Where the features come from, for a window's title.
    virtual QString title() const = 0;

    /// Opens what the options ask for. Null on failure, with `error` one line.
    static std::unique_ptr<FeatureSource> open(const Options &options, QString *error);
};
