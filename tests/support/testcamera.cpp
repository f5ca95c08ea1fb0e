// SPDX-License-Identifier: MIT
#include "testcamera.h"

#include "zipped.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <poll.h>
#include <sched.h>
#include <sys/eventfd.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <future>
#include <stdexcept>

namespace {

constexpr uint16_t gvcpPort = 3956;
constexpr std::size_t headerSize = 8;
constexpr uint32_t largestData = 540;   // of a command or an answer, in bytes
constexpr uint32_t largestMemory = 536; // of READMEM and WRITEMEM

constexpr uint16_t pendingAck = 0x0089;

enum Status : uint16_t {
    Success = 0,
    NotImplemented = 0x8001,
    InvalidParameter = 0x8002,
    InvalidAddress = 0x8003,
    WriteProtect = 0x8004,
    BadAlignment = 0x8005,
    AccessDenied = 0x8006,
    Busy = 0x8007,
    InvalidHeader = 0x800E,
    AnyError = 0x8FFF
};

enum Address : uint32_t {
    VersionRegister = 0x0000,
    DeviceMode = 0x0004,
    MacHigh = 0x0008,
    MacLow = 0x000C,
    IpOptions = 0x0010,
    IpConfiguration = 0x0014,
    CurrentIp = 0x0024,
    CurrentNetmask = 0x0034,
    CurrentGateway = 0x0044,
    Vendor = 0x0048,
    Model = 0x0068,
    DeviceVersion = 0x0088,
    ManufacturerInfo = 0x00A8,
    Serial = 0x00D8,
    UserName = 0x00E8,
    DiscoveryEnd = 0x00F8,
    FirstUrl = 0x0200,
    SecondUrl = 0x0400,
    Interfaces = 0x0600,
    PersistentIp = 0x064C,
    PersistentNetmask = 0x065C,
    PersistentGateway = 0x066C,
    ReadOnlyEnd = 0x0938,
    Capability = 0x0934,
    HeartbeatTimeout = 0x0938,
    Configuration = 0x0954,
    ControlPrivilege = 0x0A00,
};

uint32_t number(const std::string &bytes, std::size_t offset, std::size_t size)
{
    uint32_t value = 0;
    for (std::size_t i = 0; i < size; ++i)
        value = value << 8 | static_cast<uint8_t>(bytes[offset + i]);
    return value;
}

std::string bigEndian(uint32_t value, int size)
{
    std::string bytes;
    for (int shift = 8 * (size - 1); shift >= 0; shift -= 8)
        bytes += static_cast<char>(value >> shift);
    return bytes;
}

std::string header(uint16_t status, int kind, std::size_t size, uint16_t id)
{
    return bigEndian(status, 2) + bigEndian(static_cast<uint32_t>(kind), 2) +
           bigEndian(static_cast<uint32_t>(size), 2) + bigEndian(id, 2);
}

std::string inverted(std::string bytes, std::size_t from)
{
    for (std::size_t i = from; i < bytes.size(); ++i)
        bytes[i] = static_cast<char>(~bytes[i]);
    return bytes;
}

uint32_t ipFrom(const std::string &text)
{
    in_addr address{};
    if (inet_pton(AF_INET, text.c_str(), &address) != 1)
        throw std::runtime_error("Not an IPv4 address: " + text);
    return ntohl(address.s_addr);
}

sockaddr_in endpoint(uint32_t address, uint16_t port)
{
    sockaddr_in result{};
    result.sin_family = AF_INET;
    result.sin_port = htons(port);
    result.sin_addr.s_addr = htonl(address);
    return result;
}

[[noreturn]] void fail(const std::string &what)
{
    throw std::runtime_error(what + ": " + std::strerror(errno));
}

bool isTransfer(uint16_t kind)
{
    return kind >= TestCamera::ReadRegister && kind <= TestCamera::WriteMemory;
}

bool isWrite(uint16_t kind)
{
    return kind == TestCamera::WriteRegister || kind == TestCamera::WriteMemory;
}

bool isReadOnly(uint32_t address)
{
    for (uint32_t writable :
         {IpConfiguration, PersistentIp, PersistentNetmask, PersistentGateway}) {
        if (address == writable)
            return false;
    }
    return address < ReadOnlyEnd && (address < UserName || address >= DiscoveryEnd);
}

} // namespace

