// A file descriptor that closes itself.
#pragma once

#include <cerrno>
#include <unistd.h>

namespace VyrPlatform {

class Descriptor
{
public:
    /// Takes over what an opening call returned.
    explicit Descriptor(int descriptor) noexcept : m_descriptor(descriptor) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor()
    {
        if (IsOpen())
            close(m_descriptor);
    }

    [[nodiscard]] bool IsOpen() const noexcept { return m_descriptor >= 0; }
    [[nodiscard]] int Get() const noexcept { return m_descriptor; }
    /// Closes it now. A file system may tell only here that it could not write everything.
    /// @return 0, or the error code.
    [[nodiscard]] int Close() noexcept
    {
        const int result = close(m_descriptor);
        m_descriptor = -1;
        return result == 0 ? 0 : errno;
    }

private:
    int m_descriptor;
};

} // namespace VyrPlatform
