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
#include <memory>
#include <stdexcept>

using namespace TestGvcp;

namespace {

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

} // namespace

TestCamera::TestCamera(const Settings &settings)
    : m_settings(settings), m_commands(settings.canConcatenate)
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
    TestCameraMemory &memory = m_commands.memory;
    for (uint32_t address = 0; address < DiscoveryEnd; address += 4)
        memory.setWord(address, 0);
    memory.setWord(VersionRegister, 0x00020000);
    memory.setWord(DeviceMode, 0x80000001); // big endian, UTF-8
    memory.setWord(MacHigh, static_cast<uint32_t>(m_mac >> 32));
    memory.setWord(MacLow, static_cast<uint32_t>(m_mac));
    memory.setWord(IpOptions, 7);
    memory.setWord(IpConfiguration, 4);
    writeIpRegisters();
    memory.setText(Vendor, 32, s.vendor);
    memory.setText(Model, 32, s.model);
    memory.setText(DeviceVersion, 32, s.version);
    memory.setText(ManufacturerInfo, 48, s.manufacturerInfo);
    memory.setText(Serial, 16, s.serial);
    memory.setText(UserName, 16, s.userName);

    const std::string name = s.descriptionName + (s.isZipped ? ".zip" : "");
    const std::string held =
        s.isZipped ? zipped({{s.descriptionName, s.description}}) : s.description;
    char url[64];
    std::snprintf(url, sizeof url, ";%X;%zX", s.descriptionAddress, held.size());
    memory.addBlock(s.descriptionAddress, held);
    memory.setText(FirstUrl, 512, s.url.empty() ? "Local:" + name + url : s.url);
    memory.setText(SecondUrl, 512, s.secondUrl);

    for (uint32_t address : {PersistentIp, PersistentNetmask, PersistentGateway})
        memory.setWord(address, 0);
    // Link speed; message and stream channels, their capabilities; tick frequency and timestamp;
    // configuration and the rest of the control block; message channel; stream channel.
    for (uint32_t address :
         {0x0670, 0x0900, 0x0904, 0x0908, 0x092C, 0x0930, 0x093C, 0x0940, 0x0944, 0x0948,
          0x094C, 0x0950, 0x0954, 0x0958, 0x095C, 0x0A00, 0x0A04, 0x0A14, 0x0B00, 0x0B10,
          0x0B14, 0x0B18, 0x0B1C, 0x0D00, 0x0D04, 0x0D08, 0x0D18, 0x0D1C})
        memory.setWord(address, 0);
    memory.setWord(Interfaces, 1);
    memory.setWord(0x0904, 1);
    memory.setWord(0x0D04, 1500);
    // User name, serial number, disabling the heartbeat, PENDING_ACK, WRITEMEM.
    memory.setWord(Capability, 0xE0000022 | (s.canConcatenate ? 1 : 0));
    memory.setWord(HeartbeatTimeout, s.heartbeat);
    if (s.fillsRegisters)
        memory.fill(s.description);
    memory.setUnknown(s.unknownRegisters);
}

void TestCamera::writeIpRegisters()
{
    m_commands.memory.setWord(CurrentIp, m_ip);
    m_commands.memory.setWord(CurrentNetmask, m_netmask);
    m_commands.memory.setWord(CurrentGateway, m_gateway);
}

// Behaviour

void TestCamera::setBehaviour(const TestCameraBehaviour &behaviour)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_behaviour = behaviour;
    m_commands.setBehaviour(behaviour);
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
            m_commands.giveControl(0);
        closeSockets();
        openSockets();
    });
}

// Registers and control

uint32_t TestCamera::reg(uint32_t address)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_commands.checkHeartbeat();
    return m_commands.memory.word(address).value_or(0);
}

void TestCamera::setRegister(uint32_t address, uint32_t value)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_commands.memory.setWord(address, value);
}