TestCamera::TestCamera(const Settings &settings) : m_settings(settings)
{
    m_ip = ipFrom(settings.address);
    const char *netmask = m_ip >> 24 == 127 ? "255.0.0.0" : "255.255.255.0";
    m_netmask = ipFrom(settings.netmask.empty() ? netmask : settings.netmask);
    m_gateway = ipFrom(settings.gateway);
    m_mac = settings.mac ? settings.mac : uint64_t(0x0200) << 32 | m_ip;
    setUpMemory();
    m_wake = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    m_thread = std::thread(&TestCamera::run, this);
    try {
        call([this] {
            enterNamespace();
            openSockets();
        });
    } catch (...) {
        stop();
        throw;
    }
}

TestCamera::~TestCamera()
{
    stop();
}

void TestCamera::stop()
{
    call([this] { m_stop = true; });
    m_thread.join();
    closeSockets();
    close(m_wake);
}

void TestCamera::setUpMemory()
{
    const Settings &s = m_settings;
    for (uint32_t address = 0; address < DiscoveryEnd; address += 4)
        m_memory.setWord(address, 0);
    m_memory.setWord(VersionRegister, 0x00020000);
    m_memory.setWord(DeviceMode, 0x80000001); // big endian, UTF-8
    m_memory.setWord(MacHigh, static_cast<uint32_t>(m_mac >> 32));
    m_memory.setWord(MacLow, static_cast<uint32_t>(m_mac));
    m_memory.setWord(IpOptions, 7);
    m_memory.setWord(IpConfiguration, 4);
    writeIpRegisters();
    m_memory.setText(Vendor, 32, s.vendor);
    m_memory.setText(Model, 32, s.model);
    m_memory.setText(DeviceVersion, 32, s.version);
    m_memory.setText(ManufacturerInfo, 48, s.manufacturerInfo);
    m_memory.setText(Serial, 16, s.serial);
    m_memory.setText(UserName, 16, s.userName);

    const std::string name = s.descriptionName + (s.isZipped ? ".zip" : "");
    const std::string held = s.isZipped ? zipped(s.descriptionName, s.description) : s.description;
    char url[64];
    std::snprintf(url, sizeof url, ";%X;%zX", s.descriptionAddress, held.size());
    m_memory.addBlock(s.descriptionAddress, held);
    m_memory.setText(FirstUrl, 512, s.url.empty() ? "Local:" + name + url : s.url);
    m_memory.setText(SecondUrl, 512, s.secondUrl);

    for (uint32_t address : {PersistentIp, PersistentNetmask, PersistentGateway})
        m_memory.setWord(address, 0);
    // Link speed; message and stream channels, their capabilities; tick frequency and timestamp;
    // configuration and the rest of the control block; message channel; stream channel.
    for (uint32_t address :
         {0x0670, 0x0900, 0x0904, 0x0908, 0x092C, 0x0930, 0x093C, 0x0940, 0x0944, 0x0948,
          0x094C, 0x0950, 0x0954, 0x0958, 0x095C, 0x0A00, 0x0A04, 0x0A14, 0x0B00, 0x0B10,
          0x0B14, 0x0B18, 0x0B1C, 0x0D00, 0x0D04, 0x0D08, 0x0D18, 0x0D1C})
        m_memory.setWord(address, 0);
    m_memory.setWord(Interfaces, 1);
    m_memory.setWord(0x0904, 1);
    m_memory.setWord(0x0D04, 1500);
    // User name, serial number, switching the heartbeat off, PENDING_ACK, WRITEMEM.
    m_memory.setWord(Capability, 0xE0000022 | (s.canConcatenate ? 1 : 0));
    m_memory.setWord(HeartbeatTimeout, s.heartbeat);
    if (s.fillsRegisters)
        m_memory.fill(s.description);
    m_memory.setUnknown(s.unknownRegisters);
}

