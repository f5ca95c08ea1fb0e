// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/IBase.h>

namespace GenApi_3_0 {

struct INode;
struct IValue;
struct ICategory;
struct IInteger;
struct IBoolean;
struct IString;
struct IEnumeration;
struct IEnumEntry;
struct ICommand;
struct ISelector;
struct IRegister;
struct IFloat;

/// A non-owning pointer to one interface of a node. Constructed or assigned from any other
/// interface by `dynamic_cast`; null when the node has no such interface. Every dereference of a
/// null pointer, the conversion to `T *` included, throws `LogicalErrorException`.
template<class T, class B = IBase>
class CPointer
{
public:
    CPointer() = default;
    CPointer(B *base) : m_pointer(dynamic_cast<T *>(base)) {}
    virtual ~CPointer() = default;
    CPointer(const CPointer &) = default;
    CPointer &operator=(const CPointer &) = default;

    CPointer &operator=(B *base)
    {
        m_pointer = dynamic_cast<T *>(base);
        return *this;
    }

    bool IsValid() const { return m_pointer != nullptr; }
    operator bool() const { return IsValid(); }
    operator T *() const { return checked(); }
    T *operator->() const { return checked(); }
    T &operator*() const { return *checked(); }

private:
    T *checked() const
    {
        if (!m_pointer)
            throw GenICam::LogicalErrorException("NULL pointer dereferenced", __FILE__, __LINE__);
        return m_pointer;
    }

    T *m_pointer = nullptr;
};

typedef CPointer<INode> CNodePtr;
typedef CPointer<IValue> CValuePtr;
typedef CPointer<ICategory> CCategoryPtr;
typedef CPointer<IInteger> CIntegerPtr;
typedef CPointer<IBoolean> CBooleanPtr;
typedef CPointer<IString> CStringPtr;
typedef CPointer<IEnumeration> CEnumerationPtr;
typedef CPointer<IEnumEntry> CEnumEntryPtr;
typedef CPointer<ICommand> CCommandPtr;
typedef CPointer<ISelector> CSelectorPtr;
typedef CPointer<IRegister> CRegisterPtr;
typedef CPointer<IFloat> CFloatPtr;

} // namespace GenApi_3_0
