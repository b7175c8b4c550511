// ReadToEnd on Windows: pipes are read until their writers are done.
#include <VyrHostPlatform/ReadToEnd.h>
#include <VyrPlatform/text/WindowsCString.h>

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <windows.h>

using VyrHostPlatform::ReadToEnd;

TEST(ReadToEndPipe, ReadsANamedPipeToItsEnd)
{
    CString path;
    path.Format(u"\\\\.\\pipe\\VyrReadToEnd%u", static_cast<unsigned>(GetCurrentProcessId()));
    const HANDLE pipe = CreateNamedPipeW(VyrPlatform::ToWide(path), PIPE_ACCESS_OUTBOUND, PIPE_TYPE_BYTE | PIPE_WAIT, 1,
                                         4096, 4096, 0, nullptr);
    ASSERT_NE(pipe, INVALID_HANDLE_VALUE);
    const std::string half(300'000, 'x');
    std::thread writer([pipe, &half] {
        ConnectNamedPipe(pipe, nullptr);
        for (const std::string& text : {half, half, std::string("end")}) {
            DWORD written = 0;
            EXPECT_TRUE(WriteFile(pipe, text.data(), static_cast<DWORD>(text.size()), &written, nullptr));
        }
        FlushFileBuffers(pipe);
        CloseHandle(pipe);
    });
    std::uint32_t error = 1;
    EXPECT_EQ(ReadToEnd(path, error), half + half + "end");
    EXPECT_EQ(error, 0u);
    writer.join();
}
