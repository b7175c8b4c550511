/// @file
/// The wide string of the platform class library.
#pragma once

#include <VyrPlatform/Export.h>

#include <compare>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <ext/atomicity.h>
#include <functional>
#include <initializer_list>
#include <string_view>
#include <utility>

/// A typed argument of CString::Format: a text or an integer of any width.
class FormatArgument
{
public:
    FormatArgument(std::u16string_view text) noexcept : m_text(text), m_kind(Kind::Text) {}
    template <std::integral Integer>
    FormatArgument(Integer value) noexcept
        : m_bits(static_cast<std::uint64_t>(value)), m_size(sizeof(Integer)),
          m_kind(std::signed_integral<Integer> ? Kind::Signed : Kind::Unsigned)
    {}

private:
    friend class CString;
    enum class Kind : std::uint8_t
    {
        Text,
        Signed,
        Unsigned
    };
    std::u16string_view m_text;
    std::uint64_t m_bits = 0;
    std::size_t m_size = 0;
    Kind m_kind;
};

/// A UTF-16 text that is cheap to pass by value.
///
/// It is one pointer wide (null for the empty string). Copies share one allocation; a change copies it first. All
/// counts and indices are in UTF-16 code units. Several threads may use copies of one string at the same time, but not
/// the same object.
class VYR_PLATFORM_API CString
{
public:
    /// The empty string.
    CString() noexcept : m_buffer(nullptr) {}
    CString(const CString& other) noexcept : m_buffer(other.m_buffer) { Retain(); }
    CString(CString&& other) noexcept : m_buffer(other.m_buffer) { other.m_buffer = nullptr; }
    /// A copy of `text`; a null pointer gives the empty string.
    CString(const char16_t* text) : CString(text ? std::u16string_view(text) : std::u16string_view()) {}
    /// A copy of `text`, which may contain NULs.
    CString(std::u16string_view text);
    /// `unit` repeated `count` times; a count below 1 gives the empty string.
    CString(char16_t unit, int count);
    ~CString() { Release(); }

    CString& operator=(const CString& other) noexcept
    {
        CString(other).Swap(*this);
        return *this;
    }
    CString& operator=(CString&& other) noexcept
    {
        CString(std::move(other)).Swap(*this);
        return *this;
    }

    /// All `parts` in order, in one allocation: `{u"a", u"/", u"b"}` gives `a/b`.
    [[nodiscard]] static CString Join(std::initializer_list<std::u16string_view> parts);

    [[nodiscard]] int GetLength() const noexcept { return m_buffer ? static_cast<int>(m_buffer->length) : 0; }
    [[nodiscard]] bool IsEmpty() const noexcept { return m_buffer == nullptr; }
    /// The text with a NUL after it; never a null pointer.
    [[nodiscard]] const char16_t* GetString() const noexcept { return m_buffer ? m_buffer->Text() : u""; }
    operator std::u16string_view() const noexcept { return View(); }
    [[nodiscard]] std::u16string_view View() const noexcept
    {
        return m_buffer ? std::u16string_view(m_buffer->Text(), m_buffer->length) : std::u16string_view();
    }
    /// The code unit at `index`, 0 to GetLength() - 1.
    [[nodiscard]] char16_t operator[](int index) const noexcept { return GetString()[index]; }

    /// Makes the string a copy of `text`, which is no part of it, in its own allocation where that is large enough.
    void Assign(std::u16string_view text);
    /// Makes the string empty.
    void Empty() noexcept { CString().Swap(*this); }
    void Swap(CString& other) noexcept
    {
        Buffer* const mine = m_buffer;
        m_buffer = other.m_buffer;
        other.m_buffer = mine;
    }

    /// Appends `text`, which may be a part of this string. Repeated appends take linear time.
    CString& operator+=(std::u16string_view text);
    CString& operator+=(char16_t unit) { return *this += std::u16string_view(&unit, 1); }

    /// The first `count` code units; all when there are fewer, none when `count` is negative.
    [[nodiscard]] CString Left(int count) const;
    /// The last `count` units, with the bounds of Left.
    [[nodiscard]] CString Right(int count) const;
    /// The code units from `first` on; a negative `first` counts as 0, one past the end gives the empty string.
    [[nodiscard]] CString Mid(int first) const;
    /// At most `count` code units from `first` on, with the bounds of Left and Mid.
    [[nodiscard]] CString Mid(int first, int count) const;

