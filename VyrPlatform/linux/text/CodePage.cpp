// Code pages through ICU; the tables of each are made on first use and kept.
#include <VyrPlatform/text/CodePage.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <functional>
#include <langinfo.h>
#include <limits>
#include <locale.h>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <unicode/ucnv.h>
#include <unicode/unorm2.h>
#include <unicode/ustring.h>
#include <vector>

namespace VyrPlatform::CodePage {

namespace {

constexpr char16_t replacementUnit = u'\uFFFD';
constexpr std::size_t unitCount = 0x10000;
constexpr unsigned asciiCount = 0x80;

struct KnownPage
{
    const char* icuName;
    std::uint32_t number;
    /// The result for bytes without a character.
    char16_t defaultUnit = replacementUnit;
};

constexpr KnownPage knownPages[] = {
    {"ibm-437", 437},           {"ibm-850", 850},           {"ibm-852", 852},
    {"ibm-866", 866},           {"windows-874", 874},       {"windows-932", 932, u'\u30FB'},
    {"windows-936", 936, u'?'}, {"windows-949", 949, u'?'}, {"windows-950", 950, u'?'},
    {"windows-1250", 1250},     {"windows-1251", 1251},     {"windows-1252", 1252},
    {"windows-1253", 1253},     {"windows-1254", 1254},     {"windows-1255", 1255},
    {"windows-1256", 1256},     {"windows-1257", 1257},     {"windows-1258", 1258},
    {"US-ASCII", 20127},        {"ISO-8859-1", 28591},      {"ISO-8859-2", 28592},
    {"ISO-8859-3", 28593},      {"ISO-8859-4", 28594},      {"ISO-8859-5", 28595},
    {"ISO-8859-6", 28596},      {"ISO-8859-7", 28597},      {"ISO-8859-8", 28598},
    {"ISO-8859-9", 28599},      {"ISO-8859-13", 28603},     {"ISO-8859-15", 28605},
};

using Converter = std::unique_ptr<UConverter, decltype(&ucnv_close)>;

/// A converter that stops at input that it cannot convert; null for a name that ICU does not know.
Converter OpenConverter(const char* icuName)
{
    UErrorCode error = U_ZERO_ERROR;
    Converter converter(ucnv_open(icuName, &error), ucnv_close);
    if (U_FAILURE(error))
        return {nullptr, ucnv_close};
    ucnv_setFallback(converter.get(), true);
    ucnv_setToUCallBack(converter.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &error);
    ucnv_setFromUCallBack(converter.get(), UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &error);
    return converter;
}

/// One code page of one or two bytes a character.
class Page
{
public:
    explicit Page(const KnownPage& known) : m_defaultUnit(known.defaultUnit), m_bytes(unitCount)
    {
        const Converter converter = OpenConverter(known.icuName);
        if (!converter)
            return;
        ReadCharacters(converter.get());
        ReadBytes(converter.get());
        // IBM's own table, unlike that of Windows, has the Greek letter there.
        if (known.number == 437) {
            m_single[0xE6] = u'\u00B5';
            m_bytes[u'\u00B5'] = 0xE6;
        }
    }

    /// Calls `take(unit)` for each unit of the text of `bytes`.
    template <class Take>
    void Read(const char* bytes, Take take) const
    {
        for (const auto* at = reinterpret_cast<const unsigned char*>(bytes); *at; ++at) {
            if (!m_isLead[*at]) {
                take(m_single[*at]);
            } else if (at[1] == 0) {
                take(m_defaultUnit);
            } else {
                take(m_pairs[*at * 0x100U + at[1]]);
                ++at;
            }
        }
    }

