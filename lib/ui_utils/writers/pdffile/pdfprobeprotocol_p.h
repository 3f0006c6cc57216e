#pragma once

#include <cstdint>

/// The protocol of the library and its helper program, which does not use Qt.
///
/// The helper finds the file's bytes at descriptor 0 and answers at descriptor 1: one byte when it has begun, one when
/// the file is loaded, and one with its result, which may come earlier. A helper that gives no result did not survive
/// the file.
namespace uiutils::pdfprobe {

constexpr unsigned char started = 'S';
constexpr unsigned char loaded = 254;
/// The file was loaded, read, changed and, unless it is encrypted, written. Other results are PoDoFo's error codes that
/// fit into a byte.
constexpr unsigned char harmless = 0;
constexpr unsigned char otherError = 255;

/// More objects than any report has. PoDoFo reserves memory for as many as a file claims to have.
constexpr long mostObjects = 1'000'000;

/// Seconds of processor time, in case nobody is there any more to end the helper in time.
constexpr unsigned processorSeconds = 2;

/// Bytes of address space: for the program and its libraries before they read anything, for objects, and for several
/// copies of the file's bytes.
constexpr std::uint64_t addressSpace(std::uint64_t bytes)
{
    return (std::uint64_t(256) << 20) + 6 * bytes;
}

/// Bytes of stack, a quarter of what the main thread of an application has. What does not recurse too deep here will
/// not do so there.
constexpr std::uint64_t stack = std::uint64_t(2) << 20;

} // namespace uiutils::pdfprobe
