#include <VyrC/Marshal.h>

#include <VyrPlatform/documents/ComPointer.h>
#include <VyrPlatform/files/CFileException.h>
#include <VyrPlatform/files/FileTicks.h>
#include <VyrPlatform/process/MemoryMap.h>
#include <VyrPlatform/text/Encoding.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstring>
#include <exception>
#include <map>
#include <mutex>
#include <new>
#include <string_view>

namespace VyrC {

namespace {

struct WrongArgument
{
    std::string name;
};

thread_local CString lastError;

vyr_status Fail(vyr_status status, const CString& text)
{
    lastError = text;
    return status;
}

/// The lists that the host holds.
struct Lists
{
    std::mutex mutex;
    std::map<vyr_list, std::shared_ptr<const List>> byHandle;
    vyr_list last = 0;
};

Lists& AllLists()
{
    static Lists lists;
    return lists;
}

/// How many references the host has to each object that it was given, by its address. Such objects belong to the thread
/// that read the document.
std::map<const void*, int>& GivenObjects()
{
    thread_local std::map<const void*, int> objects;
    return objects;
}

/// Also where a sanitizer knows that nothing is there any longer: then this is what was left.
[[gnu::no_sanitize_address]] std::uintptr_t WordAt(std::uintptr_t address)
{
    return *reinterpret_cast<const volatile std::uintptr_t*>(address); // NOLINT(performance-no-int-to-ptr): checked
}

/// Whether `count` words can be read at `address`.
bool HasWords(std::uintptr_t address, std::size_t count)
{
    return address % alignof(void*) == 0 && VyrPlatform::MemoryMap::IsReadable(address, count * sizeof(void*));
}

bool CanBeObject(std::uintptr_t address)
{
    constexpr std::size_t common = 3;
    if (!HasWords(address, 1))
        return false;
    const std::uintptr_t table = WordAt(address);
    if (!HasWords(table, common))
        return false;
    for (std::size_t index = 0; index < common; ++index)
        if (!VyrPlatform::MemoryMap::IsCode(WordAt(table + index * sizeof(void*))))
            return false;
    return true;
}

void Release(vyr_list handle)
{
    // Destroyed outside the lock.
    std::shared_ptr<const List> released = Held(handle);
    Lists& lists = AllLists();
    const std::lock_guard lock(lists.mutex);
    lists.byHandle.erase(handle);
}

/// The status for the current exception, even when there is no memory for its text.
vyr_status DescribeException()
{
    try {
        throw;
    } catch (const WrongArgument& wrong) {
        return Fail(VYR_WRONG_ARGUMENT, u"wrong argument: " + VyrPlatform::Encoding::FromUtf8(wrong.name));
    } catch (const std::bad_alloc&) {
        lastError.Empty();
        return VYR_OUT_OF_MEMORY;
    } catch (const _com_error& error) {
        CString text;
        text.Format(u"a call of COM failed: %08x", static_cast<std::uint32_t>(error.Error()));
        return Fail(VYR_FAILED, text);
    } catch (const CFileException&) {
        return Fail(VYR_FAILED, u"a file could not be used");
    } catch (const std::exception& error) {
        return Fail(VYR_FAILED, VyrPlatform::Encoding::FromUtf8(error.what()));
    } catch (...) {
        return Fail(VYR_FAILED, u"unknown failure");
    }
}

} // namespace

void Refuse(const char* argument)
{
    throw WrongArgument{argument};
}

vyr_status StatusOfException() noexcept
{
    try {
        return DescribeException();
    } catch (...) {
        return VYR_OUT_OF_MEMORY;
    }
}

std::u16string_view ToView(const std::uint16_t* units, std::ptrdiff_t length, const char* argument)
{
    if (!units && length == 0)
        return {};
    RequireAddress(units, argument);
    const auto* const text = reinterpret_cast<const char16_t*>(units);
    const std::u16string_view view =
        length < 0 ? std::u16string_view(text) : std::u16string_view(text, static_cast<std::size_t>(length));
    if (view.size() > INT_MAX)
        Refuse(argument);
    return view;
}

IDispatch* GivenObject(void* object, const char* argument)
{
    if (!object)
        return nullptr;
    const auto found = GivenObjects().find(object);
    if (found == GivenObjects().end())
        Refuse(argument);
    return static_cast<IDispatch*>(object);
}

IDispatch* HostObject(void* object, const char* argument)
{
    if (object && !CanBeObject(reinterpret_cast<std::uintptr_t>(object)))
        Refuse(argument);
    return static_cast<IDispatch*>(object);
}

void DropReference(IDispatch* object)
{
    const auto found = GivenObjects().find(object);
    if (found != GivenObjects().end() && --found->second == 0)
        GivenObjects().erase(found);
}

COleDateTime ToDateTime(double days, std::int32_t status, const char* argument)
{
    if (!std::isfinite(days) || status < COleDateTime::valid || status > COleDateTime::null)
        Refuse(argument);
    COleDateTime moment(days);
    if (status != COleDateTime::valid)
        moment.SetStatus(static_cast<COleDateTime::DateTimeStatus>(status));
    return moment;
}

GUID ToGuid(const vyr_guid& id)
{
    GUID made{id.data1, id.data2, id.data3, {}};
    std::ranges::copy(id.data4, made.Data4);
    return made;
}

GUID ToGuid(const vyr_guid* id, const char* argument)
{
    RequireAddress(id, argument);
    return ToGuid(*id);
}

VyrPlatform::MessageQueue::MainLoopPass ToDrain(vyr_drain drain, void* context)
{
    if (!drain)
        return {};
    return [drain, context] {
        return drain(context) != 0;
    };
}

FILETIME ToFileTime(std::uint64_t ticks)
{
    return VyrPlatform::ToFileTime(static_cast<VyrPlatform::FileTicks>(ticks));
}

std::optional<FILETIME> ToOptionalFileTime(const std::uint64_t* ticks, const char* argument)
{
    RequireAligned(ticks, argument);
    return ticks ? std::optional<FILETIME>(ToFileTime(*ticks)) : std::nullopt;
}

CRect ToRect(const vyr_rect* rectangle, const char* argument)
{
    RequireAddress(rectangle, argument);
    return {rectangle->left, rectangle->top, rectangle->right, rectangle->bottom};
}

CListCtrl ToListControl(std::intptr_t window)
{
    CListCtrl list;
    list.Attach(ToHandle<HWND>(window));
    return list;
}

vyr_status TextResult::Give(const CString& text) const
{
    const std::u16string_view view = text;
    *m_length = view.size();
    if (view.size() >= m_capacity)
        return Fail(VYR_BUFFER_TOO_SMALL, u"the buffer is too small");
    std::memcpy(m_buffer, text.GetString(), view.size() * sizeof *m_buffer);
    m_buffer[view.size()] = 0;
    return VYR_OK;
}

std::uint64_t ToTicks(const FILETIME& moment)
{
    return static_cast<std::uint64_t>(VyrPlatform::ToTicks(moment));
}

vyr_date_time ToC(const COleDateTime& moment)
{
    return {moment, moment.GetStatus()};
}

vyr_guid ToC(const GUID& id)
{
    vyr_guid made{static_cast<std::uint32_t>(id.Data1), id.Data2, id.Data3, {}};
    std::ranges::copy(id.Data4, made.data4);
    return made;
}

void* ToC(IDispatch* object)
{
    if (object)
        ++GivenObjects()[object];
    return object;
}

void* ToC(const MSXML2::IXMLDOMDocumentPtr& document)
{
    if (document)
        document->AddRef();
    return ToC(static_cast<IDispatch*>(document.GetInterfacePtr()));
}

vyr_text ToC(const CString& text)
{
    return {reinterpret_cast<const std::uint16_t*>(text.GetString()), text.GetLength()};
}

vyr_list Hold(std::shared_ptr<const List> list)
{
    Lists& lists = AllLists();
    const std::lock_guard lock(lists.mutex);
    lists.byHandle.emplace(lists.last + 1, std::move(list));
    return ++lists.last;
}

std::shared_ptr<const List> Held(vyr_list handle)
{
    Lists& lists = AllLists();
    const std::lock_guard lock(lists.mutex);
    const auto found = lists.byHandle.find(handle);
    if (found == lists.byHandle.end())
        Refuse("list");
    return found->second;
}

} // namespace VyrC

using namespace VyrC;

std::uint32_t vyr_version()
{
    return VYR_VERSION;
}

vyr_status vyr_get_last_error(std::uint16_t* buffer, std::size_t capacity, std::size_t* length)
{
    return Guard([&] {
        // A copy: the error for a too small buffer must not replace this text.
        const CString text = lastError;
        const vyr_status status = TextResult(buffer, capacity, length).Give(text);
        lastError = text;
        return status;
    });
}

vyr_status vyr_list_get_count(vyr_list list, std::size_t* count)
{
    return Guard([&] {
        const NumberResult result(count);
        return result.Give(Held(list)->Count());
    });
}

vyr_status vyr_text_get(vyr_list list, std::size_t index, vyr_text* text)
{
    return Guard([&] {
        RequireAddress(text, "text");
        *text = ToC(RecordAt<CString>(Held(list), index));
        return VYR_OK;
    });
}

vyr_status vyr_list_release(vyr_list list)
{
    return Guard([&] {
        Release(list);
        return VYR_OK;
    });
}
