#pragma once

#include <cstdint>

/// What the library and its helper program agree on; the helper knows no Qt.
///
/// The helper finds the file's bytes at descriptor 0 and answers at descriptor 1 with two bytes: one when it
/// has begun, one with its result. A helper that began and gives no result did not survive the file.
namespace uiutils::pdfprobe {

constexpr unsigned char started = 'S';
/// The file was loaded, read, changed and written. Other results are PoDoFo's error codes, as far as a byte
/// holds them.
constexpr unsigned char harmless = 0;
constexpr unsigned char otherError = 255;

/// More objects than any report has. PoDoFo makes room for as many as a file claims to have.
constexpr long mostObjects = 1'000'000;

/// Seconds of processor time that a file of that many bytes may take. A report of 1,000 pages and 22 MB takes
/// a third of one on a desk.
constexpr unsigned processorSeconds(std::uint64_t bytes)
{
    return unsigned(2 + (bytes >> 22));
}

/// Bytes of address space: what the program and its libraries take before they have seen anything, room for
/// objects, and what the file's bytes take in several copies.
constexpr std::uint64_t addressSpace(std::uint64_t bytes)
{
    return (std::uint64_t(256) << 20) + 6 * bytes;
}

/// Bytes of stack, a quarter of what the main thread of an application has: what recurses not too deep there
/// does not here.
constexpr std::uint64_t stack = std::uint64_t(2) << 20;

} // namespace uiutils::pdfprobe