std::string TestCamera::bytes(uint32_t address, uint32_t size)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_commands.memory.bytes(address, size).value_or(std::string()).substr(0, size);
}

void TestCamera::setBytes(uint32_t address, const std::string &bytes)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_commands.memory.setBytes(address, bytes);
}

void TestCamera::addBlock(uint32_t address, const std::string &bytes)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_commands.memory.addBlock(address, bytes);
}

void TestCamera::addTwoViews(uint32_t first, uint32_t last)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_commands.memory.addTwoViews(first, last);
}

void TestCamera::countUp(uint32_t address, int milliseconds, uint32_t step)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_commands.memory.countUp(address, std::chrono::milliseconds(milliseconds), step);
}

uint32_t TestCamera::privilege()
{
    return reg(ControlPrivilege);
}

void TestCamera::setPrivilege(uint32_t privilege)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_commands.giveControl(privilege);
}

// Counters

TestCameraCounters TestCamera::counters() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_log.counters;
}

TestCameraCounters TestCamera::takeCounters()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return std::exchange(m_log.counters, {});
}

std::vector<TestCameraAccess> TestCamera::takeAccesses()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return std::exchange(m_log.accesses, {});
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

// The thread

void TestCamera::call(const std::function<void()> &task)
{
    const auto wrapped = std::make_shared<std::packaged_task<void()>>(task);
    auto done = wrapped->get_future();
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_tasks.emplace_back([wrapped] { (*wrapped)(); });
    }
    eventfd_write(m_wake, 1);
    done.get();
}

void TestCamera::run()
{
    prctl(PR_SET_TIMERSLACK, 1000UL); // otherwise a delay of 1 ms becomes 1.05 ms
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

/// -1 if this machine does not have the address.
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
    const auto bindIt = [&] {
        return bind(made, reinterpret_cast<const sockaddr *>(&local), sizeof local);
    };
    if (bindIt() == 0)
        return made;
    // A camera answers from its own address, even if that address cannot be reached.
    if (errno == EADDRNOTAVAIL && setsockopt(made, SOL_IP, IP_TRANSPARENT, &on, sizeof on) == 0 &&
        bindIt() == 0)
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
    // Linux delivers broadcasts only to sockets bound to the broadcast address, not to the
    // machine's.
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
    for (int i = 0; i < 64 && m_sockets[socket] >= 0; ++i) { // lets answers be sent
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
            ++m_log.counters.lostAnswers;
            continue;
        }
        ++m_log.counters.sent;
        sendto(m_sockets[packet.socket], packet.bytes.data(), packet.bytes.size(), 0,
               reinterpret_cast<const sockaddr *>(&packet.to), sizeof packet.to);
    }
}

// Commands

void TestCamera::handle(const std::string &packet, const sockaddr_in &from, Socket socket)
{
    ++m_log.counters.packets;
    if (packet.size() < headerSize || packet[0] != 0x42) {
        ++m_log.counters.other;
        return;
    }
    const bool isAcknowledged = (packet[1] & 0x01) != 0;
    const bool mayBroadcast = (packet[1] & 0x10) != 0;
    Command command{static_cast<uint16_t>(number(packet, 2, 2)),
                    static_cast<uint16_t>(number(packet, 6, 2)), packet.substr(headerSize), from,
                    socket};
    const bool lost = Clock::now() < m_silentUntil || isLost(m_behaviour.requestLoss);
    m_log.add(std::to_string(from.sin_addr.s_addr) + ':' + std::to_string(from.sin_port) + ' ',
              command.kind, command.id, command.data, lost);
    if (lost || command.kind == PacketResend)
        return;
    m_commands.checkHeartbeat(from);

    const bool isOurs = command.kind != ForceIp ||
                        (command.data.size() == 56 && number(command.data, 2, 2) == m_mac >> 32 &&
                         number(command.data, 4) == static_cast<uint32_t>(m_mac));
    if (!isOurs)
        return;
    const bool isWhole = number(packet, 4, 2) == command.data.size();
    const Answer answer =
        isWhole ? m_commands.execute(command.kind, command.data, from) : Answer{InvalidHeader, {}};
    if (command.kind == ForceIp)
        m_forcedIps.push_back(command.data);
    if (!isTransfer(command.kind)) {
        const bool isForeign = ((ntohl(from.sin_addr.s_addr) ^ m_ip) & m_netmask) != 0;
        if (m_settings.broadcasts || (mayBroadcast && isForeign))
            command.from.sin_addr.s_addr = INADDR_BROADCAST;
    }
    if (isAcknowledged)
        reply(command, answer);
    if (command.kind == ForceIp && answer.status == Success)
        forceIp(command);
}

