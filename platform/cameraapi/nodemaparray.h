// SPDX-License-Identifier: MIT
#pragma once

#include "nodeaccess.h"

#include <OrvGenParam/Array.h>

#include <memory>
#include <string>
#include <thread>
#include <unordered_map>
#include <vector>

namespace OrvGenParam {

/// The parameters of a node map of any implementation: each feature that is an integer, a float, an
/// enumeration, a boolean, a command or a string. The node map must outlive the array.
///
/// Each parameter has one callback at its node. A change on the array's home thread is passed on to
/// the sinks at once. A change on another thread is passed on through the default GLib main
/// context, with high priority; several changes of a parameter before that are one notification.
/// The home thread should be the one that runs that context, as a program's GUI thread does.
/// Pending notifications are dropped when the parameter is destroyed.
class NodeMapArray final : public Array
{
public:
    /// Reads no values, only data of the description. Throws the exceptions of the nodes.
    explicit NodeMapArray(GenApi::INodeMap &nodeMap,
                          std::thread::id homeThread = std::this_thread::get_id());
    ~NodeMapArray() override;

    /// Makes every call return `code` without accessing the node map, and notifies the sinks. For a
    /// camera that is disconnected. Thread-safe.
    void detach(int32_t code);

    /// Reverts that and notifies the sinks: the camera is connected again. Thread-safe.
    void attach() { detach(OrvCam::Success); }

    uint32_t GetCount() const override;
    Param *GetParam(uint32_t index) const override;
    Param *GetParam(const char *name) const override;
    Int *GetInt(const char *name) const override;
    Float *GetFloat(const char *name) const override;
    Enum *GetEnum(const char *name) const override;
    Boolean *GetBoolean(const char *name) const override;
    Command *GetCommand(const char *name) const override;
    String *GetString(const char *name) const override;
    int64_t GetIntegerValue(const char *name, int32_t *error = nullptr) const override;
    int32_t SetIntegerValue(const char *name, int64_t value) override;
    int32_t ExecuteCommand(const char *name) override;
    GenApi::INodeMap *GetNodeMap(int32_t *error = nullptr) const override;

private:
    struct Entry
    {
        std::unique_ptr<Param> param;
        NodeAccess *access; ///< of the parameter
    };

    void add(GenApi::INode &node);
    template<class NodeKind, class Value>
    void addAs(GenApi::INode &node);
    template<class Kind>
    Kind *find(const char *name) const;

    ArrayState m_state;
    std::vector<Entry> m_entries;
    std::unordered_map<std::string, Param *> m_byName;
};

} // namespace OrvGenParam
