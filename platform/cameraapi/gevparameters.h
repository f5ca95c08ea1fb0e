// SPDX-License-Identifier: MIT
#pragma once

#include "nodemaparray.h"

#include <genapi/declarednodemap.h>

#include <cstdint>
#include <map>
#include <vector>

namespace OrvCam {

/// The addresses of a network adapter or of a camera. The first byte of each is the most
/// significant one of the number.
struct GevAddresses
{
    uint64_t mac = 0;
    uint32_t ip = 0;
    uint32_t mask = 0;
    uint32_t gateway = 0;

    /// True when the addresses are in the same subnet with the adapter's mask.
    bool reaches(const GevAddresses &camera) const;
};

/// The data and operations behind the parameters of a GigE Vision interface.
class GevNetwork
{
public:
    virtual ~GevNetwork() = default;

    virtual GevAddresses adapter() const = 0;

    /// The present cameras, in the order of the interface's list.
    virtual std::vector<GevAddresses> cameras() const = 0;

    /// Forces a new address, mask and gateway on the camera with that MAC address, and blocks until
    /// the camera answers with it. Returns an `ErrorCode`.
    virtual int32_t forceIp(const GevAddresses &wanted) = 0;
};

/// The parameters of a GigE Vision interface: its own addresses, those of the camera that
/// "DeviceSelector" selects, and the addresses to force on that camera. The addresses to force are
/// stored for each camera while it is present; initially they are the camera's present ones.
///
/// The selection follows its camera when the list of cameras changes. When the camera is absent,
/// "DeviceSelector" is -1 and the parameters that depend on it cannot be read until a camera is
/// selected.
class GevParameters
{
public:
    explicit GevParameters(GevNetwork &network);

    OrvGenParam::Array &array() { return m_array; }

    /// Call it when the adapter, the list of cameras or a camera's address may have changed.
    void networkChanged();

private:
    OrvGenApi::DeclaredNodeMap &declare();
    OrvGenApi::DeclaredInteger &addAddress(const char *name, GenApi::ERepresentation representation,
                                           const char *category);
    void addAdapter();
    void addCamera();
    void addForce();
    void addForced(const char *name, uint32_t GevAddresses::*part);

    GevAddresses selected() const;
    GevAddresses forced() const;
    void force();
    void follow(const GevAddresses &camera);
    void forgetOthers();

    GevNetwork &m_network;
    std::vector<GevAddresses> m_cameras;
    int64_t m_row = 0;                         ///< of the selected camera
    std::map<uint64_t, GevAddresses> m_forced; ///< by MAC address
    std::vector<OrvGenApi::DeclaredInteger *> m_adapterNodes;
    std::vector<OrvGenApi::DeclaredInteger *> m_cameraNodes;
    std::vector<OrvGenApi::DeclaredInteger *> m_forceNodes;
    OrvGenApi::DeclaredNodeMap m_map;
    OrvGenApi::DeclaredInteger *m_selector = nullptr;
    OrvGenApi::DeclaredCommand *m_command = nullptr;
    OrvGenParam::NodeMapArray m_array;
};

} // namespace OrvCam
