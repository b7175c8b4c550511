// Compiles patterns with PCRE2, and limits the cost of a match.
#include <VyrHost/rename/Pattern.h>

#include <VyrPlatform/text/Encoding.h>

#include <array>

#define PCRE2_CODE_UNIT_WIDTH 16
#include <pcre2.h>

namespace VyrHost::Rename {

namespace {

/// The limit of backtracking steps: a reasonable pattern takes a few hundred for a name.
constexpr std::uint32_t mostSteps = 1'000'000;
constexpr std::uint32_t mostKibibytes = 16 * 1024;

template <auto Free>
struct FreedBy
{
    template <class Object>
    void operator()(Object* object) const
    {
        Free(object);
    }
};

/// The library's texts are units of its own type, of the same size.
PCRE2_SPTR UnitsOf(std::u16string_view text)
{
    return reinterpret_cast<PCRE2_SPTR>(text.data());
}

std::string MessageOf(int error)
{
    std::array<PCRE2_UCHAR, 256> units{};
    const int length = pcre2_get_error_message(error, units.data(), units.size());
    std::string text;
    // The library's messages are English.
    for (int index = 0; index < length; ++index)
        text += static_cast<char>(units[static_cast<std::size_t>(index)]);
    return text;
}

} // namespace

struct Pattern::Compiled
{
    std::unique_ptr<pcre2_code, FreedBy<pcre2_code_free>> code;
    std::unique_ptr<pcre2_match_data, FreedBy<pcre2_match_data_free>> match;
    std::unique_ptr<pcre2_match_context, FreedBy<pcre2_match_context_free>> limits;
};

Pattern::Pattern(const CString& text, bool ignoresCase) : m_compiled(std::make_unique<Compiled>())
{
    constexpr std::uint32_t always = PCRE2_UTF | PCRE2_UCP | PCRE2_MATCH_INVALID_UTF | PCRE2_NEVER_BACKSLASH_C;
    int error = 0;
    std::size_t place = 0;
    m_compiled->code.reset(pcre2_compile(UnitsOf(text.View()), text.View().size(),
                                         always | (ignoresCase ? PCRE2_CASELESS : 0), &error, &place, nullptr));
    if (!m_compiled->code)
        RefusePattern(text, place, MessageOf(error));
    m_compiled->match.reset(pcre2_match_data_create_from_pattern(m_compiled->code.get(), nullptr));
    m_compiled->limits.reset(pcre2_match_context_create(nullptr));
    pcre2_set_match_limit(m_compiled->limits.get(), mostSteps);
    pcre2_set_heap_limit(m_compiled->limits.get(), mostKibibytes);
    ReadNames();
}

Pattern::~Pattern() = default;

void Pattern::ReadNames()
{
    const pcre2_code* const code = m_compiled->code.get();
    std::uint32_t groups = 0;
    std::uint32_t names = 0;
    std::uint32_t width = 0;
    PCRE2_SPTR table = nullptr;
    pcre2_pattern_info(code, PCRE2_INFO_CAPTURECOUNT, &groups);
    pcre2_pattern_info(code, PCRE2_INFO_NAMECOUNT, &names);
    pcre2_pattern_info(code, PCRE2_INFO_NAMEENTRYSIZE, &width);
    pcre2_pattern_info(code, PCRE2_INFO_NAMETABLE, &table);
    m_groupCount = groups;
    // Each row is the number, then the name with a NUL after it.
    for (std::uint32_t row = 0; row < names; ++row, table += width)
        m_names.push_back({reinterpret_cast<const char16_t*>(table + 1), table[0]});
}

CString Pattern::Problem() const
{
    return VyrPlatform::Encoding::FromUtf8(MessageOf(m_problem));
}

Pattern::Result Pattern::Find(std::u16string_view text, std::size_t start, bool mayBeEmpty)
{
    const int count =
        pcre2_match(m_compiled->code.get(), UnitsOf(text), text.size(), start, mayBeEmpty ? 0 : PCRE2_NOTEMPTY_ATSTART,
                    m_compiled->match.get(), m_compiled->limits.get());
    if (count == PCRE2_ERROR_NOMATCH)
        return Result::NotFound;
    if (count < 0) {
        m_problem = count;
        return Result::GaveUp;
    }
    const std::size_t* ends = pcre2_get_ovector_pointer(m_compiled->match.get());
    m_ranges.resize(m_groupCount + 1);
    for (PatternGroups::Range& range : m_ranges) {
        range = ends[0] == PCRE2_UNSET ? PatternGroups::Range{PatternGroups::noPlace, 0}
                                       : PatternGroups::Range{ends[0], ends[1] - ends[0]};
        ends += 2;
    }
    return Result::Found;
}

} // namespace VyrHost::Rename
