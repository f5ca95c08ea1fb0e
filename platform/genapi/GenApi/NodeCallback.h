// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/INode.h>

namespace GenApi_3_0 {

/// A callback for changes of a node. The node calls it twice per change, once for each callback
/// type; it acts only on its own type.
class GENAPI_DECL CNodeCallback
{
public:
    CNodeCallback(INode *node, ECallbackType type) : m_node(node), m_type(type) {}
    virtual ~CNodeCallback() = default;
    CNodeCallback(const CNodeCallback &) = delete;
    CNodeCallback &operator=(const CNodeCallback &) = delete;

    virtual void operator()(ECallbackType type) const = 0;

    /// Deletes the object.
    virtual void Destroy() = 0;
    INode *GetNode() { return m_node; }

protected:
    INode *m_node;
    ECallbackType m_type;
};

/// Calls a function with the node as its argument.
template<class Function>
class FunctionNodeCallback : public CNodeCallback
{
public:
    FunctionNodeCallback(INode *node, const Function &function, ECallbackType type)
        : CNodeCallback(node, type), m_function(function)
    {
    }

    void operator()(ECallbackType type) const override
    {
        if (type == m_type)
            m_function(m_node);
    }
    void Destroy() override { delete this; }

private:
    Function m_function;
};

/// Calls a member function of a client object with the node as its argument.
template<class Client, class Member>
class MemberNodeCallback : public CNodeCallback
{
public:
    MemberNodeCallback(INode *node, Client &client, Member member, ECallbackType type)
        : CNodeCallback(node, type), m_client(client), m_member(member)
    {
    }

    void operator()(ECallbackType type) const override
    {
        if (type == m_type)
            (m_client.*m_member)(m_node);
    }
    void Destroy() override { delete this; }

private:
    Client &m_client;
    Member m_member;
};

template<class Function>
CNodeCallback *make_NodeCallback(INode *node, Function function, ECallbackType type)
{
    return new FunctionNodeCallback<Function>(node, function, type);
}

template<class Client, class Member>
CNodeCallback *make_NodeCallback(INode *node, Client &client, Member member, ECallbackType type)
{
    return new MemberNodeCallback<Client, Member>(node, client, member, type);
}

template<class Function>
CallbackHandleType Register(INode *node, Function function, ECallbackType type = cbPostInsideLock)
{
    return node->RegisterCallback(make_NodeCallback(node, function, type));
}

template<class Client, class Member>
CallbackHandleType Register(INode *node, Client &client, Member member,
                            ECallbackType type = cbPostInsideLock)
{
    return node->RegisterCallback(make_NodeCallback(node, client, member, type));
}

/// Ends a registration at any node. The node must still exist; 0 is ignored.
GENAPI_DECL void Deregister(CallbackHandleType handle);

} // namespace GenApi_3_0
