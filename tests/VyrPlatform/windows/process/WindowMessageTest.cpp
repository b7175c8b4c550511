// A real window gets what is posted to it while the library drains.
#include <VyrPlatform/process/MessageQueue.h>

#include <gtest/gtest.h>
#include <thread>
#include <vector>
#include <windows.h>

using VyrPlatform::MessageQueue::DrainOne;

namespace {

/// The messages of the application's own kinds, and the characters, that the test's window got.
std::vector<std::pair<UINT, WPARAM>>& Received()
{
    static std::vector<std::pair<UINT, WPARAM>> received;
    return received;
}

LRESULT CALLBACK Receive(HWND window, UINT message, WPARAM wide, LPARAM pointer)
{
    if (message < WM_APP && message != WM_CHAR)
        return ::DefWindowProcW(window, message, wide, pointer);
    Received().emplace_back(message, wide);
    return 0;
}

class WindowMessageTest : public testing::Test
{
protected:
    void SetUp() override
    {
        WNDCLASSW windowClass{};
        windowClass.lpfnWndProc = Receive;
        windowClass.hInstance = ::GetModuleHandleW(nullptr);
        windowClass.lpszClassName = L"VyrWindowMessageTest";
        ::RegisterClassW(&windowClass);
        m_window = ::CreateWindowExW(0, windowClass.lpszClassName, L"Test", WS_OVERLAPPEDWINDOW, 0, 0, 100, 100,
                                     nullptr, nullptr, windowClass.hInstance, nullptr);
        ASSERT_NE(m_window, nullptr);
        // The messages from creating the window.
        for (int i = 0; i < 50; ++i)
            ASSERT_FALSE(DrainOne());
        Received().clear();
    }
    void TearDown() override { ::DestroyWindow(m_window); }

    HWND m_window = nullptr;
};

} // namespace

TEST_F(WindowMessageTest, WindowGetsItsPostedMessagesInOrder)
{
    for (WPARAM i = 0; i < 5; ++i)
        ASSERT_TRUE(::PostMessageW(m_window, WM_APP + 1, i, 0));
    for (int i = 0; i < 50; ++i)
        EXPECT_FALSE(DrainOne());
    ASSERT_EQ(Received().size(), 5U);
    for (WPARAM i = 0; i < 5; ++i)
        EXPECT_EQ(Received()[i], std::make_pair(UINT{WM_APP + 1}, i));
}

TEST_F(WindowMessageTest, WindowGetsMessagesOfAnotherThread)
{
    std::thread([this] { ::PostMessageW(m_window, WM_APP + 2, 7, 0); }).join();
    for (int i = 0; i < 50 && Received().empty(); ++i)
        EXPECT_FALSE(DrainOne());
    EXPECT_EQ(Received(), (std::vector<std::pair<UINT, WPARAM>>{{WM_APP + 2, 7}}));
}

TEST_F(WindowMessageTest, KeysAreTranslatedToCharacters)
{
    ASSERT_TRUE(::PostMessageW(m_window, WM_KEYDOWN, 'A', 0));
    for (int i = 0; i < 50 && Received().empty(); ++i)
        EXPECT_FALSE(DrainOne());
    EXPECT_EQ(Received(), (std::vector<std::pair<UINT, WPARAM>>{{WM_CHAR, L'a'}}));
}

TEST_F(WindowMessageTest, QuitMessageIsTheStopAfterThePostedOnes)
{
    ::PostQuitMessage(0);
    ASSERT_TRUE(::PostMessageW(m_window, WM_APP + 3, 0, 0));
    bool isStopped = false;
    for (int i = 0; i < 50 && !isStopped; ++i)
        isStopped = DrainOne();
    EXPECT_TRUE(isStopped);
    EXPECT_EQ(Received().size(), 1U);
    for (int i = 0; i < 10; ++i)
        EXPECT_FALSE(DrainOne());
}