void TestCamera::writeIpRegisters()
{
    m_memory.setWord(CurrentIp, m_ip);
    m_memory.setWord(CurrentNetmask, m_netmask);
    m_memory.setWord(CurrentGateway, m_gateway);
}

// Behaviour

void TestCamera::setBehaviour(const TestCameraBehaviour &behaviour)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_behaviour = behaviour;
    m_busy = behaviour.busy;
    m_random.seed(behaviour.seed);
    m_silentUntil = Clock::time_point();
    if (behaviour.silence != 0)
        m_silentUntil = behaviour.silence < 0
                            ? Clock::time_point::max()
                            : Clock::now() + std::chrono::milliseconds(behaviour.silence);
}

TestCameraBehaviour TestCamera::behaviour() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_behaviour;
}

void TestCamera::setMood(const std::string &name)
{
    setMood(name, testCameraMood(name).usual);
}

void TestCamera::setMood(const std::string &name, int value)
{
    TestCameraBehaviour behaviour;
    testCameraMood(name).apply(behaviour, value);
    setBehaviour(behaviour);
}

void TestCamera::addMood(const std::string &name, int value)
{
    TestCameraBehaviour present = behaviour();
    testCameraMood(name).apply(present, value);
    setBehaviour(present);
}

void TestCamera::unplug()
{
    call([this] {
        closeSockets();
        m_outgoing.clear();
    });
}

void TestCamera::plugIn(bool keepsControl)
{
    call([this, keepsControl] {
        if (!keepsControl)
            giveControl(0, {});
        closeSockets();
        openSockets();
    });
}

// Registers and control

uint32_t TestCamera::reg(uint32_t address)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    expireControl();
    return m_memory.word(address).value_or(0);
}

void TestCamera::setRegister(uint32_t address, uint32_t value)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_memory.setWord(address, value);
}

std::string TestCamera::bytes(uint32_t address, uint32_t size)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_memory.bytes(address, size).value_or(std::string()).substr(0, size);
}

void TestCamera::setBytes(uint32_t address, const std::string &bytes)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_memory.setBytes(address, bytes);
}

void TestCamera::addBlock(uint32_t address, const std::string &bytes)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_memory.addBlock(address, bytes);
}

void TestCamera::addTwoViews(uint32_t first, uint32_t last)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_memory.addTwoViews(first, last);
}

void TestCamera::countUp(uint32_t address, int milliseconds, uint32_t step)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_memory.countUp(address, std::chrono::milliseconds(milliseconds), step);
}

void TestCamera::changeLater(int milliseconds, uint32_t address, uint32_t value)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_memory.changeLater(std::chrono::milliseconds(milliseconds), address, value);
}

uint32_t TestCamera::privilege()
{
    return reg(ControlPrivilege);
}

void TestCamera::setPrivilege(uint32_t privilege)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    giveControl(privilege, {});
}

void TestCamera::giveControl(uint32_t privilege, const sockaddr_in &controller)
{
    m_privilege = privilege;
    m_controller = controller;
    m_memory.setWord(ControlPrivilege, privilege);
}

bool TestCamera::isController(const sockaddr_in &from) const
{
    return m_privilege != 0 && from.sin_addr.s_addr == m_controller.sin_addr.s_addr &&
           from.sin_port == m_controller.sin_port;
}

void TestCamera::expireControl()
{
    const bool isEndless =
        m_controller.sin_port == 0 || (m_memory.word(Configuration).value_or(0) & 1) != 0;
    const std::chrono::milliseconds timeout(m_memory.word(HeartbeatTimeout).value_or(0));
    if (m_privilege != 0 && !isEndless && Clock::now() - m_lastHeard > timeout)
        giveControl(0, {});
}

// Counters

TestCamera::Counters TestCamera::counters() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_counters;
}

TestCamera::Counters TestCamera::takeCounters()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return std::exchange(m_counters, {});
}

std::vector<TestCamera::Access> TestCamera::takeAccesses()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return std::exchange(m_accesses, {});
}

