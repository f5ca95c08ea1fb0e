// SPDX-License-Identifier: MIT
#pragma once

#include <Base/GCTypes.h>

#include <string>

namespace GenICam_3_0 {

/// The base class of all exceptions of nodes and node maps. It deliberately does not derive from
/// `std::exception`: code that handles the failure of a node catches this class by name.
class GENAPI_DECL GenericException
{
public:
    GenericException(const char *description, const char *sourceFileName, unsigned int sourceLine);
    GenericException(const GenericException &) = default;
    GenericException &operator=(const GenericException &) = default;
    virtual ~GenericException();

    /// The description, preceded by the kind of exception.
    virtual const char *what() const noexcept;
    const char *GetDescription() const noexcept { return m_description.c_str(); }
    const char *GetSourceFileName() const noexcept { return m_sourceFileName.c_str(); }
    unsigned int GetSourceLine() const noexcept { return m_sourceLine; }

protected:
    GenericException(const char *description, const char *sourceFileName, unsigned int sourceLine,
                     const char *kind);

private:
    std::string m_description;
    std::string m_sourceFileName;
    unsigned int m_sourceLine;
    std::string m_what;
};

// clang-format off
#define ORV_DECLARE_GENICAM_EXCEPTION(Name)                                                        \
    class GENAPI_DECL Name : public GenericException                                               \
    {                                                                                              \
    public:                                                                                        \
        Name(const char *description, const char *sourceFileName, unsigned int sourceLine);        \
        Name(const Name &) = default;                                                              \
        Name &operator=(const Name &) = default;                                                   \
        ~Name() override;                                                                          \
    };
// clang-format on

/// Memory ran out.
ORV_DECLARE_GENICAM_EXCEPTION(BadAllocException)
/// An argument is invalid in every state of the camera.
ORV_DECLARE_GENICAM_EXCEPTION(InvalidArgumentException)
/// A value lies outside its limits or off its increment.
ORV_DECLARE_GENICAM_EXCEPTION(OutOfRangeException)
/// A property of a node is missing or wrong.
ORV_DECLARE_GENICAM_EXCEPTION(PropertyException)
/// A failure at run time: of a formula, a transfer or a description.
ORV_DECLARE_GENICAM_EXCEPTION(RuntimeException)
/// The call violates the rules of the interface.
ORV_DECLARE_GENICAM_EXCEPTION(LogicalErrorException)
/// The node's access mode forbids the call, or the camera refused it.
ORV_DECLARE_GENICAM_EXCEPTION(AccessException)
/// The camera did not answer in time.
ORV_DECLARE_GENICAM_EXCEPTION(TimeoutException)
/// A node does not have the interface that the call needs.
ORV_DECLARE_GENICAM_EXCEPTION(DynamicCastException)

#undef ORV_DECLARE_GENICAM_EXCEPTION

} // namespace GenICam_3_0
