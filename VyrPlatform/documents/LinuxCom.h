/// @file
/// The names of Windows' component object model that the library and its hosts use, for Linux, with the same values and
/// rules. Include ComPointer.h instead.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/WinTypes.h>

#include <cstddef>
#include <cstdint>
#include <utility>

// NOLINTBEGIN(bugprone-reserved-identifier): they are the system's names

using LONG = std::int32_t;
using ULONG = std::uint32_t;
using OLECHAR = char16_t;
/// A text in an allocation of its own, made by SysAllocString and freed by SysFreeString. Null is the empty text.
using BSTR = OLECHAR*;
/// The result of a call: negative values are failures.
using HRESULT = std::int32_t;

inline constexpr HRESULT S_OK = 0;
inline constexpr HRESULT S_FALSE = 1;
inline constexpr HRESULT E_NOTIMPL = static_cast<HRESULT>(0x80004001);
inline constexpr HRESULT E_NOINTERFACE = static_cast<HRESULT>(0x80004002);
inline constexpr HRESULT E_POINTER = static_cast<HRESULT>(0x80004003);
inline constexpr HRESULT E_FAIL = static_cast<HRESULT>(0x80004005);
inline constexpr HRESULT E_OUTOFMEMORY = static_cast<HRESULT>(0x8007000E);
inline constexpr HRESULT REGDB_E_CLASSNOTREG = static_cast<HRESULT>(0x80040154);
inline constexpr HRESULT E_INVALIDARG = static_cast<HRESULT>(0x80070057);

constexpr bool SUCCEEDED(HRESULT result) noexcept
{
    return result >= 0;
}
constexpr bool FAILED(HRESULT result) noexcept
{
    return result < 0;
}

/// A text constant with the code units of a BSTR.
#define OLESTR(text) u##text

/// The id of an interface.
using IID = GUID;
using REFIID = const IID&;
using CLSID = GUID;
using REFCLSID = const CLSID&;

/// The id of `Interface`.
#define __uuidof(Interface) (Interface::interfaceId)

/// The base of all interfaces: gives other interfaces of the object, and counts references. Each pointer that a call
/// returns is one more reference, which the caller must release.
struct IUnknown
{
    static constexpr IID interfaceId = {0x00000000, 0x0000, 0x0000, {0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};

    /// Sets `object` to the interface `id` of this object.
    /// @return S_OK; E_NOINTERFACE with a null pointer where it has no such interface.
    virtual HRESULT QueryInterface(REFIID id, void** object) = 0;
    virtual ULONG AddRef() = 0;
    virtual ULONG Release() = 0;

protected:
    ~IUnknown() = default;
};

/// The interface with which documents and their elements are passed. None of its members is called, so it has none.
struct IDispatch : IUnknown
{
    static constexpr IID interfaceId = {0x00020400, 0x0000, 0x0000, {0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};

protected:
    ~IDispatch() = default;
};

/// A new object of the class `classId`, as its interface `id`.
/// @param outer not read.
/// @param context not read.
/// @return REGDB_E_CLASSNOTREG for all classes except the documents of MSXML 3.0.
[[nodiscard]] VYR_PLATFORM_API HRESULT CoCreateInstance(REFCLSID classId, IUnknown* outer, std::uint32_t context,
                                                        REFIID id, void** object);

/// A copy of `text`; null for a null pointer, and when there is no memory.
[[nodiscard]] VYR_PLATFORM_API BSTR SysAllocString(const OLECHAR* text) noexcept;
VYR_PLATFORM_API void SysFreeString(BSTR text) noexcept;
/// In code units, without the NUL after the text.
[[nodiscard]] VYR_PLATFORM_API unsigned SysStringLen(BSTR text) noexcept;

/// A value with its type.
struct tagVARIANT
{
    VARTYPE vt = VT_EMPTY;
    union {
        LONG lVal;
        BSTR bstrVal = nullptr;
    };
};
using VARIANT = tagVARIANT;

/// The exception for a failing call.
class VYR_PLATFORM_API _com_error
{
public:
    explicit _com_error(HRESULT result) noexcept;
    _com_error(const _com_error& other) noexcept;
    _com_error& operator=(const _com_error& other) noexcept;
    virtual ~_com_error();

