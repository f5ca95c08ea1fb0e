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
/// and belong to the parameter. They are constant for its lifetime, unless stated otherwise. No
/// function throws: a failure is reported as an `OrvCam::ErrorCode`.
///
/// Reading a value that is not cached, and setting a value, block until the camera has answered.
///
/// The parameters of a camera may be called on any thread; a call waits for calls of other threads
/// on the same camera. A function whose text is valid until its next call may be called by one
/// thread at a time. The parameters of an interface, like the system, may be used by one thread at
/// a time. While that thread executes "GevDeviceForceIP", other threads may read the texts of
/// records and interfaces and the access state of records.
class ORVCAMERAAPI_EXPORT Param
{
public:
    virtual ~Param() = default;

    /// The feature's name.
    virtual const char *GetName() const = 0;

    /// The name to display; the feature's name when the description gives none.
    virtual const char *GetDisplayName() const = 0;

    /// The feature's description; its tool tip when there is no description, empty without either.
    virtual const char *GetDescription() const = 0;
    virtual ParamType GetType() const = 0;

    /// True when the camera implements the feature and it is available in the camera's present
    /// state. It may still be read-only or write-only.
    virtual bool IsAvailable() const = 0;
    virtual bool IsReadable() const = 0;
    virtual bool IsWritable() const = 0;

    /// Registers a sink, which is notified of every change of the parameter's value, limits or
    /// access mode. Registering the same sink again has no effect. Sinks are called on the thread
    /// on which the array was created: at once for a change made on that thread, through the
    /// default GLib main context for a change made on another one. Registering, unregistering and
    /// destroying sinks is safe at any time, also from inside a notification. Destroying a sink or
    /// a parameter ends its registrations.
    virtual void RegisterEventSink(ParamEventSink *sink) = 0;

    /// A sink that is not registered is ignored.
    virtual void UnregisterEventSink(ParamEventSink *sink) = 0;
};

} // namespace OrvGenParam
