// What every hostile-input case shares: hostile files made at run time, a
// byte-for-byte record of the files around a case, and a time limit that
// turns a hang into a named failure.
#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <string>

namespace hostile {

using namespace std::chrono_literals;

// Relative path -> bytes of every file under a folder; a sub-folder shows
// as its path followed by "\".
using Snapshot = std::map<std::string, std::string>;
Snapshot TakeSnapshot(const std::string& folder);
// The paths whose bytes differ, appeared or went missing, one per line.
std::string Differences(const Snapshot& before, const Snapshot& after);

// Runs `body` on a worker thread. Past `limit` the case counts as hung: the
// name is reported and the whole test program ends with a failure, since a
// hung routine cannot be stopped from outside. A fault inside `body` ends
// the program the same way, naming the case.
void WithinLimit(const std::string& name, std::chrono::milliseconds limit,
                 const std::function<void()>& body);

// Deterministic bytes with every value, NUL and line ends included.
std::string Garbage(std::size_t length);

// Hostile copies of a library: cut to `length` bytes; with the resource
// table's address past the end of the image; with every bitmap of size 0
// (no data bytes, width and height 0).
std::string Truncated(const std::string& image, std::size_t length);
std::string ResourceTablePastTheEnd(std::string image);
std::string ZeroSizeBitmaps(std::string image);

// An icon file whose header claims 65535 images.
std::string IconClaiming65535(std::string icon);

// Explorer's form of Desktop.ini: UTF-16 little-endian with a byte-order mark.
std::string Utf16WithMark(const std::wstring& text);

}  // namespace hostile
