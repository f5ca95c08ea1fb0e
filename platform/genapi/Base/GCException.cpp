// SPDX-License-Identifier: MIT
#include <Base/GCException.h>

namespace GenICam_3_0 {

GenericException::GenericException(const char *description, const char *sourceFileName,
                                   unsigned int sourceLine)
    : GenericException(description, sourceFileName, sourceLine, "GenericException")
{
}

GenericException::GenericException(const char *description, const char *sourceFileName,
                                   unsigned int sourceLine, const char *kind)
    : m_description(description ? description : "")
    , m_sourceFileName(sourceFileName ? sourceFileName : "")
    , m_sourceLine(sourceLine)
    , m_what(std::string(kind) + ": " + m_description)
{
}

GenericException::~GenericException() = default;

const char *GenericException::what() const noexcept
{
    return m_what.c_str();
}

#define ORV_DEFINE_GENICAM_EXCEPTION(Name)                                                         \
    Name::Name(const char *description, const char *sourceFileName, unsigned int sourceLine)       \
        : GenericException(description, sourceFileName, sourceLine, #Name)                         \
    {                                                                                              \
    }                                                                                              \
    Name::~Name() = default;

ORV_DEFINE_GENICAM_EXCEPTION(BadAllocException)
ORV_DEFINE_GENICAM_EXCEPTION(InvalidArgumentException)
ORV_DEFINE_GENICAM_EXCEPTION(OutOfRangeException)
ORV_DEFINE_GENICAM_EXCEPTION(PropertyException)
ORV_DEFINE_GENICAM_EXCEPTION(RuntimeException)
ORV_DEFINE_GENICAM_EXCEPTION(LogicalErrorException)
ORV_DEFINE_GENICAM_EXCEPTION(AccessException)
ORV_DEFINE_GENICAM_EXCEPTION(TimeoutException)
ORV_DEFINE_GENICAM_EXCEPTION(DynamicCastException)

#undef ORV_DEFINE_GENICAM_EXCEPTION

} // namespace GenICam_3_0
