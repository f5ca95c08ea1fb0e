// SPDX-License-Identifier: MIT
#include <orvgenparamapi.h>

#include "nodewatch.h"
#include "utf8.h"

#include <OrvGenParam.h>
#include <cameraapi/cameranodemap.h>
#include <cameraapi/nodeaccess.h>
#include <cameraio/maincontext.h>

#include <algorithm>
#include <string>

using namespace GenApi;

namespace {

// The same types for C programs and C++ programs.
constexpr bool equal(int32_t c, int32_t cpp)
{
    return c == cpp;
}
static_assert(equal(OrvGenParam_KindInteger, OrvGenParam::ParamInt) &&
                  equal(OrvGenParam_KindFloat, OrvGenParam::ParamFloat) &&
                  equal(OrvGenParam_KindEnumeration, OrvGenParam::ParamEnum) &&
                  equal(OrvGenParam_KindBoolean, OrvGenParam::ParamBoolean) &&
                  equal(OrvGenParam_KindCommand, OrvGenParam::ParamCommand) &&
                  equal(OrvGenParam_KindString, OrvGenParam::ParamString),
              "kinds differ");
static_assert(equal(OrvGenParam_VisibilityBasic, Beginner) &&
                  equal(OrvGenParam_VisibilityExpert, Expert) &&
                  equal(OrvGenParam_VisibilityGuru, Guru) &&
                  equal(OrvGenParam_VisibilityInvisible, Invisible),
              "visibilities differ");
static_assert(equal(OrvGenParam_AccessNotImplemented, NI) &&
                  equal(OrvGenParam_AccessNotAvailable, NA) &&
                  equal(OrvGenParam_AccessWriteOnly, WO) && equal(OrvGenParam_AccessReadOnly, RO) &&
                  equal(OrvGenParam_AccessReadWrite, RW),
              "access modes differ");

std::string &lastMessage()
{
    thread_local std::string message;
    return message;
}

int32_t fail(int32_t code, const std::string &message = std::string()) noexcept
{
    try {
        lastMessage() = message.empty() ? OrvCam_GetErrorText(code) : OrvCam::validUtf8(message);
    } catch (...) {
        lastMessage().clear();
    }
    return code;
}

bool isGone(const INode &node)
{
    const auto *map = dynamic_cast<const OrvCam::CameraNodeMap *>(node.GetNodeMap());
    return map && map->isGone();
}

/// Precondition: inside a catch clause.
std::string reasonOfException()
{
    try {
        throw;
    } catch (const GenICam::GenericException &e) {
        return e.GetDescription();
    } catch (const std::exception &e) {
        return e.what();
    } catch (...) {
        return std::string();
    }
}

/// Runs the function and returns the error code.
template<class Function>
int32_t attempt(const OrvGenApiNode *node, Function function)
{
    if (!node)
        return fail(OrvCam_ErrorInvalidArgument);
    try {
        return function();
    } catch (...) {
        const int32_t code = isGone(*node) ? OrvCam_ErrorGone : OrvGenParam::codeOfException(*node);
        return fail(code, code == OrvCam_ErrorGone ? std::string() : reasonOfException());
    }
}

int32_t failAsOtherKind(const INode &node)
{
    return fail(OrvCam_ErrorNotFound,
                std::string("'") + node.GetName().c_str() + "' is of another kind");
}

/// The same for a node that must have the interface, and whose camera must be connected.
template<class Value, class Function>
int32_t with(OrvGenApiNode *node, Function use)
{
    return attempt(node, [&] {
        auto *value = dynamic_cast<Value *>(node);
        if (!value)
            return failAsOtherKind(*node);
        if (isGone(*node))
            return fail(OrvCam_ErrorGone);
        use(*value);
        return int32_t(OrvCam_Success);
    });
}

template<class T>
void store(T *to, T value)
{
    if (to)
        *to = value;
}

/// Copies a text to the caller's buffer.
struct TextBuffer
{
    TextBuffer(char *to, size_t room, size_t *wholeLength)
        : text(to), size(to ? room : 0), length(wholeLength)
    {
        store(length, size_t(0));
        if (size > 0)
            text[0] = '\0';
    }

    void set(const GenICam::gcstring &value)
    {
        const std::string valid = OrvCam::validUtf8(std::string(value.c_str()));
        store(length, valid.size());
        OrvCam::copyUtf8(valid, text, size);
    }

