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

/// The parameters of a node map, whichever implementation it is of: every feature that is an
/// integer, a float, an enumeration, a boolean, a command or a string. The node map must outlive
/// the array.
///
/// Each parameter has one callback at its node. A change made on the array's home thread is passed
/// on to the sinks at once. One made on any other thread is passed on by the default GLib main
/// context, with high priority and, however many changes there were until the context comes to it,
/// once per parameter; the home thread is expected to be the one that runs that context, as a
/// program's GUI thread does. What is still on its way when the parameter goes is dropped.
class NodeMapArray final : public Array
{
public:
    /// Reads no values, only what the description says. Throws what the nodes throw.
    explicit NodeMapArray(GenApi::INodeMap &nodeMap,
                          std::thread::id homeThread = std::this_thread::get_id());
    ~NodeMapArray() override;

    /// Has every call from now on answer `code`, without asking the node map, and notifies the
    /// sinks. For a camera that is no longer there. May be called on any thread.
    void detach(int32_t code);

    /// Takes that back and notifies the sinks: the camera is there again. May be called on any
    /// thread.
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
        NodeAccess *access; ///< the parameter's own
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
