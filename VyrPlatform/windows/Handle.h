// Handles of the system that close themselves.
#pragma once

#include <utility>
#include <windows.h>

namespace VyrPlatform {

/// Owns a handle that the system has opened; `close` is the function that closes it.
template <auto close>
class UniqueHandle
{
public:
    UniqueHandle() noexcept = default;
    /// Takes over the result of an opening call: null and INVALID_HANDLE_VALUE mean none.
    explicit UniqueHandle(HANDLE handle) noexcept : m_handle(handle) {}
    UniqueHandle(UniqueHandle&& other) noexcept : m_handle(other.Release()) {}
    UniqueHandle& operator=(UniqueHandle&& other) noexcept
    {
        UniqueHandle(std::move(other)).Swap(*this);
        return *this;
    }
    ~UniqueHandle()
    {
        if (IsOpen())
            close(m_handle);
    }

    [[nodiscard]] bool IsOpen() const noexcept { return m_handle && m_handle != INVALID_HANDLE_VALUE; }
    [[nodiscard]] HANDLE Get() const noexcept { return m_handle; }
    /// Releases the handle, which the caller must close.
    [[nodiscard]] HANDLE Release() noexcept { return std::exchange(m_handle, INVALID_HANDLE_VALUE); }
    /// Closes it now. Some file systems report only here that they could not write everything.
    /// @return 0, or the error code.
    [[nodiscard]] DWORD Close() noexcept { return close(Release()) ? ERROR_SUCCESS : GetLastError(); }

private:
    void Swap(UniqueHandle& other) noexcept { std::swap(m_handle, other.m_handle); }

    HANDLE m_handle = INVALID_HANDLE_VALUE;
};

/// Of a file, a folder, a process, an event.
using Handle = UniqueHandle<CloseHandle>;
/// Of a search in a folder.
using SearchHandle = UniqueHandle<FindClose>;

} // namespace VyrPlatform
