// SPDX-License-Identifier: MIT
#pragma once

#include "valuenode.h"

namespace OrvGenApi {

/// A command of the camera. Its text is "1" while it is being executed, otherwise "0".
class CommandNode : public ValueNode<GenApi::ICommand>
{
public:
    using ValueNode::ValueNode;

    void Execute(bool verify = true) override;
    void operator()() override { Execute(); }
    bool IsDone(bool verify = true) override;
    GenICam::gcstring ToString(bool verify = false, bool ignoreCache = false) override;

    /// Executes the command; the text is ignored.
    void FromString(const GenICam::gcstring &text, bool verify = true) override;
    bool IsValueCacheValid() const override { return false; }
    GenApi::EInterfaceType GetPrincipalInterfaceType() const override
    {
        return GenApi::intfICommand;
    }

protected:
    virtual void execute() = 0;

    /// Reads from the camera, not from a cache.
    virtual bool readIsDone() = 0;
};

} // namespace OrvGenApi
