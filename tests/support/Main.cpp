// Runs the tests of a program, and ends it when one of them hangs, so that the others' programs still run.
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

/// Ends the program when a test runs for longer than `patience`, and prints its name.
class HangWatch : public testing::EmptyTestEventListener
{
public:
    HangWatch() : m_watcher([this](const std::stop_token& stop) { Watch(stop); }) {}

    void OnTestStart(const testing::TestInfo& test) override
    {
        Begin(std::string(test.test_suite_name()) + "." + test.name());
    }
    void OnTestEnd(const testing::TestInfo&) override { Begin(""); }

private:
    void Begin(const std::string& test)
    {
        const std::lock_guard lock(m_mutex);
        m_test = test;
        ++m_number;
        m_changed.notify_all();
    }

    void Watch(const std::stop_token& stop)
    {
        std::unique_lock lock(m_mutex);
        while (!stop.stop_requested()) {
            const int number = m_number;
            const bool isNext = m_changed.wait_for(lock, stop, patience, [&] { return m_number != number; });
            if (isNext || m_test.empty() || stop.stop_requested())
                continue;
            std::fprintf(stderr, "%s hangs: it has run for %d minutes\n", m_test.c_str(),
                         static_cast<int>(patience.count()));
            std::_Exit(exitOfHung);
        }
    }

    std::mutex m_mutex;
    std::condition_variable_any m_changed;
    /// Empty between two tests.
    std::string m_test;
    int m_number = 0;
    std::jthread m_watcher;
};

} // namespace

int main(int count, char** arguments)
{
    testing::InitGoogleMock(&count, arguments);
    testing::UnitTest::GetInstance()->listeners().Append(new HangWatch);
    return RUN_ALL_TESTS();
}