    char *const text;
    const size_t size;
    size_t *const length;
};

/// A text that depends on the description only.
template<class Get>
int32_t describe(OrvGenApiNode *node, TextBuffer buffer, Get get)
{
    return attempt(node, [&] {
        buffer.set(get(*node));
        return int32_t(OrvCam_Success);
    });
}

GenICam::gcstring unitOf(INode &node)
{
    if (auto *integer = dynamic_cast<IInteger *>(&node))
        return integer->GetUnit();
    if (auto *number = dynamic_cast<IFloat *>(&node))
        return number->GetUnit();
    return GenICam::gcstring();
}

int32_t kindOf(const INode &node)
{
    switch (node.GetPrincipalInterfaceType()) {
    case intfIInteger:
        return OrvGenParam_KindInteger;
    case intfIFloat:
        return OrvGenParam_KindFloat;
    case intfIEnumeration:
        return OrvGenParam_KindEnumeration;
    case intfIBoolean:
        return OrvGenParam_KindBoolean;
    case intfICommand:
        return OrvGenParam_KindCommand;
    case intfIString:
        return OrvGenParam_KindString;
    case intfICategory:
        return OrvGenParam_KindCategory;
    case intfIRegister:
        return OrvGenParam_KindRegister;
    case intfIEnumEntry:
        return OrvGenParam_KindEntry;
    default:
        return OrvGenParam_KindOther;
    }
}

/// Copies the list of nodes that `list` returns.
template<class List>
size_t copyNodes(OrvGenApiNode **nodes, size_t capacity, List list)
{
    try {
        const NodeList_t found = list();
        if (nodes)
            std::copy_n(found.begin(), std::min(found.size(), capacity), nodes);
        return found.size();
    } catch (...) {
        fail(OrvCam_ErrorFailed, reasonOfException());
        return 0;
    }
}

} // namespace

const char *OrvCam_GetErrorText(int32_t error)
{
    switch (error) {
    case OrvCam_Success:
        return "Success";
    case OrvCam_ErrorInvalidArgument:
        return "An argument is null or makes no sense";
    case OrvCam_ErrorNotFound:
        return "There is no such parameter, or it is of another kind";
    case OrvCam_ErrorNotAvailable:
        return "The parameter cannot be used at this moment";
    case OrvCam_ErrorAccessDenied:
        return "Access is denied: read-only, write-only, locked, or refused by the camera";
    case OrvCam_ErrorOutOfRange:
        return "The value is outside the limits or off the increment";
    case OrvCam_ErrorTimeout:
        return "The camera did not answer in time";
    case OrvCam_ErrorBusy:
        return "The camera is open already, in this program or another one";
    case OrvCam_ErrorGone:
        return "The camera is no longer there";
    case OrvCam_ErrorWrongSubnet:
        return "The camera's address does not fit the network adapter's subnet";
    case OrvCam_ErrorBadDescription:
        return "The camera's description cannot be understood";
    case OrvCam_ErrorFailed:
        return "The operation failed";
    default:
        return "Unknown error";
    }
}

const char *OrvCam_GetLastErrorMessage(void)
{
    return lastMessage().c_str();
}

void OrvCam_ProcessEvents(uint32_t durationMs)
{
    try {
        OrvCameraIo::MainContext::run(durationMs);
    } catch (...) {
        fail(OrvCam_ErrorFailed, reasonOfException());
    }
}

OrvGenApiNode *OrvGenParam_FindNode(OrvGenApiNodeMap *nodeMap, const char *name)
{
    if (!nodeMap || !name) {
        fail(OrvCam_ErrorInvalidArgument);
        return nullptr;
    }
    try {
        OrvGenApiNode *found = nodeMap->GetNode(name);
        if (!found)
            fail(OrvCam_ErrorNotFound, std::string("There is no parameter '") + name + "'");
        return found;
    } catch (...) {
        fail(OrvCam_ErrorFailed, reasonOfException());
        return nullptr;
    }
}

size_t OrvGenParam_GetFeatures(OrvGenApiNodeMap *nodeMap, OrvGenApiNode **nodes, size_t capacity)
{
    return copyNodes(nodes, capacity, [&] {
        NodeList_t found;
        if (nodeMap)
            nodeMap->GetNodes(found);
        const auto isOther = [](const INode *node) {
            return !node->IsFeature() || kindOf(*node) == OrvGenParam_KindCategory;
        };
        found.erase(std::remove_if(found.begin(), found.end(), isOther), found.end());
        return found;
    });
}

