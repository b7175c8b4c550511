// Runs the tests of a program, and ends it when one of them hangs, so that the others' programs still run.
#include <tests/support/Signals.h>

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <mutex>
#include <string>
#include <thread>

namespace {

/// No test takes a tenth of it, even under the sanitizers on a busy machine.
constexpr std::chrono::minutes patience(10);
/// What `timeout` ends with, too.
constexpr int exitOfHung = 124;

/// The test that runs, and a thread that watches it. Neither ever ends: a copy of the process that a test makes has no
/// such thread that it could wait for.
class Watch
{
public:
    void Begin(const std::string& test)
    {
        const std::lock_guard lock(m_mutex);
        m_test = test;
        ++m_number;
        m_changed.notify_all();
    }

    [[noreturn]] void Run()
    {
        std::unique_lock lock(m_mutex);
        for (;;) {
            const int number = m_number;
            if (m_changed.wait_for(lock, patience, [&] { return m_number != number; }) || m_test.empty())
                continue;
            std::fprintf(stderr, "%s hangs: it has run for %d minutes\n", m_test.c_str(),
                         static_cast<int>(patience.count()));
            std::_Exit(exitOfHung);
        }
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    /// Empty between two tests.
    std::string m_test;
    int m_number = 0;
};

/// Tells the watch which test runs.
class WatchTests : public testing::EmptyTestEventListener
{
public:
    WatchTests() { std::thread(&Watch::Run, &m_watch).detach(); }

    void OnTestStart(const testing::TestInfo& test) override
    {
        m_watch.Begin(std::string(test.test_suite_name()) + "." + test.name());
    }
    void OnTestEnd(const testing::TestInfo&) override { m_watch.Begin(""); }

private:
    Watch& m_watch = *new Watch;
};

} // namespace

int main(int count, char** arguments)
{
    VyrTests::StopIgnoringInterrupts();
    testing::InitGoogleMock(&count, arguments);
    testing::UnitTest::GetInstance()->listeners().Append(new WatchTests);
    return RUN_ALL_TESTS();
}
