// SPDX-License-Identifier: MIT
#include "testcamera.h"

#include <poll.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <iostream>
#include <memory>
#include <sstream>
#include <stdexcept>

namespace {

using Cameras = std::vector<std::unique_ptr<TestCamera>>;

const char *const usage = R"(GigE Vision cameras that can be made to misbehave.

Usage: test-camera [OPTION]...
  --address IP            of the first camera (127.0.0.1)
  --count N               as many cameras, at consecutive addresses, with serials 1, 2, ...
  --adapter NAME          the network adapter to stay on
  --netmask IP  --gateway IP  --mac HEX
  --vendor TEXT  --model TEXT  --device-version TEXT  --serial TEXT  --user-name TEXT
  --description FILE      the GenICam description
  --name TEXT  --at ADDRESS   its name and address in the camera
  --zip                   it is zipped
  --url TEXT  --second-url TEXT   verbatim
  --no-concatenation      READREG and WRITEREG take one address only
  --unknown refused|zero|filled   registers that do not exist (zero)
  --fill                  small numbers in all registers of the description
  --heartbeat MS          until control is lost (3000)
  --broadcast             answer discovery and forced IP by broadcast
  --seconds N             end after this time; otherwise with SIGINT or SIGTERM
  --moods                 list the moods and end
Any number of these, which are also commands on standard input (without the dashes):
  --mood NAME[=VALUE]     in addition to the moods so far
  --set ADDRESS=VALUE     a register
  --two-views FIRST-LAST  READMEM sees the bytes of these registers in reverse order
  --refuse FIRST-LAST=STATUS
  --count-up ADDRESS=MS   grows by one with every interval
  --privilege VALUE       another client has control; 0: none
Further commands on standard input:
  good, unplug, plug, reconnect (plug, with control kept), get ADDRESS, counts (print and reset),
  log, quit
The counts are printed at the end. Numbers can be hexadecimal (0x...).
)";

struct Options
{
    TestCamera::Settings settings;
    unsigned count = 1;
    int seconds = -1;
    std::vector<std::pair<std::string, std::string>> commands;
};

uint32_t number(const std::string &text)
{
    std::size_t used = 0;
    const auto value = std::stoul(text, &used, 0);
    if (used != text.size())
        throw std::invalid_argument("Not a number: " + text);
    return static_cast<uint32_t>(value);
}

/// The texts before and after the first separator.
std::pair<std::string, std::string> split(const std::string &text, char separator)
{
    const auto at = text.find(separator);
    if (at == std::string::npos)
        return {text, std::string()};
    return {text.substr(0, at), text.substr(at + 1)};
}

std::string contentsOf(const std::string &file)
{
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
        throw std::runtime_error("Cannot read " + file);
    std::ostringstream contents;
    contents << stream.rdbuf();
    return contents.str();
}

TestCameraMemory::Unknown unknownRegisters(const std::string &name)
{
    using Unknown = TestCameraMemory::Unknown;
    if (name == "refused")
        return Unknown::Refused;
    if (name == "filled")
        return Unknown::Filled;
    if (name != "zero")
        throw std::invalid_argument("--unknown takes refused, zero or filled");
    return Unknown::Zero;
}

void refuse(TestCamera &camera, const std::string &value)
{
    const auto [range, status] = split(value, '=');
    const auto [first, last] = split(range, '-');
    TestCameraBehaviour behaviour = camera.behaviour();
    behaviour.refusals.push_back({number(first), number(last.empty() ? first : last),
                                  static_cast<uint16_t>(number(status))});
    camera.setBehaviour(behaviour);
}

/// Executes a command that changes a camera. Returns false if there is no such command.
bool change(TestCamera &camera, const std::string &command, const std::string &value)
{
    const auto [left, right] = split(value, '=');
    if (command == "mood")
        camera.addMood(left,
                       right.empty() ? testCameraMood(left).usual : std::stoi(right, nullptr, 0));
    else if (command == "set")
        camera.setRegister(number(left), number(right));
    else if (command == "two-views")
        camera.addTwoViews(number(split(value, '-').first), number(split(value, '-').second));
    else if (command == "refuse")
        refuse(camera, value);
    else if (command == "count-up")
        camera.countUp(number(left), static_cast<int>(number(right)));
    else if (command == "privilege")
        camera.setPrivilege(number(value));
    else
        return false;
    return true;
}

bool setText(TestCamera::Settings &s, const std::string &option, const std::string &value)
{
    const std::pair<const char *, std::string *> texts[] = {
        {"address", &s.address},        {"adapter", &s.adapter}, {"netmask", &s.netmask},
        {"gateway", &s.gateway},        {"vendor", &s.vendor},   {"model", &s.model},
        {"device-version", &s.version}, {"serial", &s.serial},   {"user-name", &s.userName},
        {"name", &s.descriptionName},   {"url", &s.url},         {"second-url", &s.secondUrl},
    };
    for (const auto &[name, text] : texts) {
        if (option == name) {
            *text = value;
            return true;
        }
    }
    return false;
}

bool setFlag(TestCamera::Settings &settings, const std::string &option)
{
    if (option == "zip")
        settings.isZipped = true;
    else if (option == "no-concatenation")
        settings.canConcatenate = false;
    else if (option == "fill")
        settings.fillsRegisters = true;
    else if (option == "broadcast")
        settings.broadcasts = true;
    else
        return false;
    return true;
}

