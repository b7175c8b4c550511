/// @file
/// The owner of a buffer of characters.
#pragma once

#include <algorithm>
#include <cstddef>

/// Refers to a buffer: a foreign one, or one from the heap, which it frees. For texts that usually fit into an existing
/// buffer.
/// @tparam Unit  char or char16_t.
template <class Unit>
class CTemplateSmartPtrArray
{
public:
    /// Refers to `buffer`, which must outlive this object.
    explicit CTemplateSmartPtrArray(Unit* buffer) noexcept : m_buffer(buffer) {}
    CTemplateSmartPtrArray(const CTemplateSmartPtrArray&) = delete;
    CTemplateSmartPtrArray& operator=(const CTemplateSmartPtrArray&) = delete;
    virtual ~CTemplateSmartPtrArray() { Free(); }

    /// Replaces the buffer by one of `size` units from the heap, and copies the first `kept` units of the former one.
    /// @throws std::bad_alloc  and keeps the former buffer.
    void Allocate(std::size_t size, std::size_t kept = 0)
    {
        Unit* const buffer = new Unit[size];
        std::copy_n(m_buffer, kept, buffer);
        Free();
        m_buffer = buffer;
        m_isOwner = true;
    }

    [[nodiscard]] Unit* Get() const noexcept { return m_buffer; }

private:
    void Free() noexcept
    {
        if (m_isOwner)
            delete[] m_buffer;
    }

    Unit* m_buffer;
    bool m_isOwner = false;
};
