// Converts arguments and results of the C interface. Arguments are checked before an operation is called.
#pragma once

#include <VyrC/vyr.h>
#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/controls/CListCtrl.h>
#include <VyrPlatform/controls/CRect.h>
#include <VyrPlatform/documents/XmlTypes.h>
#include <VyrPlatform/process/MainLoop.h>
#include <VyrPlatform/text/CString.h>
#include <VyrPlatform/time/COleDateTime.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace VyrC {

/// Ends the call with VYR_WRONG_ARGUMENT; `argument` names the wrong argument.
[[noreturn, gnu::cold]] void Refuse(const char* argument);
/// The status for the current exception.
[[nodiscard]] vyr_status StatusOfException() noexcept;
/// Calls `work` and returns its status. No exception leaves it.
template <class Work>
[[nodiscard]] vyr_status Guard(const Work& work) noexcept
{
    try {
        return work();
    } catch (...) {
        return StatusOfException();
    }
}

/// Refuses pointers that cannot be the address of a `Type`.
template <class Type>
void RequireAligned(const Type* pointer, const char* argument)
{
    if (reinterpret_cast<std::uintptr_t>(pointer) % alignof(Type) != 0)
        Refuse(argument);
}

template <class Type>
void RequireAddress(const Type* pointer, const char* argument)
{
    if (!pointer)
        Refuse(argument);
    RequireAligned(pointer, argument);
}

/// Refuses a null record, and one whose size no version of its structure has had. `first` is the size of the earliest.
template <class Record>
void RequireRecord(const Record* record, const char* argument, std::size_t first = sizeof(Record))
{
    RequireAddress(record, argument);
    const std::size_t size = record->struct_size;
    if (size < first || size > sizeof(Record) || size % alignof(Record) != 0)
        Refuse(argument);
}

/// Whether the host's version of `record` has the field at `offset`.
template <class Record>
[[nodiscard]] bool HasField(const Record& record, std::size_t offset)
{
    return offset < record.struct_size;
}

// From the host to the library.

[[nodiscard]] std::u16string_view ToView(const std::uint16_t* units, std::ptrdiff_t length, const char* argument);
[[nodiscard]] inline CString ToText(const std::uint16_t* units, std::ptrdiff_t length, const char* argument)
{
    return ToView(units, length, argument);
}
[[nodiscard]] inline CString ToText(const vyr_text& text, const char* argument)
{
    return ToText(text.units, text.length, argument);
}
/// The last `Record` that this thread was given. A function of its own, since the address of what belongs to a thread
/// is not found for nothing.
template <class Record>
[[gnu::noinline]] Record& LastOf()
{
    thread_local Record last;
    return last;
}

/// Makes `kept` the text. Texts mostly come again with the next record, and are then not copied; others go into the
/// memory of the last.
[[gnu::always_inline]] inline void Keep(CString& kept, const vyr_text& text, const char* argument)
{
    RequireAligned(text.units, argument);
    const std::u16string_view last = kept.View();
    if (text.length != static_cast<std::ptrdiff_t>(last.size()) ||
        (!last.empty() && (!text.units || std::memcmp(text.units, last.data(), last.size() * sizeof *text.units) != 0)))
        [[unlikely]]
        kept.Assign(ToView(text.units, text.length, argument));
}
/// Refuses an object that the host was not given, or has released; a null pointer is accepted.
[[nodiscard]] IDispatch* GivenObject(void* object, const char* argument);
/// Refuses what cannot be an object of COM that the host has: it begins with the address of a table, and the functions
/// that all objects have come first in it. A null pointer is accepted.
[[nodiscard]] IDispatch* HostObject(void* object, const char* argument);
/// Notes that the host has one reference less.
void DropReference(IDispatch* object);
[[nodiscard]] COleDateTime ToDateTime(double days, std::int32_t status, const char* argument);
[[nodiscard]] inline COleDateTime ToDateTime(const vyr_date_time& moment, const char* argument)
{
    return ToDateTime(moment.days, moment.status, argument);
}
[[nodiscard]] GUID ToGuid(const vyr_guid& id);
[[nodiscard]] GUID ToGuid(const vyr_guid* id, const char* argument);
[[nodiscard]] VyrPlatform::MessageQueue::MainLoopPass ToDrain(vyr_drain drain, void* context);
[[nodiscard]] FILETIME ToFileTime(std::uint64_t ticks);
/// Nothing for a null pointer.
[[nodiscard]] std::optional<FILETIME> ToOptionalFileTime(const std::uint64_t* ticks, const char* argument);
[[nodiscard]] CRect ToRect(const vyr_rect* rectangle, const char* argument);
/// A handle of the system.
template <class Handle>
[[nodiscard]] Handle ToHandle(std::intptr_t number)
{
    return reinterpret_cast<Handle>(number); // NOLINT(performance-no-int-to-ptr): that is what a handle is in C
}
[[nodiscard]] CListCtrl ToListControl(std::intptr_t window);

