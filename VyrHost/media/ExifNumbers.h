/// @file
/// Numbers of Exif as exiftool shows them. `value` holds numbers with blanks between them, a fraction as "1/250". The
/// result is empty for numbers that make no sense.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <string_view>

namespace VyrHost::Media {

/// "100", "2.5", "100, 200".
[[nodiscard]] CString ShowNumbers(std::string_view value);
/// Seconds: "1/250", "0.5", "30".
[[nodiscard]] CString ShowExposureTime(std::string_view value);
/// The same of an APEX value.
[[nodiscard]] CString ShowShutterSpeed(std::string_view value);
/// "2.8".
[[nodiscard]] CString ShowFNumber(std::string_view value);
/// The same of an APEX value.
[[nodiscard]] CString ShowAperture(std::string_view value);
/// "0", "-1/3", "+1".
[[nodiscard]] CString ShowCompensation(std::string_view value);
/// "50.0 mm".
[[nodiscard]] CString ShowFocalLength(std::string_view value);
/// "75 mm".
[[nodiscard]] CString ShowMillimetres(std::string_view value);
/// "2.5 m".
[[nodiscard]] CString ShowMetres(std::string_view value);
/// "24-70mm f/2.8".
[[nodiscard]] CString ShowLens(std::string_view value);
/// "10:30:00".
[[nodiscard]] CString ShowTime(std::string_view value);
/// "+52.520000", "-13.400000": degrees, negative in the south and west. `side` is "N", "S", "E" or "W".
[[nodiscard]] CString ShowDegrees(std::string_view value, std::string_view side);
/// "35 m Above Sea Level". `side` is "1" below the sea.
[[nodiscard]] CString ShowAltitude(std::string_view value, std::string_view side);

/// The words for settings that Exif stores as numbers.
[[nodiscard]] CString ShowOrientation(std::string_view value);
[[nodiscard]] CString ShowExposureProgram(std::string_view value);
[[nodiscard]] CString ShowMeteringMode(std::string_view value);
[[nodiscard]] CString ShowExposureMode(std::string_view value);
[[nodiscard]] CString ShowWhiteBalance(std::string_view value);
[[nodiscard]] CString ShowSceneCaptureType(std::string_view value);

} // namespace VyrHost::Media
