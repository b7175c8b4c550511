// The string's allocation, and the operations that are too large to be inline.
#include <VyrPlatform/text/CString.h>
#include <VyrPlatform/text/Digits.h>
#include <VyrPlatform/text/Locale.h>

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <limits>
#include <new>
#include <string>

using VyrPlatform::IsDigit;

namespace {

// Lengths are returned as int.
constexpr std::size_t maximumLength = static_cast<std::size_t>(std::numeric_limits<int>::max()) - 1;

char16_t* AppendTo(char16_t* target, std::u16string_view text) noexcept
{
    return std::copy(text.begin(), text.end(), target);
}

/// The parts of a conversion such as %08lx, between the percent sign and its letter.
struct Conversion
{
    bool padWithZeros = false;
    std::size_t width = 0;
    char16_t letter = 0;
    std::size_t end = 0;
};

std::size_t SkipLengthModifier(std::u16string_view format, std::size_t at) noexcept
{
    if (format.substr(at, 3) == u"I64")
        return at + 3;
    while (at < format.size() && (format[at] == u'l' || format[at] == u'h'))
        ++at;
    return at;
}

/// Reads the conversion whose percent sign is at `percent`; its letter is 0 where the format ends within it.
Conversion ReadConversion(std::u16string_view format, std::size_t percent) noexcept
{
    constexpr std::size_t maximumWidth = 1024;
    Conversion conversion;
    std::size_t at = percent + 1;
    if (at < format.size() && format[at] == u'0') {
        conversion.padWithZeros = true;
        ++at;
    }
    for (; at < format.size() && IsDigit(format[at]); ++at)
        conversion.width = std::min(maximumWidth, conversion.width * 10 + static_cast<std::size_t>(format[at] - u'0'));
    at = SkipLengthModifier(format, at);
    if (at < format.size())
        conversion.letter = format[at++];
    conversion.end = at;
    return conversion;
}

/// A number in the form of the letter.
std::string WriteNumber(char16_t letter, std::uint64_t bits, std::size_t size, bool isSigned)
{
    char digits[24];
    const bool hexadecimal = letter == u'x' || letter == u'X';
    char* end = nullptr;
    if (isSigned && (letter == u'd' || letter == u'i')) {
        end = std::to_chars(digits, std::end(digits), static_cast<std::int64_t>(bits)).ptr;
    } else {
        const std::uint64_t mask = size >= 8 ? ~std::uint64_t{0} : (std::uint64_t{1} << (size * 8)) - 1;
        end = std::to_chars(digits, std::end(digits), bits & mask, hexadecimal ? 16 : 10).ptr;
    }
    if (letter == u'X')
        std::transform(digits, end, digits, [](char c) { return c >= 'a' ? static_cast<char>(c - 'a' + 'A') : c; });
    return std::string(digits, end);
}

void AppendPadded(std::u16string& result, std::u16string_view text, const Conversion& conversion, bool isNumber)
{
    const std::size_t padding = conversion.width > text.size() ? conversion.width - text.size() : 0;
    if (isNumber && conversion.padWithZeros) {
        // Zeros are inserted between the sign and the digits.
        const bool negative = text.starts_with(u'-');
        result.append(negative ? u"-" : u"");
        result.append(padding, u'0');
        result.append(text.substr(negative ? 1 : 0));
        return;
    }
    result.append(padding, u' ');
    result.append(text);
}

} // namespace

CString::Buffer* CString::Allocate(std::size_t length, std::size_t capacity)
{
    if (length > maximumLength)
        throw std::bad_alloc();
    capacity = std::min(std::max(length, capacity), maximumLength);
    auto* const buffer = static_cast<Buffer*>(std::malloc(sizeof(Buffer) + (capacity + 1) * sizeof(char16_t)));
    if (!buffer)
        throw std::bad_alloc();
    buffer->owners = 1;
    buffer->length = static_cast<std::uint32_t>(length);
    buffer->capacity = static_cast<std::uint32_t>(capacity);
    buffer->Text()[length] = u'\0';
    return buffer;
}

void CString::Free(Buffer* buffer) noexcept
{
    std::free(buffer);
}

CString::CString(std::u16string_view text) : m_buffer(nullptr)
{
    if (text.empty())
        return;
    m_buffer = Allocate(text.size(), text.size());
    AppendTo(m_buffer->Text(), text);
}

CString::CString(char16_t unit, int count) : m_buffer(nullptr)
{
    if (count < 1)
        return;
    m_buffer = Allocate(static_cast<std::size_t>(count), 0);
    std::fill_n(m_buffer->Text(), count, unit);
}

CString CString::Join(std::initializer_list<std::u16string_view> parts)
{
    std::size_t length = 0;
    for (const std::u16string_view part : parts)
        length += part.size();
    CString result;
    if (length == 0)
        return result;
    result.m_buffer = Allocate(length, length);
    char16_t* end = result.m_buffer->Text();
    for (const std::u16string_view part : parts)
        end = AppendTo(end, part);
    return result;
}

