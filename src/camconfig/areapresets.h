// SPDX-License-Identifier: MIT
#pragma once

#include <QPair>
#include <QVector>
#include <QtGlobal>

namespace OrvGenParam {
class Array;
class Int;
class Param;
} // namespace OrvGenParam

namespace OrvGui {

/// The named areas of interest that a user can choose, for the frame that a camera's features
/// address at present.
///
/// Each call reads the camera; nothing is written. The parameters belong to the array, which must
/// outlive the object.
class AreaPresets
{
public:
    enum Preset {
        FullFrame, ///< the whole sensor
        Qfhd,      ///< 3840 by 2160 in the middle of the sensor
        Custom     ///< any other area
    };
    enum Side { OffsetX, OffsetY, Width, Height, SideCount };

    /// A side and its value. Written in order, each step is valid after the previous ones.
    using Steps = QVector<QPair<Side, qint64>>;

    /// Without a camera: no preset is available.
    AreaPresets() = default;
    explicit AreaPresets(OrvGenParam::Array *array);

    static const char *featureOf(Side side);

    /// Null where the camera lacks the feature.
    OrvGenParam::Int *param(Side side) const { return m_sides[side]; }

    /// Whether a change of the parameter may change the result of another function.
    bool dependsOn(const OrvGenParam::Param *param) const;

    /// False when the sensor is too small for it, or when the area cannot be set at present.
    bool offers(Preset preset) const;

    bool holds(Preset preset) const;

    /// The four values; 0 for a value that cannot be read.
    QVector<qint64> area() const;

    /// The writes that set the area; none for an area that is set already, and for `Custom`.
    Steps stepsTo(Preset preset) const;

private:
    struct Span
    {
        qint64 offset;
        qint64 size;
    };

    bool find(Preset preset, Span &x, Span &y) const;
    bool findSpan(Preset preset, Side offset, Side size, const OrvGenParam::Int *sensor,
                  qint64 wanted, Span &span) const;
    bool isHeld(Side offset, Side size, const Span &span) const;
    void appendSteps(Side offset, Side size, const Span &span, Steps &steps) const;

    OrvGenParam::Int *m_sides[SideCount] = {};
    OrvGenParam::Int *m_sensorWidth = nullptr;
    OrvGenParam::Int *m_sensorHeight = nullptr;
};

} // namespace OrvGui
