// Standard streams that are a real console.
#include <tests/support/windows/OwnConsole.h>

#include <VyrHostPlatform/Console.h>
#include <VyrPlatform/text/Encoding.h>

#include <gtest/gtest.h>
#include <string>
#include <vector>
#include <windows.h>

using namespace VyrHostPlatform;
using namespace VyrPlatform;

namespace {

/// Puts a console's screen and keyboard in the place of the standard streams.
class ConsoleScreenTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(VyrTests::HasConsoleOfItsOwn() || ::GetConsoleCP() != 0);
        constexpr DWORD access = GENERIC_READ | GENERIC_WRITE;
        constexpr DWORD sharing = FILE_SHARE_READ | FILE_SHARE_WRITE;
        m_screen = ::CreateConsoleScreenBuffer(access, sharing, nullptr, CONSOLE_TEXTMODE_BUFFER, nullptr);
        m_keyboard = ::CreateFileW(L"CONIN$", access, sharing, nullptr, OPEN_EXISTING, 0, nullptr);
        ASSERT_NE(m_screen, INVALID_HANDLE_VALUE);
        ASSERT_NE(m_keyboard, INVALID_HANDLE_VALUE);
        m_outputBefore = ::GetStdHandle(STD_OUTPUT_HANDLE);
        m_inputBefore = ::GetStdHandle(STD_INPUT_HANDLE);
        ::SetStdHandle(STD_OUTPUT_HANDLE, m_screen);
        ::SetStdHandle(STD_INPUT_HANDLE, m_keyboard);
    }
    void TearDown() override
    {
        ::SetStdHandle(STD_OUTPUT_HANDLE, m_outputBefore);
        ::SetStdHandle(STD_INPUT_HANDLE, m_inputBefore);
        ::CloseHandle(m_screen);
        ::CloseHandle(m_keyboard);
    }

    /// The first `count` cells of the screen's line `row`.
    [[nodiscard]] std::u16string ScreenText(short row, DWORD count) const
    {
        std::u16string text(count, u'\0');
        DWORD read = 0;
        ::ReadConsoleOutputCharacterW(m_screen, reinterpret_cast<wchar_t*>(text.data()), count, {0, row}, &read);
        text.resize(read);
        return text;
    }

    void Type(std::u16string_view text) const
    {
        std::vector<INPUT_RECORD> events;
        for (const char16_t unit : text) {
            INPUT_RECORD event{};
            event.EventType = KEY_EVENT;
            event.Event.KeyEvent.bKeyDown = TRUE;
            event.Event.KeyEvent.wRepeatCount = 1;
            event.Event.KeyEvent.wVirtualKeyCode = unit == u'\r' ? VK_RETURN : 0;
            event.Event.KeyEvent.uChar.UnicodeChar = static_cast<wchar_t>(unit);
            events.push_back(event);
        }
        DWORD written = 0;
        ASSERT_TRUE(::WriteConsoleInputW(m_keyboard, events.data(), static_cast<DWORD>(events.size()), &written));
        ASSERT_EQ(written, events.size());
    }

    HANDLE m_screen = INVALID_HANDLE_VALUE;

private:
    HANDLE m_keyboard = INVALID_HANDLE_VALUE;
    HANDLE m_outputBefore = nullptr;
    HANDLE m_inputBefore = nullptr;
};

} // namespace

TEST_F(ConsoleScreenTest, ConsoleIsATerminalWithItsWidth)
{
    CONSOLE_SCREEN_BUFFER_INFO info{};
    ASSERT_TRUE(::GetConsoleScreenBufferInfo(m_screen, &info));
    EXPECT_TRUE(Console::IsTerminal(Console::Stream::Output));
    EXPECT_TRUE(Console::IsInputTerminal());
    EXPECT_EQ(Console::GetWidth(Console::Stream::Output), info.srWindow.Right - info.srWindow.Left + 1);
    EXPECT_GT(Console::GetWidth(Console::Stream::Output), 0);
}

TEST_F(ConsoleScreenTest, Utf8IsShownAsTextUnderEveryCodePage)
{
    ASSERT_EQ(Console::Write(Console::Stream::Output, "Grüße Ωж\r\nsecond"), 0u);
    EXPECT_EQ(ScreenText(0, 9), u"Grüße Ωж ");
    EXPECT_EQ(ScreenText(1, 6), u"second");
}

TEST_F(ConsoleScreenTest, LongTextIsWrittenWhole)
{
    // Longer than the console takes at once; the carriage returns keep it on the first line.
    std::string bytes;
    while (bytes.size() < 100000)
        bytes += "abcdefg\r";
    ASSERT_EQ(Console::Write(Console::Stream::Output, bytes + "last"), 0u);
    EXPECT_EQ(ScreenText(0, 8), u"lastefg ");
}

TEST_F(ConsoleScreenTest, TypedLineIsReadAsUtf8)
{
    Type(u"Größe 1\r");
    std::uint32_t error = 1;
    EXPECT_EQ(Console::ReadInput(error), "Größe 1\r\n");
    EXPECT_EQ(error, 0u);
}

TEST_F(ConsoleScreenTest, CtrlZAtTheStartOfALineEndsTheInput)
{
    Type(u"\x1A\r");
    std::uint32_t error = 1;
    EXPECT_EQ(Console::ReadInput(error), "");
    EXPECT_EQ(error, 0u);
}
