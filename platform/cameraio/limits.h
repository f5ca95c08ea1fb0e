// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>

/// What a camera or a description may cost at most. Everything beyond is refused with a message,
/// not computed with.
namespace OrvCameraIo::Limits {

// A description

/// The longest description, unpacked, in bytes. The largest known real one has 4 MB.
constexpr std::size_t descriptionSize = 64u << 20;

/// The longest one as the camera sends it, zipped or not.
constexpr std::size_t downloadSize = 64u << 20;

/// The files and folders of a zipped one.
constexpr std::size_t archiveEntries = 100;

/// The descriptions that are kept for later, and what their files may hold in all, in bytes; those
/// used longest ago go.
constexpr std::size_t keptDescriptions = 100;
constexpr uint64_t keptSize = 256u << 20;

/// Nodes of a description, entries of enumerations included. Real ones have some thousand; this
/// many take some 0.4 GB.
constexpr std::size_t nodeCount = 250000;

/// Entries of one enumeration, which are all put into one list. Real ones have some hundred.
constexpr std::size_t entryCount = 4096;

/// Valid values of one number, for the same reason; one that states more cannot be used.
constexpr std::size_t validValueCount = 4096;

/// Elements inside of nodes; those of a structured register count for each of its entries.
constexpr std::size_t elementCount = 2000000;

/// Elements within each other; the standard has no use for more than 6.
constexpr int elementDepth = 32;

/// Categories within each other; what lies deeper is left out, and so is what would give a category
/// more rows than a description may have nodes.
constexpr int categoryDepth = 64;

/// Nodes that are read in order to read one: a longer chain of references has no value.
constexpr int referenceDepth = 256;

/// Nodes that are read in order to read one, those counted again that are read again: a value that
/// costs more is none.
constexpr int referenceSteps = 50000;

/// Operators, parentheses and sub-expressions within each other in a formula.
constexpr int formulaDepth = 128;

/// The length of a formula with all its sub-expressions put in, in characters.
constexpr std::size_t formulaSize = 64u << 10;

// A register

/// The longest register that is transferred at all, in bytes.
constexpr int64_t registerSize = 16 << 20;

/// The bytes that are read of a text, however long its register is.
constexpr int64_t textSize = 64 << 10;

/// The bytes that are read for the text of a raw register. A cell shows far fewer.
constexpr int64_t shownBytes = 256;

// Time on the cable

/// A read has failed after so long, its repetitions and the camera's requests to wait included.
constexpr std::chrono::milliseconds readBudget{1000};

/// A write; some cameras save or switch that long.
constexpr std::chrono::milliseconds writeBudget{2500};

/// A command is not repeated earlier than this, however fast the camera has answered so far.
constexpr std::chrono::milliseconds shortestRepetition{20};

/// An idle camera is asked whether it is there so often.
constexpr std::chrono::milliseconds keepAlivePeriod{250};

/// A camera that has not answered for so long, and not to `lostAfterProbes` questions, is lost.
constexpr std::chrono::milliseconds lostAfter{1000};
constexpr int lostAfterProbes = 4;

/// A lost camera is looked for in the network so often.
constexpr std::chrono::milliseconds reopeningPeriod{500};

/// A register that the camera has refused is read again after so long, which doubles with each
/// attempt up to the longer time.
constexpr std::chrono::milliseconds refusalPause{2000};
constexpr std::chrono::milliseconds longestRefusalPause{16000};

/// The heartbeat time-out that is set in the camera: a silent program loses control after it.
constexpr std::chrono::milliseconds heartbeat{3000};

// A network

/// The cameras that are listed of one network adapter.
constexpr std::size_t camerasPerAdapter = 256;

/// The cameras, present or gone, that an interface has records of. These are handed out and cannot
/// be deleted; a further camera gets the one of the camera that has been gone the longest.
constexpr std::size_t knownCameras = 1024;

/// A camera that has acknowledged a new address has so long to come back with it.
constexpr std::chrono::milliseconds forcedIpBudget{10000};

/// One that has not even done that, although the command was repeated.
constexpr std::chrono::milliseconds forcedIpSilence{5000};

} // namespace OrvCameraIo::Limits
