// SPDX-License-Identifier: MIT
#include "commandnode.h"

#include "nodemapbase.h"

using namespace GenApi;

namespace OrvGenApi {

void CommandNode::Execute(bool verify)
{
    write(
        [&] {
            if (verify)
                requireWritable();
        },
        [&] { execute(); });
}

bool CommandNode::IsDone(bool)
{
    if (!Question::current(map())) {
        // Only the sources of the command: its dependents have not changed.
        const AutoLock lock(map().GetLock());
        for (Node *node : writtenNodes()) {
            node->dropRegister();
            node->dropCache();
        }
    }
    return map().answer([this] { return readIsDone(); });
}

GenICam::gcstring CommandNode::ToString(bool verify, bool)
{
    return IsDone(verify) ? "0" : "1";
}

void CommandNode::FromString(const GenICam::gcstring &, bool verify)
{
    Execute(verify);
}

} // namespace OrvGenApi
