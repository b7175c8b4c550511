// Reads the attributes, changes one bit, and writes them.
#include <VyrLibraryFuncs/metadata/AttributesFuncs.h>

#include <VyrPlatform/files/FileAttributes.h>

#include <array>
#include <cstdint>
#include <string_view>

namespace VyrLibraryFuncs {

namespace {

namespace FileAttributes = VyrPlatform::FileAttributes;

/// The indexes of the six in the order of display.
enum Index : int
{
    readOnly = 0,
    hidden = 1,
    system = 2,
    archive = 4,
    temporary = 5,
    notContentIndexed = 10
};

constexpr std::u16string_view displayOrder = u"RHSDATPLCOIEXV";

std::uint32_t BitOf(int index) noexcept
{
    switch (index) {
    case readOnly:
        return 0x1;
    case hidden:
        return 0x2;
    case system:
        return 0x4;
    case archive:
        return 0x20;
    case temporary:
        return 0x100;
    case notContentIndexed:
        return 0x2000;
    default:
        return 0;
    }
}

int SetOne(const CString& path, bool isSet, int index)
{
    // Where they cannot be read, they cannot be written either.
    const std::uint32_t current = FileAttributes::Get(path);
    const std::uint32_t bit = BitOf(index);
    return FileAttributes::Set(path, isSet ? current | bit : current & ~bit) == 0;
}

int Modify(const CString& path, int state, int index)
{
    return state == 0 ? 1 : SetOne(path, state == 1, index);
}

int Select(const CString& text, std::u16string_view letter)
{
    return text.View().find(letter) != std::u16string_view::npos ? 1 : 2;
}

} // namespace

AttributesFuncs::AttributesFuncs() = default;

AttributesFuncs::~AttributesFuncs() = default;

AttributesFuncs& AttributesFuncs::operator=(const AttributesFuncs&) = default;

int AttributesFuncs::SetModifiedFileAttributes(CString path, ATTRIBUTESITEM item)
{
    const std::array<int, 6> results{SetModifiedReadOnlyAttributes(path, item.readOnly),
                                     SetModifiedHiddenAttributes(path, item.hidden),
                                     SetModifiedSystemAttributes(path, item.system),
                                     SetModifiedArchiveAttributes(path, item.archive),
                                     SetModifiedTemporaryAttributes(path, item.temporary),
                                     SetModifiedNotContentIndexedAttributes(path, item.notContentIndexed)};
    for (const int result : results)
        if (result == 0)
            return 0;
    return 1;
}

int AttributesFuncs::GetSelectedReadOnlyAttributes(CString text)
{
    return Select(text, u"R");
}

int AttributesFuncs::GetSelectedHiddenAttributes(CString text)
{
    return Select(text, u"H");
}

int AttributesFuncs::GetSelectedSystemAttributes(CString text)
{
    return Select(text, u"S");
}

int AttributesFuncs::GetSelectedArchiveAttributes(CString text)
{
    return Select(text, u"A");
}

int AttributesFuncs::GetSelectedTemporaryAttributes(CString text)
{
    return Select(text, u"T");
}

int AttributesFuncs::GetSelectedNotContentIndexedAttributes(CString text)
{
    return Select(text, u"I");
}

int AttributesFuncs::GetSelectedAttributes(CString text, CString letter)
{
    return Select(text, letter);
}

int AttributesFuncs::SetReadOnlyAttributes(CString path, int isOn)
{
    return SetOne(path, isOn != 0, readOnly);
}

int AttributesFuncs::SetHiddenAttributes(CString path, int isOn)
{
    return SetOne(path, isOn != 0, hidden);
}

int AttributesFuncs::SetSystemAttributes(CString path, int isOn)
{
    return SetOne(path, isOn != 0, system);
}

int AttributesFuncs::SetArchiveAttributes(CString path, int isOn)
{
    return SetOne(path, isOn != 0, archive);
}

int AttributesFuncs::SetTemporaryAttributes(CString path, int isOn)
{
    return SetOne(path, isOn != 0, temporary);
}

int AttributesFuncs::SetNotContentIndexedAttributes(CString path, int isOn)
{
    return SetOne(path, isOn != 0, notContentIndexed);
}

int AttributesFuncs::SetModifiedReadOnlyAttributes(CString path, int state)
{
    return Modify(path, state, readOnly);
}

int AttributesFuncs::SetModifiedHiddenAttributes(CString path, int state)
{
    return Modify(path, state, hidden);
}

int AttributesFuncs::SetModifiedSystemAttributes(CString path, int state)
{
    return Modify(path, state, system);
}

int AttributesFuncs::SetModifiedArchiveAttributes(CString path, int state)
{
    return Modify(path, state, archive);
}

int AttributesFuncs::SetModifiedTemporaryAttributes(CString path, int state)
{
    return Modify(path, state, temporary);
}

int AttributesFuncs::SetModifiedNotContentIndexedAttributes(CString path, int state)
{
    return Modify(path, state, notContentIndexed);
}

int AttributesFuncs::SetModifiedAttributes(CString path, int state, int index)
{
    return Modify(path, state, index);
}

int AttributesFuncs::SetAttributes(CString path, int isSet, int index)
{
    return SetOne(path, isSet != 0, index);
}

int AttributesFuncs::GetArrtibutesPriority(CString letter)
{
    if (letter.GetLength() != 1)
        return -1;
    for (std::size_t index = 0; index < displayOrder.size(); ++index)
        if (letter.CompareNoCase(displayOrder.substr(index, 1)) == 0)
            return static_cast<int>(index);
    return -1;
}

} // namespace VyrLibraryFuncs
