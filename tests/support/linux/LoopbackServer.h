// For tests: a server on this computer that answers as the test says.
#pragma once

#include <atomic>
#include <functional>
#include <string>
#include <string_view>
#include <thread>

namespace VyrTests {

/// Listens on a port of the loopback, and serves one connection after the other.
class LoopbackServer
{
public:
    /// What a connection is answered with.
    class Answer
    {
    public:
        Answer(int connection, const std::atomic<bool>& isEnding) : m_connection(connection), m_isEnding(isEnding) {}

        /// Sends bytes; false when the other side is gone, or the server is ending.
        [[nodiscard]] bool Send(std::string_view bytes) const;
        /// Waits until the other side is gone, or the server is ending.
        void Hang() const;

    private:
        int m_connection;
        const std::atomic<bool>& m_isEnding;
    };
    /// Answers the question for a path; the connection is closed after it.
    using Handler = std::function<void(const std::string& path, const Answer& answer)>;

    explicit LoopbackServer(Handler handler);
    LoopbackServer(const LoopbackServer&) = delete;
    LoopbackServer& operator=(const LoopbackServer&) = delete;
    ~LoopbackServer();

    /// The address of `path`, which begins with a slash.
    [[nodiscard]] std::string Address(const std::string& path) const;
    /// How many questions have come.
    [[nodiscard]] int CountQuestions() const noexcept { return m_questions; }

private:
    void Serve();

    Handler m_handler;
    int m_listener;
    int m_port = 0;
    std::atomic<bool> m_isEnding = false;
    std::atomic<int> m_questions = 0;
    std::thread m_thread;
};

} // namespace VyrTests
