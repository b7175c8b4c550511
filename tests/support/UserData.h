// For tests: the folders in which the program keeps its data, empty and for the test alone.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <memory>
#include <string_view>

namespace VyrTests {

/// As long as it lives, the program's data folders are empty ones. On Linux they lie in a scratch folder; on Windows,
/// where the system alone says where they are, what stands there is put aside and back.
class UserData
{
public:
    UserData();
    UserData(const UserData&) = delete;
    UserData& operator=(const UserData&) = delete;
    ~UserData();

    /// Makes the file at the full path `path`, and the folders in front of it.
    static void WriteFile(const CString& path, std::string_view bytes);

private:
    struct Kept;
    std::unique_ptr<Kept> m_kept;
};

} // namespace VyrTests
