// A server on this computer that answers as the test says.
#include "LoopbackServer.h"

#include <arpa/inet.h>
#include <array>
#include <netinet/in.h>
#include <poll.h>
#include <stdexcept>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

namespace VyrTests {

namespace {

constexpr int pollMilliseconds = 20;

/// Waits a moment for `events` on the descriptor.
bool IsReady(int descriptor, short events)
{
    pollfd entry{descriptor, events, 0};
    return poll(&entry, 1, pollMilliseconds) > 0;
}

} // namespace

bool LoopbackServer::Answer::Send(std::string_view bytes) const
{
    while (!bytes.empty() && !m_isEnding) {
        if (!IsReady(m_connection, POLLOUT))
            continue;
        const ssize_t count = send(m_connection, bytes.data(), bytes.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
        if (count <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return bytes.empty();
}

void LoopbackServer::Answer::Hang() const
{
    char byte = 0;
    while (!m_isEnding)
        if (IsReady(m_connection, POLLIN) && recv(m_connection, &byte, 1, 0) <= 0)
            return;
}

LoopbackServer::LoopbackServer(Handler handler)
    : m_handler(std::move(handler)), m_listener(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto* const general = reinterpret_cast<sockaddr*>(&address);
    if (m_listener < 0 || bind(m_listener, general, size) != 0 || listen(m_listener, 16) != 0 ||
        getsockname(m_listener, general, &size) != 0)
        throw std::runtime_error("no server on the loopback");
    m_port = ntohs(address.sin_port);
    m_thread = std::thread([this] { Serve(); });
}

LoopbackServer::~LoopbackServer()
{
    m_isEnding = true;
    m_thread.join();
    close(m_listener);
}

std::string LoopbackServer::Address(const std::string& path) const
{
    return "http://127.0.0.1:" + std::to_string(m_port) + path;
}

void LoopbackServer::Serve()
{
    while (!m_isEnding) {
        if (!IsReady(m_listener, POLLIN))
            continue;
        const int connection = accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
        std::string question;
        std::array<char, 4096> piece{};
        while (!m_isEnding && question.find("\r\n\r\n") == std::string::npos) {
            if (!IsReady(connection, POLLIN))
                continue;
            const ssize_t count = recv(connection, piece.data(), piece.size(), 0);
            if (count <= 0)
                break;
            question.append(piece.data(), static_cast<std::size_t>(count));
        }
        // The greeting of a client that wants TLS is no question, whatever its random bytes look like.
        constexpr std::string_view verb = "GET ";
        if (question.starts_with(verb)) {
            const std::size_t start = verb.size();
            ++m_questions;
            m_handler(question.substr(start, question.find(' ', start) - start), Answer(connection, m_isEnding));
        }
        close(connection);
    }
}

} // namespace VyrTests