    /// The index of the first `text` at or after `start`, else -1. An empty `text` is found at `start`.
    [[nodiscard]] int Find(std::u16string_view text, int start = 0) const noexcept;
    /// The index of the last `unit`, else -1.
    [[nodiscard]] int ReverseFind(char16_t unit) const noexcept;

    /// Replaces every `find`, searched from the start without overlap, by `replacement`.
    /// @return the number of replacements; 0 for an empty `find`.
    int Replace(std::u16string_view find, std::u16string_view replacement);

    /// Maps each code unit to upper case, the same in every locale (VyrPlatform::Locale::ToUpper).
    CString& MakeUpper();
    /// Maps each code unit to lower case in the same way.
    CString& MakeLower();
    /// Compares the lower-case forms (MakeLower). @return negative, zero or positive.
    [[nodiscard]] int CompareNoCase(std::u16string_view other) const;

    /// Sets this string to `format` with its conversions replaced by `arguments` in order: `Format(u"%s (%d)", name,
    /// 2)` gives `a (2)` for the name `a`.
    ///
    /// A conversion is `%`, optionally `0` and a minimum width, optionally `h`, `l`, `ll` or `I64` (which change
    /// nothing: the width is the argument's own), and one of `s` (a text), `d` or `i` (an integer in decimal), `u` (the
    /// argument's bits as unsigned), `x`, `X` (in hexadecimal). `%%` is a percent sign. A conversion without an
    /// argument, with an argument of the wrong type, or not listed here is copied as it is written. The arguments may
    /// refer to this string.
    template <class... Arguments>
    void Format(std::u16string_view format, const Arguments&... arguments)
    {
        FormatArguments(format, {FormatArgument(arguments)...});
    }

    friend bool operator==(const CString& left, const CString& right) noexcept
    {
        return left.m_buffer == right.m_buffer || left.View() == right.View();
    }
    friend bool operator==(const CString& left, std::u16string_view right) noexcept { return left.View() == right; }
    friend bool operator==(const CString& left, const char16_t* right) noexcept { return left.View() == right; }
    /// Orders by the values of the code units.
    friend std::strong_ordering operator<=>(const CString& left, const CString& right) noexcept
    {
        return left.View() <=> right.View();
    }
    friend CString operator+(const CString& left, std::u16string_view right) { return Join({left, right}); }
    friend CString operator+(const CString& left, const CString& right) { return Join({left, right}); }
    friend CString operator+(const CString& left, const char16_t* right) { return Join({left, right}); }
    friend CString operator+(std::u16string_view left, const CString& right) { return Join({left, right}); }
    friend CString operator+(const char16_t* left, const CString& right) { return Join({left, right}); }

private:
    /// The header of the allocation, before the text.
    struct Buffer
    {
        _Atomic_word owners;
        std::uint32_t length;
        std::uint32_t capacity;

        [[nodiscard]] char16_t* Text() noexcept { return reinterpret_cast<char16_t*>(this + 1); }
    };

    void Retain() const noexcept
    {
        if (m_buffer)
            __gnu_cxx::__atomic_add_dispatch(&m_buffer->owners, 1);
    }
    void Release() noexcept
    {
        // A single owner needs no atomic count: nobody else can copy it at the same time.
        if (m_buffer && (__atomic_load_n(&m_buffer->owners, __ATOMIC_ACQUIRE) == 1 ||
                         __gnu_cxx::__exchange_and_add_dispatch(&m_buffer->owners, -1) == 1))
            Free(m_buffer);
    }

    static Buffer* Allocate(std::size_t length, std::size_t capacity);
    static void Free(Buffer* buffer) noexcept;
    [[nodiscard]] char16_t* Writable();
    void FormatArguments(std::u16string_view format, std::initializer_list<FormatArgument> arguments);

    Buffer* m_buffer;
};

/// Hashes by the code units, so that a CString can be a key and be looked up by a view.
template <>
struct std::hash<CString>
{
    std::size_t operator()(std::u16string_view text) const noexcept { return std::hash<std::u16string_view>()(text); }
};
