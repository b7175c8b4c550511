#include <tests/support/ComThread.h>

#include <gtest/gtest.h>

#include <windows.h>

#include <objbase.h>

namespace VyrTests {

ComThread::ComThread()
{
    EXPECT_TRUE(SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)));
}

ComThread::~ComThread()
{
    ::CoUninitialize();
}

} // namespace VyrTests
