# Writes the files of time zones below FOLDER as a table of C++ (VyrHostPlatform/windows/TimeZoneTable.h) into OUTPUT.
file(GLOB_RECURSE files RELATIVE "${FOLDER}" "${FOLDER}/*")
list(SORT files)
set(rows "")
foreach(name IN LISTS files)
  file(READ "${FOLDER}/${name}" bytes HEX)
  string(LENGTH "${bytes}" digits)
  math(EXPR size "${digits} / 2")
  string(REGEX REPLACE "(..)" "\\\\x\\1" bytes "${bytes}")
  string(APPEND rows "    {\"${name}\", {\"${bytes}\", ${size}}},\n")
endforeach()
file(WRITE "${OUTPUT}" "#include <VyrHostPlatform/windows/TimeZoneTable.h>

namespace VyrHostPlatform {

namespace {

constexpr StoredTimeZone table[] = {
${rows}};

} // namespace

std::span<const StoredTimeZone> StoredTimeZones()
{
    return table;
}

} // namespace VyrHostPlatform
")