    [[nodiscard]] HRESULT Error() const noexcept { return m_result; }

private:
    HRESULT m_result;
};

/// Throws `result` as a _com_error.
[[noreturn]] VYR_PLATFORM_API void _com_issue_error(HRESULT result);

namespace _com_util {

/// Throws `result` as a _com_error when it is a failure.
inline void CheckError(HRESULT result)
{
    if (FAILED(result))
        _com_issue_error(result);
}

} // namespace _com_util

/// A BSTR that frees itself.
class _bstr_t
{
public:
    _bstr_t() noexcept = default;
    /// A copy of `text`; throws a _com_error of E_OUTOFMEMORY when there is no memory.
    _bstr_t(const OLECHAR* text) : m_text(SysAllocString(text))
    {
        if (!m_text && text)
            _com_issue_error(E_OUTOFMEMORY);
    }
    _bstr_t(_bstr_t&& other) noexcept : m_text(std::exchange(other.m_text, nullptr)) {}
    _bstr_t(const _bstr_t&) = delete;
    _bstr_t& operator=(const _bstr_t&) = delete;
    ~_bstr_t() { SysFreeString(m_text); }

    operator OLECHAR*() const noexcept { return m_text; }

    /// Frees the text, and returns the address for a new one.
    [[nodiscard]] BSTR* GetAddress() noexcept
    {
        SysFreeString(std::exchange(m_text, nullptr));
        return &m_text;
    }
    [[nodiscard]] unsigned length() const noexcept { return SysStringLen(m_text); }

private:
    BSTR m_text = nullptr;
};

/// A VARIANT that frees its text.
class _variant_t : public tagVARIANT
{
public:
    _variant_t() noexcept = default;
    explicit _variant_t(LONG value) noexcept
    {
        vt = VT_I4;
        lVal = value;
    }
    /// A copy of `text`; throws a _com_error of E_OUTOFMEMORY when there is no memory.
    explicit _variant_t(const OLECHAR* text)
    {
        vt = VT_BSTR;
        bstrVal = SysAllocString(text);
        if (!bstrVal && text)
            _com_issue_error(E_OUTOFMEMORY);
    }
    _variant_t(const _variant_t&) = delete;
    _variant_t& operator=(const _variant_t&) = delete;
    ~_variant_t()
    {
        if (vt == VT_BSTR)
            SysFreeString(bstrVal);
    }
};

/// An interface with its id.
template <class InterfaceType, const IID* id>
struct _com_IIID
{
    using Interface = InterfaceType;
    [[nodiscard]] static const IID& GetIID() noexcept { return *id; }
};

/// A reference to an object through an interface.
template <class NamedInterface>
class _com_ptr_t
{
public:
    using Interface = typename NamedInterface::Interface;

    _com_ptr_t() noexcept = default;
    _com_ptr_t(std::nullptr_t) noexcept {}
    /// A new object of the class `classId`; null when it lacks the interface. Throws a _com_error for any other
    /// failure.
    explicit _com_ptr_t(REFCLSID classId)
    {
        const HRESULT result = CoCreateInstance(classId, nullptr, 0, GetIID(), reinterpret_cast<void**>(&m_object));
        if (result != E_NOINTERFACE)
            _com_util::CheckError(result);
    }
    /// Adds a reference to `object`; if `isAnother` is false, takes over an existing one.
    _com_ptr_t(Interface* object, bool isAnother = true) noexcept : m_object(object)
    {
        if (m_object && isAnother)
            m_object->AddRef();
    }
    _com_ptr_t(const _com_ptr_t& other) noexcept : _com_ptr_t(other.m_object) {}
    _com_ptr_t(_com_ptr_t&& other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}
    _com_ptr_t& operator=(_com_ptr_t other) noexcept
    {
        std::swap(m_object, other.m_object);
        return *this;
    }
    ~_com_ptr_t()
    {
        if (m_object)
            m_object->Release();
    }

    [[nodiscard]] static const IID& GetIID() noexcept { return NamedInterface::GetIID(); }

    /// Releases the object, and returns the address for a new one.
    [[nodiscard]] Interface** operator&() noexcept
    {
        *this = _com_ptr_t();
        return &m_object;
    }
    /// Throws a _com_error of E_POINTER when there is no object.
    Interface* operator->() const
    {
        if (!m_object)
            _com_issue_error(E_POINTER);
        return m_object;
    }
    [[nodiscard]] Interface* GetInterfacePtr() const noexcept { return m_object; }
    operator Interface*() const noexcept { return m_object; }
    explicit operator bool() const noexcept { return m_object != nullptr; }

private:
    Interface* m_object = nullptr;
};

/// Names the smart pointer of an `Interface` after it.
// NOLINTNEXTLINE(bugprone-macro-parentheses): the name of a variable
#define _COM_SMARTPTR_TYPEDEF(Interface, id) using Interface##Ptr = _com_ptr_t<_com_IIID<Interface, &id>>

// NOLINTEND(bugprone-reserved-identifier)
