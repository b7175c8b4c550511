// Documents of all kinds and their property sets.
#include <VyrPlatform/documents/PropertyStorage.h>

#include "PropertySets.h"

#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/common/documents/PropertySetStream.h>
#include <VyrPlatform/registry/RegistryValue.h>

#include <cerrno>
#include <cstring>
#include <utility>
#include <vector>

namespace VyrPlatform {

std::uint32_t ToResult(int error) noexcept
{
    using namespace PropertyStorage;
    switch (error) {
    case 0:
        return Result::ok;
    case ENOENT:
    case ENOTDIR:
        return Result::fileNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
        return Result::accessDenied;
    case EBUSY:
        return Result::shareViolation;
    case EDEADLK:
        return Result::lockViolation;
    case EMLINK:
        return Result::tooManyLinks;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return Result::mediumFull;
    case EILSEQ:
        return Result::damaged;
    case ENOTSUP:
        return Result::notSupported;
    default:
        return Result::writeFault;
    }
}

} // namespace VyrPlatform

namespace VyrPlatform::PropertyStorage {

namespace {

/// Whether an id can be written, or the reason why not.
enum class Permission : std::uint8_t
{
    Write,
    Ignore,
    Refuse
};

Permission MayWrite(std::uint32_t id) noexcept
{
    constexpr std::uint32_t ignored = 0xFFFFFFFF;
    if (id == ignored)
        return Permission::Ignore;
    const bool isOfSet = id == PropertyId::dictionary || id == PropertyId::codePage || id >= PropertyId::firstReserved;
    return isOfSet ? Permission::Refuse : Permission::Write;
}

/// The value of a hexadecimal digit; nothing for another character.
std::optional<std::uint32_t> DigitValue(char16_t unit) noexcept
{
    if (unit >= u'0' && unit <= u'9')
        return unit - u'0';
    const char16_t lower = unit | 0x20;
    if (lower >= u'a' && lower <= u'f')
        return lower - u'a' + 10;
    return std::nullopt;
}

/// Reads {XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}.
bool ReadBracedId(std::u16string_view text, GUID& id)
{
    constexpr std::u16string_view form = u"{xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx}";
    if (text.size() != form.size())
        return false;
    std::vector<std::uint8_t> bytes;
    bool isHigh = true;
    for (std::size_t at = 0; at < form.size(); ++at) {
        if (form[at] != u'x') {
            if (text[at] != form[at])
                return false;
            continue;
        }
        const auto digit = DigitValue(text[at]);
        if (!digit)
            return false;
        if (isHigh)
            bytes.push_back(static_cast<std::uint8_t>(*digit << 4));
        else
            bytes.back() = static_cast<std::uint8_t>(bytes.back() | *digit);
        isHigh = !isHigh;
    }
    const auto number = [&bytes](std::size_t first, std::size_t count) {
        std::uint32_t value = 0;
        for (std::size_t at = first; at < first + count; ++at)
            value = value << 8 | bytes[at];
        return value;
    };
    id.Data1 = number(0, 4);
    id.Data2 = static_cast<std::uint16_t>(number(4, 2));
    id.Data3 = static_cast<std::uint16_t>(number(6, 2));
    std::memcpy(id.Data4, bytes.data() + 8, 8);
    return true;
}

} // namespace

Document::Document(Document&& other) noexcept
    : m_storage(std::exchange(other.m_storage, nullptr)), m_error(other.m_error)
{}

Document& Document::operator=(Document&& other) noexcept
{
    std::swap(m_storage, other.m_storage);
    std::swap(m_error, other.m_error);
    return *this;
}

Document::~Document()
{
    delete m_storage;
}

Document Document::OpenCompound(const CString& path)
{
    std::unique_ptr<IPropertySetStorage> opened;
    const std::uint32_t result = OpenCompoundDocument(path, opened);
    return {opened.release(), result};
}

Document Document::OpenByHandler(const CString& path, const _GUID& handler)
{
    std::unique_ptr<IPropertySetStorage> opened;
    const std::uint32_t result = OpenByOwnHandler(path, handler, opened);
    return {opened.release(), result};
}

PropertySet::PropertySet(PropertySet&& other) noexcept
    : m_properties(std::exchange(other.m_properties, nullptr)), m_error(other.m_error)
{}

PropertySet& PropertySet::operator=(PropertySet&& other) noexcept
{
    std::swap(m_properties, other.m_properties);
    std::swap(m_error, other.m_error);
    return *this;
}

PropertySet::~PropertySet()
{
    delete m_properties;
}

PropertySet PropertySet::Open(IPropertySetStorage* storage, StandardSet set)
{
    std::unique_ptr<IPropertyStorage> opened;
    const std::uint32_t result = storage->Open(set, opened);
    return {opened.release(), result};
}

std::uint32_t PropertySet::Write(std::span<const PropertyWrite> properties) const
{
    std::vector<PropertyWrite> written;
    for (const PropertyWrite& property : properties) {
        const Permission permission = property.value ? MayWrite(property.id) : Permission::Refuse;
        if (permission == Permission::Refuse)
            return Result::invalidParameter;
        if (permission == Permission::Write)
            written.push_back(property);
    }
    return written.empty() ? Result::ok : m_properties->Write(written);
}

bool ReadClassId(const CString& text, _GUID& id)
{
    if (!text.IsEmpty() && text[0] == u'{')
        return ReadBracedId(text, id);
    const Registry::Key key = Registry::Key::Open(HKEY_CLASSES_ROOT, text + u"\\CLSID", Registry::Access::Read);
    const auto named = key.IsOpen() && !text.IsEmpty() ? Registry::ReadText(key.Get(), CString()) : std::nullopt;
    return named && ReadBracedId(*named, id);
}

} // namespace VyrPlatform::PropertyStorage