Options parse(const std::vector<std::string> &arguments)
{
    Options options;
    TestCamera::Settings &settings = options.settings;
    settings.unknownRegisters = TestCameraMemory::Unknown::Zero;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (arguments[i].compare(0, 2, "--") != 0)
            throw std::invalid_argument("Unknown argument " + arguments[i]);
        const std::string option = arguments[i].substr(2);
        if (setFlag(settings, option))
            continue;
        if (++i == arguments.size())
            throw std::invalid_argument("Unknown option, or one without its value: --" + option);
        const std::string &value = arguments[i];
        if (setText(settings, option, value))
            continue;
        if (option == "count")
            options.count = number(value);
        else if (option == "mac")
            settings.mac = std::stoull(value, nullptr, 16);
        else if (option == "description")
            settings.description = contentsOf(value);
        else if (option == "at")
            settings.descriptionAddress = number(value);
        else if (option == "unknown")
            settings.unknownRegisters = unknownRegisters(value);
        else if (option == "heartbeat")
            settings.heartbeat = number(value);
        else if (option == "seconds")
            options.seconds = static_cast<int>(number(value));
        else
            options.commands.emplace_back(option, value);
    }
    return options;
}

std::string after(const std::string &address)
{
    const auto dot = address.rfind('.');
    return address.substr(0, dot + 1) + std::to_string(number(address.substr(dot + 1)) + 1);
}

Cameras start(const Options &options)
{
    Cameras cameras;
    TestCamera::Settings settings = options.settings;
    for (unsigned i = 0; i < options.count; ++i) {
        if (i > 0) {
            settings.address = after(settings.address);
            settings.mac += settings.mac ? 1 : 0;
        }
        if (options.count > 1)
            settings.serial = std::to_string(i + 1);
        cameras.push_back(std::make_unique<TestCamera>(settings));
        for (const auto &[command, value] : options.commands) {
            if (!change(*cameras.back(), command, value))
                throw std::invalid_argument("Unknown option --" + command);
        }
    }
    return cameras;
}

void printCounts(const Cameras &cameras)
{
    for (const auto &camera : cameras)
        std::cout << camera->address() << '\n' << camera->takeCounters().text();
    std::cout << std::flush;
}

void printLog(TestCamera &camera)
{
    for (const TestCamera::Access &access : camera.takeAccesses())
        std::printf("%u %04x 0x%08x %u%s\n", access.packet, unsigned(access.kind), access.address,
                    access.size, access.isLost ? " lost" : "");
    std::fflush(stdout);
}

/// Executes a line of standard input. Returns false if the program should end.
bool execute(const Cameras &cameras, const std::string &line)
{
    const auto [command, value] = split(line, ' ');
    if (command == "quit")
        return false;
    if (command == "counts") {
        printCounts(cameras);
        return true;
    }
    for (const auto &camera : cameras) {
        if (command == "good")
            camera->setMood("good");
        else if (command == "unplug")
            camera->unplug();
        else if (command == "plug" || command == "reconnect")
            camera->plugIn(command == "reconnect");
        else if (command == "get")
            std::cout << camera->reg(number(value)) << std::endl;
        else if (command == "log")
            printLog(*camera);
        else if (!command.empty() && !change(*camera, command, value))
            throw std::invalid_argument("Unknown command " + command);
    }
    return true;
}

/// Reads the available input and executes complete lines. Returns false at the end of the input.
bool readCommands(const Cameras &cameras, std::string &pending, bool &isRunning)
{
    char buffer[4096];
    const auto size = read(STDIN_FILENO, buffer, sizeof buffer);
    if (size <= 0)
        return false;
    pending.append(buffer, static_cast<std::size_t>(size));
    for (auto end = pending.find('\n'); end != std::string::npos && isRunning;
         end = pending.find('\n')) {
        try {
            isRunning = execute(cameras, pending.substr(0, end));
        } catch (const std::exception &error) {
            std::cerr << error.what() << std::endl;
        }
        pending.erase(0, end + 1);
    }
    return true;
}

void serve(const Cameras &cameras, int signals, int seconds)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(seconds);
    std::string pending;
    bool isRunning = true;
    pollfd polled[] = {{signals, POLLIN, 0}, {STDIN_FILENO, POLLIN, 0}};
    while (isRunning) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
            end - std::chrono::steady_clock::now());
        if (seconds >= 0 && left.count() <= 0)
            return;
        poll(polled, 2, seconds < 0 ? -1 : static_cast<int>(left.count()) + 1);
        if (polled[0].revents != 0)
            return;
        if (polled[1].revents != 0 && !readCommands(cameras, pending, isRunning))
            polled[1].fd = -1;
    }
}

int run(const std::vector<std::string> &arguments)
{
    const Options options = parse(arguments);
    sigset_t ending;
    sigemptyset(&ending);
    sigaddset(&ending, SIGINT);
    sigaddset(&ending, SIGTERM);
    sigprocmask(SIG_BLOCK, &ending, nullptr); // before any thread starts
    const int signals = signalfd(-1, &ending, SFD_CLOEXEC);
    const Cameras cameras = start(options);
    std::cout << "ready" << std::endl;
    serve(cameras, signals, options.seconds);
    printCounts(cameras);
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char **argv)
{
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (arguments == std::vector<std::string>{"--help"}) {
        std::cout << usage;
        return EXIT_SUCCESS;
    }
    if (arguments == std::vector<std::string>{"--moods"}) {
        for (const TestCameraMood &mood : testCameraMoods())
            std::cout << mood.name << '=' << mood.usual << "  " << mood.meaning << '\n';
        return EXIT_SUCCESS;
    }
    try {
        return run(arguments);
    } catch (const std::exception &error) {
        std::cerr << "test-camera: " << error.what() << std::endl;
        return EXIT_FAILURE;
    }
}