char16_t* CString::Writable()
{
    if (m_buffer && __atomic_load_n(&m_buffer->owners, __ATOMIC_ACQUIRE) != 1)
        CString(View()).Swap(*this);
    return m_buffer ? m_buffer->Text() : nullptr;
}

void CString::Assign(std::u16string_view text)
{
    if (text.empty() || !m_buffer || m_buffer->capacity < text.size() ||
        __atomic_load_n(&m_buffer->owners, __ATOMIC_ACQUIRE) != 1) {
        CString(text).Swap(*this);
        return;
    }
    *AppendTo(m_buffer->Text(), text) = u'\0';
    m_buffer->length = static_cast<std::uint32_t>(text.size());
}

CString& CString::operator+=(std::u16string_view text)
{
    if (text.empty())
        return *this;
    const std::size_t length = View().size();
    const std::size_t total = length + text.size();
    if (m_buffer && m_buffer->capacity >= total && __atomic_load_n(&m_buffer->owners, __ATOMIC_ACQUIRE) == 1) {
        *AppendTo(m_buffer->Text() + length, text) = u'\0';
        m_buffer->length = static_cast<std::uint32_t>(total);
        return *this;
    }
    CString longer;
    longer.m_buffer = Allocate(total, length == 0 ? total : total + total / 2);
    AppendTo(AppendTo(longer.m_buffer->Text(), View()), text);
    longer.Swap(*this);
    return *this;
}

CString CString::Left(int count) const
{
    if (count >= GetLength())
        return *this;
    return View().substr(0, static_cast<std::size_t>(std::max(count, 0)));
}

CString CString::Right(int count) const
{
    return Mid(GetLength() - std::min(std::max(count, 0), GetLength()));
}

CString CString::Mid(int first) const
{
    if (first <= 0)
        return *this;
    return View().substr(static_cast<std::size_t>(std::min(first, GetLength())));
}

CString CString::Mid(int first, int count) const
{
    const int start = std::min(std::max(first, 0), GetLength());
    if (start == 0)
        return Left(count);
    return View().substr(static_cast<std::size_t>(start), static_cast<std::size_t>(std::max(count, 0)));
}

int CString::Find(std::u16string_view text, int start) const noexcept
{
    const std::size_t found = View().find(text, static_cast<std::size_t>(std::max(start, 0)));
    return found == std::u16string_view::npos ? -1 : static_cast<int>(found);
}

int CString::ReverseFind(char16_t unit) const noexcept
{
    const std::size_t found = View().rfind(unit);
    return found == std::u16string_view::npos ? -1 : static_cast<int>(found);
}

int CString::Replace(std::u16string_view find, std::u16string_view replacement)
{
    const std::u16string_view text = View();
    std::size_t found = find.empty() ? std::u16string_view::npos : text.find(find);
    if (found == std::u16string_view::npos)
        return 0;
    CString result;
    int count = 0;
    std::size_t done = 0;
    for (; found != std::u16string_view::npos; found = text.find(find, done)) {
        result += text.substr(done, found - done);
        result += replacement;
        done = found + find.size();
        ++count;
    }
    result += text.substr(done);
    result.Swap(*this);
    return count;
}

CString& CString::MakeUpper()
{
    VyrPlatform::Locale::ToUpper(Writable(), View().size());
    return *this;
}

CString& CString::MakeLower()
{
    VyrPlatform::Locale::ToLower(Writable(), View().size());
    return *this;
}

int CString::CompareNoCase(std::u16string_view other) const
{
    CString left = *this;
    CString right(other);
    return left.MakeLower().View().compare(right.MakeLower());
}

void CString::FormatArguments(std::u16string_view format, std::initializer_list<FormatArgument> arguments)
{
    std::u16string result;
    auto argument = arguments.begin();
    std::size_t done = 0;
    for (std::size_t percent; (percent = format.find(u'%', done)) != std::u16string_view::npos;) {
        result.append(format.substr(done, percent - done));
        const Conversion conversion = ReadConversion(format, percent);
        done = conversion.end;
        const bool wantsText = conversion.letter == u's';
        const bool wantsNumber = conversion.letter != 0 &&
                                 std::u16string_view(u"diuxX").find(conversion.letter) != std::u16string_view::npos;
        const bool isText = argument != arguments.end() && argument->m_kind == FormatArgument::Kind::Text;
        const bool isNumber = argument != arguments.end() && !isText;
        if (wantsText && isText) {
            AppendPadded(result, argument->m_text, conversion, false);
            ++argument;
        } else if (wantsNumber && isNumber) {
            const std::string digits = WriteNumber(conversion.letter, argument->m_bits, argument->m_size,
                                                   argument->m_kind == FormatArgument::Kind::Signed);
            AppendPadded(result, std::u16string(digits.begin(), digits.end()), conversion, true);
            ++argument;
        } else if (conversion.letter == u'%' && conversion.end == percent + 2) {
            result.push_back(u'%');
        } else {
            result.append(format.substr(percent, conversion.end - percent));
        }
    }
    result.append(format.substr(done));
    *this = CString(result);
}
