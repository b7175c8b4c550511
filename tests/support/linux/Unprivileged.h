// For tests: the rights of an ordinary user, since the system refuses nothing to root.
#pragma once

#include <unistd.h>

namespace VyrTests {

/// As long as it lives, the process has the rights of "nobody" if it has those of root.
class Unprivileged
{
public:
    Unprivileged() : m_user(geteuid())
    {
        if (m_user == 0)
            m_isDone = seteuid(nobody) == 0;
    }
    Unprivileged(const Unprivileged&) = delete;
    Unprivileged& operator=(const Unprivileged&) = delete;
    ~Unprivileged()
    {
        if (m_user == 0)
            static_cast<void>(seteuid(m_user) == 0);
    }

    [[nodiscard]] bool IsDone() const noexcept { return m_isDone; }

private:
    static constexpr uid_t nobody = 65534;
    uid_t m_user;
    bool m_isDone = true;
};

} // namespace VyrTests
