// SPDX-License-Identifier: MIT
#pragma once

#include <OrvGenParam/Boolean.h>
#include <OrvGenParam/Command.h>
#include <OrvGenParam/Enum.h>
#include <OrvGenParam/Float.h>
#include <OrvGenParam/Int.h>
#include <OrvGenParam/String.h>

#include <GenApi/INodeMap.h>

namespace OrvGenParam {

/// All parameters of a camera or of an interface, found by feature name. The list never changes.
/// May be called on the same threads as its parameters; see `Param`.
class ORVCAMERAAPI_EXPORT Array
{
public:
    virtual ~Array() = default;

    virtual uint32_t GetCount() const = 0;

    /// In the order of the description; null for an index that is not below `GetCount()`.
    virtual Param *GetParam(uint32_t index) const = 0;

    /// Null when there is no such feature, the name is null, or the feature is of another type. The
    /// pointer stays valid as long as the array.
    virtual Param *GetParam(const char *name) const = 0;
    virtual Int *GetInt(const char *name) const = 0;
    virtual Float *GetFloat(const char *name) const = 0;
    virtual Enum *GetEnum(const char *name) const = 0;
    virtual Boolean *GetBoolean(const char *name) const = 0;
    virtual Command *GetCommand(const char *name) const = 0;
    virtual String *GetString(const char *name) const = 0;

    /// Shortcuts for a parameter that is needed only once. They fail as the parameter does, and
    /// with `ErrorNotFound` when there is no feature of that name and type. A failed read gives 0.
    virtual int64_t GetIntegerValue(const char *name, int32_t *error = nullptr) const = 0;
    virtual int32_t SetIntegerValue(const char *name, int64_t value) = 0;
    virtual int32_t ExecuteCommand(const char *name) = 0;

    /// The node map of the parameters; it lives as long as the array. Null with `ErrorGone` while
    /// the camera is disconnected.
    virtual GenApi::INodeMap *GetNodeMap(int32_t *error = nullptr) const = 0;
};

} // namespace OrvGenParam
