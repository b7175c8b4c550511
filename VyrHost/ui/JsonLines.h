/// @file
/// Output for programs: one JSON object a line.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace VyrHost::Ui {

/// Appends `text` as a JSON text with its quotes: UTF-8, control characters escaped, a lone surrogate (a byte of a name
/// that is not UTF-8) as its `\ud...` escape.
void AppendJsonText(std::string& line, std::u16string_view text);

/// Each of these appends a field to the object that `line` holds so far, or begins the object where it is empty.
/// @param more  goes on with `text`. The text must not be cut inside a surrogate pair.
void AppendJsonField(std::string& line, std::string_view key, std::u16string_view text, std::u16string_view more = {});
void AppendJsonNumber(std::string& line, std::string_view key, std::int64_t number);
void AppendJsonFlag(std::string& line, std::string_view key, bool flag);
void AppendJsonNull(std::string& line, std::string_view key);

} // namespace VyrHost::Ui
