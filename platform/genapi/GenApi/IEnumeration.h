// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/Container.h>
#include <GenApi/IEnumEntry.h>
#include <GenApi/IValue.h>

namespace GenApi_3_0 {

/// A choice of entries. Its text is the symbolic name of the current entry.
struct GENAPI_DECL IEnumeration : virtual public IValue
{
    /// The symbolic names of the available entries.
    virtual void GetSymbolics(StringList_t &Symbolics) = 0;

    /// All entries, available or not.
    virtual void GetEntries(NodeList_t &Entries) = 0;
    virtual IEnumeration &operator=(const GenICam::gcstring &ValueStr) = 0;
    virtual void SetIntValue(int64_t Value, bool Verify = true) = 0;
    virtual GenICam::gcstring operator*() = 0;
    virtual int64_t GetIntValue(bool Verify = false, bool IgnoreCache = false) = 0;

    /// Null when there is no such entry.
    virtual IEnumEntry *GetEntryByName(const GenICam::gcstring &Symbolic) = 0;
    virtual IEnumEntry *GetEntry(int64_t IntValue) = 0;

    /// Null when the camera's value belongs to no entry.
    virtual IEnumEntry *GetCurrentEntry(bool Verify = false, bool IgnoreCache = false) = 0;
};

} // namespace GenApi_3_0
