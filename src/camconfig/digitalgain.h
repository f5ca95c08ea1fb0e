// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <memory>

namespace OrvGenParam {
class Array;
class Int;
class Param;
} // namespace OrvGenParam

namespace OrvGui {

class FeatureJournal;
class FeatureReader;

/// The digital gain of the frame that a camera's features address: one factor for the user, a
/// coarse and a fine part for the camera.
///
/// The parameters belong to the array, which must outlive the object.
class DigitalGain
{
public:
    struct Parts
    {
        static Parts of(double factor);
        double factor() const;
        bool operator!=(Parts other) const { return coarse != other.coarse || fine != other.fine; }

        qint64 coarse = 0; ///< the number of doublings
        qint64 fine = 0;   ///< 64ths of a doubling
    };

    /// The step of the factor.
    static constexpr double step = 0.125;

    /// Without a camera.
    DigitalGain() = default;
    explicit DigitalGain(OrvGenParam::Array *array);

    /// Null when the camera lacks the feature; its part is 0 then.
    OrvGenParam::Int *coarse() const { return m_coarse; }
    OrvGenParam::Int *fine() const { return m_fine; }

    bool isPart(const OrvGenParam::Param *param) const;

    /// Whether one of the parts can be written.
    bool isWritable(const FeatureReader &reader) const;

    void readValue(const FeatureReader &reader);
    void readLimits(const FeatureReader &reader);
    Parts value() const { return m_value; }
    Parts min() const { return m_min; }
    Parts max() const { return m_max; }

    /// Stores a value that the other two are going to write; returns the previous one.
    Parts setValue(Parts value);

    /// Write a part of the value, unless the camera lacks it. A refusal is not reported. The write
    /// may trigger notifications that destroy this object.
    void writeCoarse(const std::shared_ptr<FeatureJournal> &journal, Parts former) const;
    void writeFine(const std::shared_ptr<FeatureJournal> &journal, Parts former) const;

private:
    OrvGenParam::Int *m_coarse = nullptr;
    OrvGenParam::Int *m_fine = nullptr;
    Parts m_value;
    Parts m_min;
    Parts m_max;
};

} // namespace OrvGui
