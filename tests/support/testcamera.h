// SPDX-License-Identifier: MIT
#pragma once

#include "testcameracommands.h"
#include "testcameralog.h"

#include <array>
#include <deque>
#include <functional>
#include <map>
#include <mutex>
#include <random>
#include <string>
#include <thread>
#include <vector>

/// A GigE Vision camera for tests and benchmarks, which can be made to misbehave. It has the
/// bootstrap registers, a sparse register space and a description, supports control privilege and
/// heartbeat, and sends no pictures. It shares no code with what it tests.
///
/// Run it in a network namespace (orv_add_test(... NETNS ...)), where any 127.x.y.z is an address
/// for a camera:
///
///     TestCamera::Settings settings;
///     settings.serial = "LEFT";
///     settings.description = textOfFile;
///     settings.unknownRegisters = TestCameraMemory::Unknown::Zero;
///     TestCamera camera(settings);
///     camera.setRegister(0x10000, 640);
///     camera.setMood("delay", 5);
///     …
///     check(camera.counters().readRegister == 1);
///
/// Link orv_test_camera. A camera at the far end of a CameraNetwork gets its settings from
/// CameraNetwork::cameraSettings(). For use by hand and from other processes: test-camera --help.
///
/// Each camera has a thread of its own. All functions can be called from any thread and take effect
/// before they return. Answers that are already delayed are dropped by silence and unplugging only.
class TestCamera
{
public:
    struct Settings
    {
        /// If no adapter has the address, the camera has a wrong IP configuration: it answers
        /// broadcasts (discovery and forced IP) from that address, and nothing else reaches it.
        /// Requires the right to administer the network.
        std::string address = "127.0.0.1";
        std::string netmask; ///< empty: 255.0.0.0 on the loopback device, otherwise 255.255.255.0
        std::string gateway = "0.0.0.0";
        std::string adapter;          ///< the network adapter to use; empty: any
        std::string networkNamespace; ///< a file as for setns(2); empty: the constructor's own
        uint64_t mac = 0;             ///< 0: 02:00 and the address
        std::string vendor = "Strawman";
        std::string model = "TestCamera";
        std::string version = "1.0";
        std::string manufacturerInfo;
        std::string serial = "1";
        std::string userName;

        std::string description;                    ///< a GenICam description, or any other bytes
        std::string descriptionName = "camera.xml"; ///< in the URL; ends with .zip for a zipped one
        uint32_t descriptionAddress = 0xC0000000;
        bool isZipped = false;
        std::string url;       ///< replaces Local:NAME;ADDRESS;SIZE
        std::string secondUrl; ///< verbatim

        bool canConcatenate = true; ///< the capability bit, and READREG with several addresses
        TestCameraMemory::Unknown unknownRegisters = TestCameraMemory::Unknown::Refused;
        bool fillsRegisters = false; ///< calls TestCameraMemory::fill() with the description
        uint32_t heartbeat = 3000;   ///< ms without a command until control is lost
        bool broadcasts = false;     ///< broadcasts its answers to discovery and forced IP
    };

    /// Throws std::runtime_error if the address is in use, or if the namespace does not exist.
    explicit TestCamera(const Settings &settings);
    ~TestCamera();
    TestCamera(const TestCamera &) = delete;
    TestCamera &operator=(const TestCamera &) = delete;

    /// @name Behaviour
    /// @{
    void setBehaviour(const TestCameraBehaviour &behaviour);
    TestCameraBehaviour behaviour() const;
    /// Removes all faults and sets this one; see testCameraMoods().
    void setMood(const std::string &name);
    void setMood(const std::string &name, int value);
    /// Adds this fault to the current ones.
    void addMood(const std::string &name, int value);

    /// Closes the sockets: the system answers commands to the address ("port unreachable"), whereas
    /// a silent camera sends no answer at all. Delayed answers are dropped.
    void unplug();
    /// Opens the sockets again. A camera that was switched off has forgotten its controller; one
    /// whose cable was pulled has not.
    void plugIn(bool keepsControl = false);
    /// @}

    /// @name Registers
    /// @{
    uint32_t reg(uint32_t address); ///< as READREG returns it; 0 if it does not exist
    void setRegister(uint32_t address, uint32_t value);
    std::string bytes(uint32_t address, uint32_t size); ///< as READMEM returns them
    void setBytes(uint32_t address, const std::string &bytes);
    void addBlock(uint32_t address,
                  const std::string &bytes);         ///< read-only, such as a second description
    void addTwoViews(uint32_t first, uint32_t last); ///< see TestCameraMemory
    void countUp(uint32_t address, int milliseconds, uint32_t step = 1);
    /// @}

    /// @name Control
    /// @{
    uint32_t privilege(); ///< the value of the register: 0 none, 1 exclusive, 2 control
    /// Gives control to another client, which never releases it; 0 removes the current controller.
    void setPrivilege(uint32_t privilege);
    /// @}

    /// @name Received commands and sent answers
    /// @{
    using Counters = TestCameraCounters;
    using Access = TestCameraAccess;

    Counters counters() const;
    /// Returns the counters and resets them.
    Counters takeCounters();

    /// Returns the accesses since the last call, without heartbeats.
    std::vector<Access> takeAccesses();
    /// The data of each forced IP command for this camera, 56 bytes each.
    std::vector<std::string> forcedIps() const;
    /// @}

    std::string address() const; ///< changed by a forced IP
    const Settings &settings() const { return m_settings; }

private:
    using Clock = TestCameraMemory::Clock;
    enum Socket { Unicast, Broadcast, SubnetBroadcast, Foreign, SocketCount };

    struct Command
    {
        uint16_t kind;
        uint16_t id;
        std::string data;
        sockaddr_in from;
        Socket socket;
    };
    using Answer = TestCameraCommands::Answer;
    struct Packet
    {
        Socket socket;
        sockaddr_in to;
        std::string bytes;
    };

    void run();
    void stop();
    void enterNamespace() const;
    void openSockets();
    int openSocket(uint32_t address, uint16_t port) const;
    void closeSockets();
    void call(const std::function<void()> &task);
    void receive(Socket socket);
    void sendDue();

    void setUpMemory();
    void writeIpRegisters();

    void handle(const std::string &packet, const sockaddr_in &from, Socket socket);
    void forceIp(const Command &command);

    void reply(const Command &command, const Answer &answer);
    void send(Clock::time_point due, const Command &command, const std::string &bytes,
              Socket socket);
    std::string faulty(unsigned fault, const Command &command, const Answer &answer);
    bool isLost(int perCent);

    const Settings m_settings;
    mutable std::mutex m_mutex; ///< protects the following members
    TestCameraCommands m_commands;
    TestCameraLog m_log;
    TestCameraBehaviour m_behaviour;
    Clock::time_point m_silentUntil;
    std::minstd_rand m_random;
    unsigned m_answers = 0;
    std::array<int, SocketCount> m_sockets{{-1, -1, -1, -1}};
    uint32_t m_ip = 0;
    uint32_t m_netmask = 0;
    uint32_t m_gateway = 0;
    uint64_t m_mac = 0;
    std::multimap<Clock::time_point, Packet> m_outgoing;
    std::vector<std::string> m_forcedIps;
    std::deque<std::function<void()>> m_tasks;
    int m_wake = -1;
    bool m_stop = false;
    std::thread m_thread;
};
