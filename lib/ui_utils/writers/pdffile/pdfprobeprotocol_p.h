#pragma once

#include <cstdint>

/// What the library and its helper program agree on; the helper knows no Qt.
///
/// The helper finds the file's bytes at descriptor 0 and answers at descriptor 1 with a byte when it has begun, one
/// when the file is loaded, and one with its result, which may come before. A helper that gives no result did not
/// survive the file.
namespace uiutils::pdfprobe {

constexpr unsigned char started = 'S';
constexpr unsigned char loaded = 254;
/// The file was loaded, read, changed and written, but for an encrypted one, which is not written. Other results are
/// PoDoFo's error codes, as far as a byte holds them.
constexpr unsigned char harmless = 0;
constexpr unsigned char otherError = 255;

/// More objects than any report has. PoDoFo makes room for as many as a file claims to have.
constexpr long mostObjects = 1'000'000;

/// Seconds of processor time, should nobody be there any more to end the helper in time.
constexpr unsigned processorSeconds = 2;

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