/// `count` elements, each converted by `convert`.
template <class Element, class Convert>
[[nodiscard]] auto ToVector(const Element* first, std::size_t count, const char* argument, Convert convert)
{
    std::vector<decltype(convert(*first, argument))> values;
    if (count == 0)
        return values;
    RequireAddress(first, argument);
    if (count > PTRDIFF_MAX / sizeof(Element))
        Refuse(argument);
    for (std::size_t index = 0; index < count; ++index)
        values.push_back(convert(first[index], argument));
    return values;
}

/// `count` records, each converted by `convert`. All have the size of the first: that of the host's version.
template <class Record, class Convert>
[[nodiscard]] auto ToRecords(const Record* first, std::size_t count, const char* argument, Convert convert)
{
    std::vector<std::decay_t<decltype(convert(*first, argument))>> values;
    if (count == 0)
        return values;
    RequireAddress(first, argument);
    const std::size_t size = first->struct_size;
    if (size < sizeof first->struct_size || size > sizeof(Record) || size % alignof(Record) != 0 ||
        count > PTRDIFF_MAX / size)
        Refuse(argument);
    const auto* const bytes = reinterpret_cast<const std::byte*>(first);
    for (std::size_t index = 0; index < count; ++index) {
        const auto& record = *reinterpret_cast<const Record*>(bytes + index * size);
        if (record.struct_size != size)
            Refuse(argument);
        values.push_back(convert(record, argument));
    }
    return values;
}

// From the library to the host. Each refuses a wrong pointer for the result.

class TextResult
{
public:
    TextResult(std::uint16_t* buffer, std::size_t capacity, std::size_t* length)
        : m_buffer(buffer), m_capacity(capacity), m_length(length)
    {
        if (capacity > 0)
            RequireAddress(buffer, "buffer");
        RequireAddress(length, "length");
    }
    [[nodiscard]] vyr_status Give(const CString& text) const;

private:
    std::uint16_t* m_buffer;
    std::size_t m_capacity;
    std::size_t* m_length;
};

template <class Number>
class NumberResult
{
public:
    explicit NumberResult(Number* place) : m_place(place) { RequireAddress(place, "result"); }
    [[nodiscard]] vyr_status Give(Number value) const
    {
        *m_place = value;
        return VYR_OK;
    }

private:
    Number* m_place;
};

[[nodiscard]] std::uint64_t ToTicks(const FILETIME& moment);
[[nodiscard]] vyr_date_time ToC(const COleDateTime& moment);
[[nodiscard]] vyr_guid ToC(const GUID& id);
[[nodiscard]] inline std::intptr_t ToC(HWND window)
{
    return reinterpret_cast<std::intptr_t>(window);
}
/// The host gets the reference.
[[nodiscard]] void* ToC(IDispatch* object);
/// The host gets one of its own.
[[nodiscard]] void* ToC(const MSXML2::IXMLDOMDocumentPtr& document);
/// Valid as long as `text` lives.
[[nodiscard]] vyr_text ToC(const CString& text);

/// A list for which the host has a handle.
class List
{
public:
    List() = default;
    List(const List&) = delete;
    List& operator=(const List&) = delete;
    virtual ~List() = default;
    [[nodiscard]] virtual std::size_t Count() const = 0;
};

template <class Record>
class RecordList : public List
{
public:
    explicit RecordList(std::vector<Record> records) : m_records(std::move(records)) {}
    [[nodiscard]] std::size_t Count() const override { return m_records.size(); }
    [[nodiscard]] const std::vector<Record>& Records() const { return m_records; }

private:
    std::vector<Record> m_records;
};

/// Stores `list` and returns its new handle.
[[nodiscard]] vyr_list Hold(std::shared_ptr<const List> list);
/// Refuses an unknown handle.
[[nodiscard]] std::shared_ptr<const List> Held(vyr_list handle);

/// The record at `index` of a list of `Record`.
template <class Record>
[[nodiscard]] const Record& RecordAt(const std::shared_ptr<const List>& list, std::size_t index)
{
    const auto* const records = dynamic_cast<const RecordList<Record>*>(list.get());
    if (!records)
        Refuse("list");
    if (index >= records->Count())
        Refuse("index");
    return records->Records()[index];
}

class ListResult
{
public:
    explicit ListResult(vyr_list* place) : m_place(place) { RequireAddress(place, "result"); }
    template <class Record>
    [[nodiscard]] vyr_status Give(std::vector<Record> records) const
    {
        *m_place = Hold(std::make_shared<RecordList<Record>>(std::move(records)));
        return VYR_OK;
    }

private:
    vyr_list* m_place;
};

} // namespace VyrC