size_t OrvGenParam_GetCategoryFeatures(OrvGenApiNode *category, OrvGenApiNode **nodes,
                                       size_t capacity)
{
    return copyNodes(nodes, capacity, [&] {
        NodeList_t found;
        FeatureList_t features;
        if (const auto *list = dynamic_cast<ICategory *>(category))
            list->GetFeatures(features);
        for (IValue *feature : features)
            found.push_back(feature->GetNode());
        return found;
    });
}

size_t OrvGenParam_GetEntries(OrvGenApiNode *enumeration, OrvGenApiNode **nodes, size_t capacity)
{
    return copyNodes(nodes, capacity, [&] {
        NodeList_t found;
        if (auto *value = dynamic_cast<IEnumeration *>(enumeration))
            value->GetEntries(found);
        return found;
    });
}

int32_t OrvGenParam_GetKind(const OrvGenApiNode *node)
{
    int32_t kind = -1;
    attempt(node, [&] {
        kind = kindOf(*node);
        return int32_t(OrvCam_Success);
    });
    return kind;
}

int32_t OrvGenParam_GetName(OrvGenApiNode *node, char *text, size_t size, size_t *length)
{
    return describe(node, {text, size, length}, [](INode &n) { return n.GetName(); });
}

int32_t OrvGenParam_GetDisplayName(OrvGenApiNode *node, char *text, size_t size, size_t *length)
{
    return describe(node, {text, size, length}, [](INode &n) {
        const GenICam::gcstring shown = n.GetDisplayName();
        if (!shown.empty())
            return shown;
        const auto *entry = dynamic_cast<IEnumEntry *>(&n);
        return entry ? entry->GetSymbolic() : n.GetName();
    });
}

int32_t OrvGenParam_GetToolTip(OrvGenApiNode *node, char *text, size_t size, size_t *length)
{
    return describe(node, {text, size, length}, [](INode &n) { return n.GetToolTip(); });
}

int32_t OrvGenParam_GetDescription(OrvGenApiNode *node, char *text, size_t size, size_t *length)
{
    return describe(node, {text, size, length}, [](INode &n) { return n.GetDescription(); });
}

int32_t OrvGenParam_GetUnit(OrvGenApiNode *node, char *text, size_t size, size_t *length)
{
    return describe(node, {text, size, length}, unitOf);
}

int32_t OrvGenParam_GetVisibility(OrvGenApiNode *node, int32_t *visibility)
{
    store(visibility, 0);
    return attempt(node, [&] {
        store<int32_t>(visibility, node->GetVisibility());
        return int32_t(OrvCam_Success);
    });
}

int32_t OrvGenParam_GetAccess(OrvGenApiNode *node, int32_t *access)
{
    store(access, int32_t(OrvGenParam_AccessNotImplemented));
    const int32_t code = attempt(node, [&] {
        if (isGone(*node))
            return fail(OrvCam_ErrorGone);
        store<int32_t>(access, node->GetAccessMode());
        return int32_t(OrvCam_Success);
    });
    if (code == OrvCam_ErrorGone)
        store(access, int32_t(OrvGenParam_AccessNotAvailable));
    return code;
}

int32_t OrvGenParam_GetInteger(OrvGenApiNode *node, int64_t *value)
{
    store(value, int64_t(0));
    if (dynamic_cast<IEnumeration *>(node))
        return with<IEnumeration>(node, [&](IEnumeration &e) { store(value, e.GetIntValue()); });
    if (dynamic_cast<IEnumEntry *>(node))
        return with<IEnumEntry>(node, [&](IEnumEntry &e) { store(value, e.GetValue()); });
    return with<IInteger>(node, [&](IInteger &i) { store(value, i.GetValue()); });
}

int32_t OrvGenParam_SetInteger(OrvGenApiNode *node, int64_t value)
{
    if (dynamic_cast<IEnumeration *>(node))
        return with<IEnumeration>(node, [&](IEnumeration &e) { e.SetIntValue(value); });
    return with<IInteger>(node, [&](IInteger &i) { i.SetValue(value); });
}

int32_t OrvGenParam_GetIntegerLimits(OrvGenApiNode *node, int64_t *min, int64_t *max,
                                     int64_t *increment)
{
    int64_t limits[3] = {0, 0, 0};
    const int32_t code = with<IInteger>(node, [&](IInteger &i) {
        const int64_t found[] = {i.GetMin(), i.GetMax(), i.GetInc()};
        std::copy(std::begin(found), std::end(found), limits);
    });
    store(min, limits[0]);
    store(max, limits[1]);
    store(increment, limits[2]);
    return code;
}

int32_t OrvGenParam_GetFloat(OrvGenApiNode *node, double *value)
{
    store(value, 0.0);
    return with<IFloat>(node, [&](IFloat &f) { store(value, f.GetValue()); });
}

