#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vorlane {

// Appends `utf8` converted to Windows-1252; a character Windows-1252 cannot hold (or a
// malformed UTF-8 sequence) becomes "?". Bytes 0x81, 0x8D, 0x8F, 0x90 and 0x9D stand for the
// control characters U+0081, U+008D, U+008F, U+0090 and U+009D, so every byte round-trips.
void appendCp1252(std::string &out, std::string_view utf8);

// Appends the Windows-1252 `bytes` converted to UTF-8.
void appendUtf8(std::string &out, std::string_view bytes);

// Whether every character of `utf8` has a Windows-1252 byte (a malformed sequence, which
// becomes "?" either way, does not count).
bool fitsCp1252(std::string_view utf8);

// The distinct characters of `utf8` that Windows-1252 cannot hold, each as its UTF-8 bytes,
// in the order of their first appearance.
std::vector<std::string> charactersOutsideCp1252(std::string_view utf8);

// Appends `utf8` with each byte of a malformed sequence replaced by "?".
void appendCleanUtf8(std::string &out, std::string_view utf8);

std::string toCp1252(std::string_view utf8);
std::string toUtf8(std::string_view cp1252);

} // namespace vorlane