std::vector<std::string> TestCamera::forcedIps() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_forcedIps;
}

std::string TestCamera::address() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    char text[INET_ADDRSTRLEN] = "";
    const in_addr address = endpoint(m_ip, 0).sin_addr;
    inet_ntop(AF_INET, &address, text, sizeof text);
    return text;
}

std::string TestCamera::Counters::text() const
{
    std::string result;
    const auto add = [&result](const char *name, unsigned value) {
        if (value > 0)
            result += std::string(name) + ' ' + std::to_string(value) + '\n';
    };
    add("packets", packets);
    add("discovery", discovery);
    add("forceIp", forceIp);
    add("packetResend", packetResend);
    add("readRegister", readRegister);
    add("writeRegister", writeRegister);
    add("readMemory", readMemory);
    add("writeMemory", writeMemory);
    add("other", other);
    add("heartbeats", heartbeats);
    add("registersRead", registersRead);
    add("registersWritten", registersWritten);
    add("bytesRead", bytesRead);
    add("bytesWritten", bytesWritten);
    add("repetitions", repetitions);
    add("lostRequests", lostRequests);
    add("lostAnswers", lostAnswers);
    add("refused", refused);
    add("sent", sent);
    return result;
}

// The thread

void TestCamera::call(const std::function<void()> &task)
{
    std::packaged_task<void()> wrapped(task);
    auto done = wrapped.get_future();
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_tasks.push_back([&wrapped] { wrapped(); });
    }
    eventfd_write(m_wake, 1);
    done.get();
}

void TestCamera::run()
{
    prctl(PR_SET_TIMERSLACK, 1000UL); // a delay of 1 ms is not to become 1.05 ms
    std::unique_lock<std::mutex> lock(m_mutex);
    for (;;) {
        while (!m_tasks.empty()) {
            const auto task = std::move(m_tasks.front());
            m_tasks.pop_front();
            task();
        }
        if (m_stop)
            return;
        sendDue();

        std::array<pollfd, SocketCount + 1> polled{};
        for (std::size_t i = 0; i < SocketCount; ++i)
            polled[i] = {m_sockets[i], POLLIN, 0};
        polled[SocketCount] = {m_wake, POLLIN, 0};
        timespec wait{};
        if (!m_outgoing.empty()) {
            const auto left = std::max(m_outgoing.begin()->first - Clock::now(), Clock::duration());
            const auto ns = std::chrono::nanoseconds(left).count();
            wait = {ns / 1000000000, ns % 1000000000};
        }
        const bool isIdle = m_outgoing.empty();
        lock.unlock();
        ppoll(polled.data(), polled.size(), isIdle ? nullptr : &wait, nullptr);
        lock.lock();
        eventfd_t count = 0;
        eventfd_read(m_wake, &count);
        for (std::size_t i = 0; i < SocketCount; ++i) {
            if (polled[i].revents != 0)
                receive(static_cast<Socket>(i));
        }
    }
}

void TestCamera::enterNamespace() const
{
    if (m_settings.networkNamespace.empty())
        return;
    const int file = open(m_settings.networkNamespace.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0 || setns(file, CLONE_NEWNET) != 0)
        fail("The namespace " + m_settings.networkNamespace);
    close(file);
}

