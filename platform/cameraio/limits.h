// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>

/// Limits for cameras and descriptions. Anything beyond them is refused with a message.
namespace OrvCameraIo::Limits {

// A description

/// The longest description, unpacked, in bytes. The largest known real one has 4 MB.
constexpr std::size_t descriptionSize = 64u << 20;

/// The longest description as the camera sends it, compressed or not.
constexpr std::size_t downloadSize = 64u << 20;

/// The most files and folders in a compressed description.
constexpr std::size_t archiveEntries = 100;

/// The number and the total size in bytes of cached descriptions; those used longest ago are
/// removed.
constexpr std::size_t keptDescriptions = 100;
constexpr uint64_t keptSize = 256u << 20;

/// The most nodes of a description, including entries of enumerations. Real ones have some
/// thousand; this many use some 0.4 GB.
constexpr std::size_t nodeCount = 250000;

/// The most entries of an enumeration, which become one list. Real ones have some hundred.
constexpr std::size_t entryCount = 4096;

/// The most valid values of a number, for the same reason; a number with more is unusable.
constexpr std::size_t validValueCount = 4096;

/// The most elements inside nodes; those of a structured register count for each of its entries.
constexpr std::size_t elementCount = 2000000;

/// The deepest nesting of elements; the standard needs 6.
constexpr int elementDepth = 32;

/// The deepest nesting of categories; deeper ones are left out, as are entries that would give a
/// category more rows than a description may have nodes.
constexpr int categoryDepth = 64;

/// The longest chain of references that is followed to read a node.
constexpr int referenceDepth = 256;

/// The most nodes that are read for one value, including repeated reads; otherwise the node has no
/// value.
constexpr int referenceSteps = 50000;

/// The deepest nesting of operators, parentheses and sub-expressions in a formula.
constexpr int formulaDepth = 128;

/// The length of a formula with all sub-expressions expanded, in characters.
constexpr std::size_t formulaSize = 64u << 10;

// A register

/// The longest register that is transferred, in bytes.
constexpr int64_t registerSize = 16 << 20;

/// The most bytes that are read of a text, independent of the length of its register.
constexpr int64_t textSize = 64 << 10;

/// The bytes that are read for the text of a raw register. A cell shows far fewer.
constexpr int64_t shownBytes = 256;

// Times

/// The budget of a read, including its repetitions and the camera's requests to wait.
constexpr std::chrono::milliseconds readBudget{1000};

/// The budget of a write; some cameras take long to save or to switch.
constexpr std::chrono::milliseconds writeBudget{2500};

/// The shortest time before a command is repeated, however fast previous answers were.
constexpr std::chrono::milliseconds shortestRepetition{20};

/// The interval at which an idle camera is probed.
constexpr std::chrono::milliseconds keepAlivePeriod{250};

/// A camera counts as disconnected after this time and `lostAfterProbes` probes without an answer.
constexpr std::chrono::milliseconds lostAfter{1000};
constexpr int lostAfterProbes = 4;

/// The interval at which a disconnected camera is searched for in the network.
constexpr std::chrono::milliseconds reopeningPeriod{500};

/// The pause before a refused register is read again; it doubles with each attempt up to the longer
/// time.
constexpr std::chrono::milliseconds refusalPause{2000};
constexpr std::chrono::milliseconds longestRefusalPause{16000};

/// The heartbeat time-out that is set in the camera: a program that is silent for that long loses
/// control.
constexpr std::chrono::milliseconds heartbeat{3000};

// A network

/// The most cameras that are listed for a network adapter.
constexpr std::size_t camerasPerAdapter = 256;

/// The most records of cameras, present or absent, of an interface. Records cannot be deleted; a
/// further camera gets the record of the camera that has been absent the longest.
constexpr std::size_t knownCameras = 1024;

/// The time for a camera that has acknowledged a new address to answer with it.
constexpr std::chrono::milliseconds forcedIpBudget{10000};

/// The time for a camera to acknowledge a new address, with repetitions of the command.
constexpr std::chrono::milliseconds forcedIpSilence{5000};

} // namespace OrvCameraIo::Limits
