// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam/Export.h>

#include <cstdint>

namespace OrvGenParam {

class ParamEventSink;

/// `Param::GetType`.
enum ParamType : int32_t {
    ParamInt,
    ParamFloat,
    ParamEnum,
    ParamBoolean,
    ParamCommand,
    ParamString
};

/// A feature of a camera or of an interface. Belongs to its `Array`. Texts are UTF-8, never null,
/// and belong to the parameter: unless they are said to change, they stay as they are as long as
/// it. Nothing here throws: what fails answers an `OrvCam::ErrorCode`.
///
/// What is not yet known is asked for at the camera, and what is set is sent there; such a call
/// blocks until the camera has answered. A camera's parameters may be called on any thread, where a
/// call waits for those of other threads at the same camera; an operation whose text changes with
/// the next call is for one thread at a time. An interface's parameters are, like the system,
/// for one thread at a time. While it executes "GevDeviceForceIP", others may go on asking records
/// and interfaces for their texts, and records for their access state.
class ORVCAMERAAPI_EXPORT Param
{
public:
    virtual ~Param() = default;

    /// The feature's name.
    virtual const char *GetName() const = 0;

    /// The name to show a user; the feature's name when the description gives none.
    virtual const char *GetDisplayName() const = 0;

    /// What the feature means; its tool tip when there is nothing longer, empty without either.
    virtual const char *GetDescription() const = 0;
    virtual ParamType GetType() const = 0;

    /// True when the camera has the feature and its state lets it be used; it may still be
    /// readable or writable only.
    virtual bool IsAvailable() const = 0;
    virtual bool IsReadable() const = 0;
    virtual bool IsWritable() const = 0;

    /// Has the sink told about every change of the parameter's value, limits or access mode. A sink
    /// that is registered already stays registered once. Sinks are called on the thread on which
    /// the array was made: at once for a change made there, through the default GLib main context
    /// for a change made elsewhere. Registering, unregistering and destroying sinks is safe at any
    /// time, also from inside a notification; a sink or a parameter that is destroyed is forgotten
    /// by the other end.
    virtual void RegisterEventSink(ParamEventSink *sink) = 0;

    /// A sink that is not registered is ignored.
    virtual void UnregisterEventSink(ParamEventSink *sink) = 0;
};

} // namespace OrvGenParam