    /// Calls `take(byte)` for each byte of `text`.
    template <class Take>
    void Write(const char16_t* text, char defaultCharacter, Take take) const
    {
        for (; *text; ++text) {
            const char16_t composed = ComposedHere(text[0], text[1]);
            const std::uint16_t bytes = m_bytes[composed ? composed : text[0]];
            if (bytes > 0xFF)
                take(static_cast<char>(bytes >> 8));
            take(bytes ? static_cast<char>(bytes) : defaultCharacter);
            if (composed)
                ++text;
        }
    }

private:
    /// The composed letter of `base` and `mark`, where the code page has it; else 0.
    [[nodiscard]] char16_t ComposedHere(char16_t base, char16_t mark) const noexcept
    {
        // Below U+0300 there are no marks.
        if (mark < 0x300)
            return 0;
        static const UNormalizer2* const composer = [] {
            UErrorCode error = U_ZERO_ERROR;
            return unorm2_getNFCInstance(&error);
        }();
        const UChar32 composed = composer ? unorm2_composePair(composer, base, mark) : -1;
        return composed > 0 && composed <= 0xFFFF && m_bytes[static_cast<std::size_t>(composed)]
                   ? static_cast<char16_t>(composed)
                   : u'\0';
    }

    void ReadCharacters(UConverter* converter)
    {
        for (unsigned byte = 0; byte < m_single.size(); ++byte) {
            const char bytes[] = {static_cast<char>(byte)};
            UErrorCode error = U_ZERO_ERROR;
            m_single[byte] = ReadCharacter(converter, bytes, error);
            m_isLead[byte] = error == U_TRUNCATED_CHAR_FOUND;
            // Some tables of IBM swap control characters.
            if (byte < asciiCount)
                m_single[byte] = static_cast<char16_t>(byte);
            else if (m_isLead[byte])
                ReadPairs(converter, byte);
        }
    }

    void ReadPairs(UConverter* converter, unsigned lead)
    {
        m_pairs.resize(unitCount, m_defaultUnit);
        for (unsigned trail = 1; trail < 0x100; ++trail) {
            const char bytes[] = {static_cast<char>(lead), static_cast<char>(trail)};
            UErrorCode error = U_ZERO_ERROR;
            m_pairs[lead * 0x100 + trail] = ReadCharacter(converter, bytes, error);
        }
    }

    /// The one code unit of `bytes`; the default unit where they encode none or several.
    char16_t ReadCharacter(UConverter* converter, std::span<const char> bytes, UErrorCode& error) const
    {
        char16_t units[8];
        const int count = ucnv_toUChars(converter, units, static_cast<int>(std::size(units)), bytes.data(),
                                        static_cast<int>(bytes.size()), &error);
        return U_SUCCESS(error) && count == 1 ? units[0] : m_defaultUnit;
    }

    void ReadBytes(UConverter* converter)
    {
        for (unsigned unit = 1; unit < unitCount; ++unit)
            m_bytes[unit] = static_cast<std::uint16_t>(unit < asciiCount ? unit : BytesOf(converter, unit));
    }

    /// The byte of `unit`, or its two bytes as one number; 0 where it has none.
    static unsigned BytesOf(UConverter* converter, unsigned unit)
    {
        const auto text = static_cast<char16_t>(unit);
        char bytes[8];
        UErrorCode error = U_ZERO_ERROR;
        const int count = ucnv_fromUChars(converter, bytes, static_cast<int>(std::size(bytes)), &text, 1, &error);
        if (U_FAILURE(error) || count < 1 || count > 2)
            return 0;
        const auto first = static_cast<unsigned char>(bytes[0]);
        if (count == 2)
            return first * 0x100U + static_cast<unsigned char>(bytes[1]);
        // IBM's tables map control characters to the signs on its screens.
        return first < 0x20 || first == 0x7F ? 0 : first;
    }

    char16_t m_defaultUnit;
    std::array<char16_t, 0x100> m_single{};
    std::array<bool, 0x100> m_isLead{};
    /// By lead and trail byte; empty in a code page of single bytes.
    std::vector<char16_t> m_pairs;
    /// By code unit, in the form of BytesOf.
    std::vector<std::uint16_t> m_bytes;
};

/// The code page `number`, made at the first call and kept for the life of the process; null for an unknown one.
const Page* FindPage(std::uint32_t number)
{
    // Never destroyed: other threads and late destructors may still use it.
    static auto& mutex = *new std::mutex;
    static auto& pages = *new std::map<std::uint32_t, Page>;
    const std::lock_guard lock(mutex);
    if (const auto made = pages.find(number); made != pages.end())
        return &made->second;
    for (const KnownPage& known : knownPages)
        if (known.number == number)
            return &pages.try_emplace(number, known).first->second;
    return nullptr;
}

/// Writes code units into a buffer as far as they fit, and counts all of them.
template <class Unit>
class Collector
{
public:
    explicit Collector(std::span<Unit> target) noexcept : m_target(target) {}