/// -1 when this machine does not have the address.
int TestCamera::openSocket(uint32_t address, uint16_t port) const
{
    const int made = socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    const int on = 1;
    setsockopt(made, SOL_SOCKET, SO_BROADCAST, &on, sizeof on);
    const bool isShared = port != 0 && address != m_ip;
    if (isShared)
        setsockopt(made, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    const std::string &adapter = m_settings.adapter;
    if (!adapter.empty() && setsockopt(made, SOL_SOCKET, SO_BINDTODEVICE, adapter.c_str(),
                                       static_cast<socklen_t>(adapter.size())) != 0) {
        close(made);
        fail("The network adapter " + adapter);
    }
    const sockaddr_in local = endpoint(address, port);
    if (bind(made, reinterpret_cast<const sockaddr *>(&local), sizeof local) == 0)
        return made;
    const int error = errno;
    close(made);
    if (error == EADDRNOTAVAIL)
        return -1;
    errno = error;
    fail("The address " + std::string(inet_ntoa(local.sin_addr)));
}

void TestCamera::openSockets()
{
    m_sockets[Unicast] = openSocket(m_ip, gvcpPort);
    // Linux gives a broadcast to sockets with this very address, not to those with the machine's.
    m_sockets[Broadcast] = openSocket(INADDR_BROADCAST, gvcpPort);
    m_sockets[SubnetBroadcast] = openSocket(m_ip | ~m_netmask, gvcpPort);
    m_sockets[Foreign] = openSocket(m_sockets[Unicast] < 0 ? INADDR_ANY : m_ip, 0);
}

void TestCamera::closeSockets()
{
    for (int &socket : m_sockets) {
        if (socket >= 0)
            close(socket);
        socket = -1;
    }
}

void TestCamera::receive(Socket socket)
{
    std::array<char, 65536> buffer;
    for (int i = 0; i < 64 && m_sockets[socket] >= 0; ++i) { // answers get their turn, too
        sockaddr_in from{};
        socklen_t length = sizeof from;
        const auto size = recvfrom(m_sockets[socket], buffer.data(), buffer.size(), 0,
                                   reinterpret_cast<sockaddr *>(&from), &length);
        if (size < 0)
            return;
        handle(std::string(buffer.data(), static_cast<std::size_t>(size)), from, socket);
    }
}

void TestCamera::sendDue()
{
    while (!m_outgoing.empty() && m_outgoing.begin()->first <= Clock::now()) {
        const Packet packet = std::move(m_outgoing.begin()->second);
        m_outgoing.erase(m_outgoing.begin());
        if (Clock::now() < m_silentUntil) {
            ++m_counters.lostAnswers;
            continue;
        }
        ++m_counters.sent;
        sendto(m_sockets[packet.socket], packet.bytes.data(), packet.bytes.size(), 0,
               reinterpret_cast<const sockaddr *>(&packet.to), sizeof packet.to);
    }
}

// Commands

void TestCamera::handle(const std::string &packet, const sockaddr_in &from, Socket socket)
{
    ++m_counters.packets;
    if (packet.size() < headerSize || packet[0] != 0x42) {
        ++m_counters.other;
        return;
    }
    const bool isAcknowledged = (packet[1] & 0x01) != 0;
    const bool mayBroadcast = (packet[1] & 0x10) != 0;
    Command command{static_cast<uint16_t>(number(packet, 2, 2)),
                    static_cast<uint16_t>(number(packet, 6, 2)), packet.substr(headerSize), from,
                    socket};
    const bool lost = Clock::now() < m_silentUntil || isLost(m_behaviour.requestLoss);
    count(command, lost);
    if (lost || command.kind == PacketResend)
        return;
    expireControl();
    if (isController(from))
        m_lastHeard = Clock::now();

    const bool isOurs = command.kind != ForceIpCommand ||
                        (command.data.size() == 56 && number(command.data, 2, 2) == m_mac >> 32 &&
                         number(command.data, 4, 4) == static_cast<uint32_t>(m_mac));
    if (!isOurs)
        return;
    const bool isWhole = number(packet, 4, 2) == command.data.size();
    const Answer answer = isWhole ? execute(command) : Answer{InvalidHeader, {}};
    if (!isTransfer(command.kind)) {
        const bool isForeign = ((ntohl(from.sin_addr.s_addr) ^ m_ip) & m_netmask) != 0;
        if (m_settings.broadcasts || (mayBroadcast && isForeign))
            command.from.sin_addr.s_addr = INADDR_BROADCAST;
    }
    if (isAcknowledged)
        reply(command, answer);
    if (command.kind == ForceIpCommand && answer.status == Success && forceIp(command)) {
        sendDue();
        closeSockets();
        openSockets();
    }
}

void TestCamera::count(const Command &command, bool lost)
{
    const std::string &data = command.data;
    const auto id = std::to_string(command.from.sin_addr.s_addr) + ':' +
                    std::to_string(command.from.sin_port) + ' ' + std::to_string(command.kind) +
                    ' ' + std::to_string(command.id);
    if (std::find(m_lastCommands.begin(), m_lastCommands.end(), id) != m_lastCommands.end())
        ++m_counters.repetitions;
    m_lastCommands.push_back(id);
    if (m_lastCommands.size() > 16)
        m_lastCommands.pop_front();
    m_counters.lostRequests += lost ? 1 : 0;

    const unsigned packet = m_counters.packets;
    const auto note = [&](std::size_t offset, std::size_t size) {
        m_accesses.push_back({static_cast<Kind>(command.kind), number(data, offset, 4),
                              static_cast<uint32_t>(size), packet, lost});
    };
    switch (command.kind) {
    case Discovery:
        ++m_counters.discovery;
        break;
    case ForceIpCommand:
        ++m_counters.forceIp;
        break;
    case PacketResend:
        ++m_counters.packetResend;
        break;
    case ReadRegister:
        ++m_counters.readRegister;
        if (data.size() == 4 && number(data, 0, 4) == ControlPrivilege) {
            ++m_counters.heartbeats;
            break;
        }
        for (std::size_t i = 0; i + 4 <= data.size(); i += 4)
            note(i, 4);
        m_counters.registersRead += static_cast<unsigned>(data.size() / 4);
        break;
    case WriteRegister:
        ++m_counters.writeRegister;
        for (std::size_t i = 0; i + 8 <= data.size(); i += 8)
            note(i, 4);
        m_counters.registersWritten += static_cast<unsigned>(data.size() / 8);
        break;
    case ReadMemory:
        ++m_counters.readMemory;
        if (data.size() == 8) {
            note(0, number(data, 6, 2));
            m_counters.bytesRead += number(data, 6, 2);
        }
        break;
    case WriteMemory:
        ++m_counters.writeMemory;
        if (data.size() > 4) {
            note(0, data.size() - 4);
            m_counters.bytesWritten += static_cast<unsigned>(data.size() - 4);
        }
        break;
    default:
        ++m_counters.other;
    }
}

TestCamera::Answer TestCamera::execute(const Command &command)
{
    if (isTransfer(command.kind)) {
        if (m_behaviour.refuseAll != Success)
            return {m_behaviour.refuseAll, {}};
        if (m_busy > 0) {
            --m_busy;
            return {Busy, {}};
        }
    }
    switch (command.kind) {
    case Discovery:
        return {Success, m_memory.bytes(0, DiscoveryEnd).value_or(std::string())};
    case ForceIpCommand:
        m_forcedIps.push_back(command.data);
        if (m_behaviour.forceIp == TestCameraBehaviour::ForceIp::Refused)
            return {AccessDenied, {}};
        return {};
    case ReadRegister:
        return readRegisters(command);
    case WriteRegister:
        return writeRegisters(command);
    case ReadMemory:
        return readMemory(command);
    case WriteMemory:
        return writeMemory(command);
    default:
        return {NotImplemented, {}};
    }
}

TestCamera::Answer TestCamera::readRegisters(const Command &command)
{
    const std::size_t size = command.data.size();
    if (size == 0 || size % 4 != 0 || size > largestData ||
        (size > 4 && !m_settings.canConcatenate))
        return {InvalidParameter, {}};
    if (size > 4 && m_behaviour.refuseBatches != Success)
        return {m_behaviour.refuseBatches, {}};
    Answer answer;
    for (std::size_t i = 0; i < size; i += 4) {
        const uint32_t address = number(command.data, i, 4);
        answer.status = refusal(address, false, command.from);
        if (answer.status != Success)
            break; // what has been read is in the answer
        answer.data += bigEndian(m_memory.word(address).value_or(0), 4);
    }
    return answer;
}

TestCamera::Answer TestCamera::writeRegisters(const Command &command)
{
    const std::size_t size = command.data.size();
    if (size == 0 || size % 8 != 0 || size > largestData ||
        (size > 8 && !m_settings.canConcatenate))
        return {InvalidParameter, bigEndian(0, 4)};
    if (size > 8 && m_behaviour.refuseBatches != Success)
        return {m_behaviour.refuseBatches, bigEndian(0, 4)};
    Answer answer;
    uint32_t done = 0;
    for (; answer.status == Success && done < size / 8; done += answer.status == Success ? 1 : 0)
        answer.status = writeWord(number(command.data, done * 8, 4),
                                  number(command.data, done * 8 + 4, 4), command.from);
    answer.data = bigEndian(done, 4);
    return answer;
}

TestCamera::Answer TestCamera::readMemory(const Command &command)
{
    if (command.data.size() != 8)
        return {InvalidHeader, {}};
    const uint32_t address = number(command.data, 0, 4);
    const uint32_t size = number(command.data, 6, 2);
    if (size == 0 || size % 4 != 0 || size > largestMemory ||
        (size > m_behaviour.largestRead && !m_memory.isBlock(address)))
        return {InvalidParameter, {}};
    for (uint32_t i = 0; i < size; i += 4) {
        const uint16_t status = refusal(address + i, false, command.from);
        if (status != Success)
            return {status, {}};
    }
    return {Success, bigEndian(address, 4) + m_memory.bytes(address, size).value_or(std::string())};
}

TestCamera::Answer TestCamera::writeMemory(const Command &command)
{
    const std::string &data = command.data;
    if (data.size() < 8 || data.size() % 4 != 0 || data.size() - 4 > largestMemory)
        return {InvalidParameter, bigEndian(0, 4)};
    const uint32_t address = number(data, 0, 4);
    Answer answer;
    uint32_t done = 0;
    for (; done < data.size() - 4 && answer.status == Success; done += 4) {
        answer.status = refusal(address + done, true, command.from);
        if (answer.status != Success)
            break;
        if (address + done == ControlPrivilege || address + done == HeartbeatTimeout)
            answer.status = writeWord(address + done, number(data, 4 + done, 4), command.from);
        else
            m_memory.setBytes(address + done, data.substr(4 + done, 4));
    }
    answer.data = bigEndian(done, 4);
    return answer;
}

uint16_t TestCamera::refusal(uint32_t address, bool isWriting, const sockaddr_in &from) const
{
    if (address % 4 != 0)
        return BadAlignment;
    const bool isOthers = m_privilege != 0 && !isController(from);
    if (isOthers && (isWriting || m_privilege == 1))
        return AccessDenied;
    if (isWriting && m_privilege == 0 && address != ControlPrivilege)
        return AccessDenied;
    for (const auto &range : m_behaviour.refusals) {
        if (range.first <= address && address <= range.last &&
            (isWriting ? range.writes : range.reads))
            return range.status;
    }
    if (!m_memory.has(address))
        return InvalidAddress;
    return isWriting && (isReadOnly(address) || m_memory.isBlock(address)) ? WriteProtect : Success;
}

uint16_t TestCamera::writeWord(uint32_t address, uint32_t value, const sockaddr_in &from)
{
    const uint16_t status = refusal(address, true, from);
    if (status != Success)
        return status;
    if (address == ControlPrivilege)
        return writeControl(value, from);
    m_memory.setWord(address, address == HeartbeatTimeout ? std::max(value, 500u) : value);
    return Success;
}

uint16_t TestCamera::writeControl(uint32_t value, const sockaddr_in &from)
{
    if (value > 3)
        return InvalidParameter;
    giveControl((value & 1) != 0 ? 1 : value, from);
    m_lastHeard = Clock::now();
    return Success;
}

/// Whether the camera has another address now.
bool TestCamera::forceIp(const Command &command)
{
    if (m_behaviour.forceIp == TestCameraBehaviour::ForceIp::Fatal) {
        sendDue();
        m_silentUntil = Clock::time_point::max();
    }
    const uint32_t ip = number(command.data, 20, 4);
    if (m_behaviour.forceIp != TestCameraBehaviour::ForceIp::Obeyed || ip == 0)
        return false;
    m_ip = ip;
    m_netmask = number(command.data, 36, 4);
    m_gateway = number(command.data, 52, 4);
    writeIpRegisters();
    return true;
}

// Answers

void TestCamera::reply(const Command &command, const Answer &answer)
{
    using std::chrono::milliseconds;
    const TestCameraBehaviour &mood = m_behaviour;
    m_counters.refused += answer.status == Success ? 0 : 1;
    auto due = Clock::now() + milliseconds(mood.delay);
    if (isWrite(command.kind))
        due += milliseconds(mood.writeDelay);
    if (m_answers++ % 2 == 0)
        due += milliseconds(mood.reorder);
    const Socket socket = m_sockets[Unicast] < 0 ? command.socket : Unicast;

    if (isTransfer(command.kind)) {
        for (int i = 0; i < mood.pending; ++i) {
            send(due, command,
                 header(Success, pendingAck, 4, command.id) +
                     bigEndian(static_cast<uint32_t>(mood.pendingTime), 4),
                 socket);
            due += milliseconds(mood.pendingTime * 3 / 4);
        }
        if (mood.isPendingForever)
            return;
    }
    const std::string good =
        header(answer.status, command.kind + 1, answer.data.size(), command.id) + answer.data;
    for (int i = 0; i < mood.garbage; ++i) {
        std::string noise = i % 3 == 0 ? good.substr(0, headerSize) : std::string();
        for (auto left = m_random() % 500; left > 0; --left)
            noise += static_cast<char>(m_random() >> 8);
        send(due, command, noise, socket);
    }
    for (unsigned fault = 1; fault <= TestCameraBehaviour::ForeignPort; fault <<= 1) {
        if ((mood.faults & fault) != 0)
            send(due, command, faulty(fault, command, answer),
                 fault == TestCameraBehaviour::ForeignPort ? Foreign : socket);
    }
    if (mood.faults != 0 && !mood.isGoodAfter)
        return;
    for (int i = 0; i <= mood.duplicates; ++i)
        send(due, command, good, socket);
}

std::string TestCamera::faulty(unsigned fault, const Command &command, const Answer &answer)
{
    using Behaviour = TestCameraBehaviour;
    // The address of READMEM stays, or a client could tell by it.
    const std::string data = inverted(answer.data, command.kind == ReadMemory ? 4 : 0);
    const std::size_t size = data.size();
    const int kind = command.kind + 1;
    const auto plain = [&](int answerKind, uint16_t id) {
        return header(answer.status, answerKind, size, id) + data;
    };
    switch (fault) {
    case Behaviour::WrongId:
        return plain(kind, command.id ^ 0x5555);
    case Behaviour::WrongCommand:
        return plain(kind + 2, command.id);
    case Behaviour::ErrorStatus:
        return header(AnyError, kind, size, command.id) + data;
    case Behaviour::ShortAnswer: {
        const std::size_t less = size < 4 ? 0 : size - 4;
        return header(answer.status, kind, less, command.id) + data.substr(0, less);
    }
    case Behaviour::LongAnswer:
        return header(answer.status, kind, size + 4, command.id) + data + "long";
    case Behaviour::WrongLength:
        return header(answer.status, kind, size + 4, command.id) + data;
    case Behaviour::TruncatedAnswer:
        return plain(kind, command.id).substr(0, headerSize + size - 1);
    case Behaviour::TruncatedHeader:
        return plain(kind, command.id).substr(0, 5);
    default:
        return plain(kind, command.id);
    }
}

void TestCamera::send(Clock::time_point due, const Command &command, const std::string &bytes,
                      Socket socket)
{
    if (isLost(m_behaviour.answerLoss)) {
        ++m_counters.lostAnswers;
        return;
    }
    m_outgoing.emplace(due, Packet{socket, command.from, bytes});
}

bool TestCamera::isLost(int perCent)
{
    return perCent > 0 && static_cast<int>(m_random() >> 8) % 100 < perCent;
}