void TestCamera::forceIp(const Command &command)
{
    sendDue(); // the acknowledge comes from the former address
    if (m_behaviour.forceIp == TestCameraBehaviour::ForceIp::Fatal)
        m_silentUntil = Clock::time_point::max();
    const uint32_t ip = number(command.data, 20);
    if (m_behaviour.forceIp != TestCameraBehaviour::ForceIp::Obeyed || ip == 0)
        return;
    m_ip = ip;
    m_netmask = number(command.data, 36);
    m_gateway = number(command.data, 52);
    writeIpRegisters();
    closeSockets();
    try {
        openSockets();
    } catch (const std::runtime_error &) {
        closeSockets(); // another camera has the address, so this one cannot be reached
    }
}

// Answers

void TestCamera::reply(const Command &command, const Answer &answer)
{
    using std::chrono::milliseconds;
    const TestCameraBehaviour &mood = m_behaviour;
    m_log.counters.refused += answer.status == Success ? 0 : 1;
    auto due = Clock::now() + milliseconds(mood.delay);
    if (isWrite(command.kind))
        due += milliseconds(mood.writeDelay);
    if (m_answers++ % 2 == 0)
        due += milliseconds(mood.reorder);
    const Socket socket = m_sockets[Unicast] < 0 ? command.socket : Unicast;

    if (isTransfer(command.kind)) {
        for (int i = 0; i < mood.pending; ++i) {
            send(due, command,
                 answerHeader(Success, PendingAck, 4, command.id) +
                     bytesOf(static_cast<uint32_t>(mood.pendingTime)),
                 socket);
            due += milliseconds(mood.pendingTime * 3 / 4);
        }
        if (mood.isPendingForever)
            return;
    }
    const std::string good =
        answerHeader(answer.status, command.kind + 1, answer.data.size(), command.id) + answer.data;
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
    // The address in READMEM is not inverted: a client must not detect the byte order from it.
    const std::string data = inverted(answer.data, command.kind == ReadMemory ? 4 : 0);
    const std::size_t size = data.size();
    const int kind = command.kind + 1;
    const auto plain = [&](int answerKind, uint16_t id) {
        return answerHeader(answer.status, answerKind, size, id) + data;
    };
    switch (fault) {
    case Behaviour::WrongId:
        return plain(kind, command.id ^ 0x5555);
    case Behaviour::WrongCommand:
        return plain(kind + 2, command.id);
    case Behaviour::ErrorStatus:
        return answerHeader(AnyError, kind, size, command.id) + data;
    case Behaviour::ShortAnswer: {
        const std::size_t less = size < 4 ? 0 : size - 4;
        return answerHeader(answer.status, kind, less, command.id) + data.substr(0, less);
    }
    case Behaviour::LongAnswer:
        return answerHeader(answer.status, kind, size + 4, command.id) + data + "long";
    case Behaviour::WrongLength:
        return answerHeader(answer.status, kind, size + 4, command.id) + data;
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
        ++m_log.counters.lostAnswers;
        return;
    }
    m_outgoing.emplace(due, Packet{socket, command.from, bytes});
}

bool TestCamera::isLost(int perCent)
{
    return perCent > 0 && static_cast<int>(m_random() >> 8) % 100 < perCent;
}
