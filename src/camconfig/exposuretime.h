// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace OrvGenParam {
class Array;
class Int;
class Param;
} // namespace OrvGenParam

namespace OrvGui {

class FeatureReader;

/// The exposure time and the frame period in microseconds, of the frame that a camera's features
/// address. A camera counts the exposure in lines and pixel clocks, and the period in lines.
///
/// Calculates with the values of the last read; writes nothing. The parameters belong to the array,
/// which must outlive the object.
class ExposureTime
{
public:
    enum Feature { PixelClock, LineTime, Lines, Clocks, FeatureCount };

    struct Parts
    {
        qint64 lines = 0;
        qint64 clocks = 0;
    };

    /// Without a camera: all times are 0.
    ExposureTime() = default;
    explicit ExposureTime(OrvGenParam::Array *array);

    static const char *featureOf(Feature feature);

    /// Null where the camera lacks the feature.
    OrvGenParam::Int *param(Feature feature) const { return m_params[feature]; }

    /// Whether all times depend on the parameter: the pixel clock or the line time.
    bool isUnit(const OrvGenParam::Param *param) const;

    /// Whether the parameter is a part of the exposure: the lines or the clocks.
    bool isPart(const OrvGenParam::Param *param) const;

    /// False when the camera lacks a part of the exposure.
    bool isComplete() const { return param(Lines) && param(Clocks); }

    /// Keeps a value that cannot be read; a pixel clock that cannot be read gets the default.
    void readPixelClock(const FeatureReader &reader);
    void readLineTime(const FeatureReader &reader);
    void readParts(const FeatureReader &reader);

    qint64 time() const { return timeOf(m_parts); }
    qint64 maxTime() const { return timeOf(m_maxParts); }

    /// The parts to write for a time. They are stored as if they had been read.
    Parts split(int time);

    /// Converts lines to microseconds, and the reverse; rounded.
    long toControl(long lines) const;
    long toDevice(long microseconds) const;

private:
    qint64 timeOf(Parts parts) const;

    OrvGenParam::Int *m_params[FeatureCount] = {};
    qint64 m_pixelClock = 0; ///< clocks per microsecond
    qint64 m_lineTime = 0;   ///< clocks
    Parts m_parts;
    Parts m_maxParts;
};

} // namespace OrvGui