    void operator()(Unit unit) noexcept
    {
        if (m_count < m_target.size())
            m_target[m_count] = unit;
        ++m_count;
    }
    /// Adds the NUL.
    /// @return the number of code units, including the NUL.
    std::size_t End() noexcept
    {
        (*this)(Unit());
        return m_count;
    }

private:
    std::span<Unit> m_target;
    std::size_t m_count = 0;
};

/// The size of `target` in ICU's type.
template <class Unit>
int32_t RoomIn(std::span<Unit> target) noexcept
{
    return static_cast<int32_t>(std::min<std::size_t>(target.size(), std::numeric_limits<int32_t>::max()));
}

/// The size that ICU's UTF-8 conversions report, with the NUL; 0 on failure.
std::size_t SizeWithNul(int length, UErrorCode error) noexcept
{
    return U_SUCCESS(error) || error == U_BUFFER_OVERFLOW_ERROR ? static_cast<std::size_t>(length) + 1 : 0;
}

std::string EnvironmentLocale()
{
    for (const char* const name : {"LC_ALL", "LC_CTYPE", "LANG"})
        if (const char* const value = std::getenv(name); value && *value)
            return value;
    return "C";
}

/// The code set of the locale in the environment; that of the system's own table of locales where the name has none,
/// empty where that table does not have it.
std::string LocaleCodeSet()
{
    const std::string locale = EnvironmentLocale();
    if (const std::size_t dot = locale.find('.'); dot != std::string::npos)
        return locale.substr(dot + 1, locale.find('@', dot) - dot - 1);
    const locale_t opened = newlocale(LC_CTYPE_MASK, locale.c_str(), nullptr);
    if (!opened)
        return {};
    std::string codeSet = nl_langinfo_l(CODESET, opened);
    freelocale(opened);
    return codeSet;
}

std::uint32_t ReadAnsi()
{
    const std::string codeSet = LocaleCodeSet();
    // ICU takes an empty name for its own default.
    const Converter own = codeSet.empty() ? Converter(nullptr, ucnv_close) : OpenConverter(codeSet.c_str());
    if (!own)
        return utf8;
    UErrorCode error = U_ZERO_ERROR;
    const std::string_view ownName = ucnv_getName(own.get(), &error);
    for (const KnownPage& known : knownPages)
        if (const Converter page = OpenConverter(known.icuName); page && ownName == ucnv_getName(page.get(), &error))
            return known.number;
    return utf8;
}

} // namespace

std::uint32_t GetAnsi()
{
    static const std::uint32_t ansi = ReadAnsi();
    return ansi;
}

std::size_t ToText(std::uint32_t codePage, const char* bytes, std::span<char16_t> target)
{
    if (codePage == 0)
        codePage = GetAnsi();
    if (codePage == utf8) {
        UErrorCode error = U_ZERO_ERROR;
        int32_t length = 0;
        u_strFromUTF8WithSub(target.data(), RoomIn(target), &length, bytes, -1, replacementUnit, nullptr, &error);
        return SizeWithNul(length, error);
    }
    const Page* const page = FindPage(codePage);
    if (!page)
        return 0;
    Collector<char16_t> collector(target);
    page->Read(bytes, std::ref(collector));
    return collector.End();
}

std::size_t ToBytes(std::uint32_t codePage, const char16_t* text, char defaultCharacter, std::span<char> target)
{
    if (codePage == 0)
        codePage = GetAnsi();
    if (codePage == utf8) {
        UErrorCode error = U_ZERO_ERROR;
        int32_t length = 0;
        u_strToUTF8WithSub(target.data(), RoomIn(target), &length, text, -1, replacementUnit, nullptr, &error);
        return SizeWithNul(length, error);
    }
    const Page* const page = FindPage(codePage);
    if (!page)
        return 0;
    Collector<char> collector(target);
    page->Write(text, defaultCharacter, std::ref(collector));
    return collector.End();
}

} // namespace VyrPlatform::CodePage