int32_t OrvGenParam_SetFloat(OrvGenApiNode *node, double value)
{
    return with<IFloat>(node, [&](IFloat &f) { f.SetValue(value); });
}

int32_t OrvGenParam_GetFloatLimits(OrvGenApiNode *node, double *min, double *max, double *increment)
{
    double limits[3] = {0, 0, 0};
    const int32_t code = with<IFloat>(node, [&](IFloat &f) {
        const double found[] = {f.GetMin(), f.GetMax(), f.HasInc() ? f.GetInc() : 0};
        std::copy(std::begin(found), std::end(found), limits);
    });
    store(min, limits[0]);
    store(max, limits[1]);
    store(increment, limits[2]);
    return code;
}

int32_t OrvGenParam_GetBoolean(OrvGenApiNode *node, int32_t *value)
{
    store(value, 0);
    return with<IBoolean>(node, [&](IBoolean &b) { store(value, b.GetValue() ? 1 : 0); });
}

int32_t OrvGenParam_SetBoolean(OrvGenApiNode *node, int32_t value)
{
    return with<IBoolean>(node, [&](IBoolean &b) { b.SetValue(value != 0); });
}

int32_t OrvGenParam_GetSymbolic(OrvGenApiNode *node, char *text, size_t size, size_t *length)
{
    TextBuffer buffer(text, size, length);
    if (dynamic_cast<IEnumEntry *>(node))
        return with<IEnumEntry>(node, [&](IEnumEntry &e) { buffer.set(e.GetSymbolic()); });
    return with<IEnumeration>(node, [&](IEnumeration &e) {
        if (const IEnumEntry *entry = e.GetCurrentEntry())
            buffer.set(entry->GetSymbolic());
    });
}

int32_t OrvGenParam_SetSymbolic(OrvGenApiNode *node, const char *symbolic)
{
    if (!symbolic)
        return fail(OrvCam_ErrorInvalidArgument);
    return with<IEnumeration>(node, [&](IEnumeration &e) { e.FromString(symbolic); });
}

int32_t OrvGenParam_GetString(OrvGenApiNode *node, char *text, size_t size, size_t *length)
{
    TextBuffer buffer(text, size, length);
    return with<IString>(node, [&](IString &s) { buffer.set(s.GetValue()); });
}

int32_t OrvGenParam_SetString(OrvGenApiNode *node, const char *value)
{
    if (!value)
        return fail(OrvCam_ErrorInvalidArgument);
    return with<IString>(node, [&](IString &s) { s.SetValue(value); });
}

int32_t OrvGenParam_GetMaxLength(OrvGenApiNode *node, int64_t *maxLength)
{
    store(maxLength, int64_t(0));
    return with<IString>(node, [&](IString &s) { store(maxLength, s.GetMaxLength()); });
}

int32_t OrvGenParam_GetValueText(OrvGenApiNode *node, char *text, size_t size, size_t *length)
{
    TextBuffer buffer(text, size, length);
    return with<IValue>(node, [&](IValue &v) { buffer.set(v.ToString()); });
}

int32_t OrvGenParam_SetValueText(OrvGenApiNode *node, const char *value)
{
    if (!value)
        return fail(OrvCam_ErrorInvalidArgument);
    if (dynamic_cast<ICommand *>(node)) // any text would execute it
        return failAsOtherKind(*node);
    return with<IValue>(node, [&](IValue &v) { v.FromString(value); });
}

int32_t OrvGenParam_Execute(OrvGenApiNode *node)
{
    return with<ICommand>(node, [](ICommand &c) { c.Execute(); });
}

int32_t OrvGenParam_IsDone(OrvGenApiNode *node, int32_t *isDone)
{
    store(isDone, 0);
    return with<ICommand>(node, [&](ICommand &c) { store(isDone, c.IsDone() ? 1 : 0); });
}

OrvGenParamWatch *OrvGenParam_Watch(OrvGenApiNode *node, OrvGenParamChanged changed, void *userData,
                                    int32_t *error)
{
    OrvGenParamWatch *watch = nullptr;
    const int32_t code = attempt(node, [&] {
        if (!changed)
            return fail(OrvCam_ErrorInvalidArgument);
        watch = new OrvGenParamWatch(*node, changed, userData);
        return int32_t(OrvCam_Success);
    });
    store(error, code);
    return watch;
}

void OrvGenParam_Unwatch(OrvGenParamWatch *watch)
{
    delete watch;
}
