// The locale in force, what has been read of it, and the rules that are the same on both systems.
#include <VyrPlatform/common/text/DatePattern.h>
#include <VyrPlatform/common/text/SystemLocale.h>
#include <VyrPlatform/text/Locale.h>

#include <atomic>
#include <map>
#include <memory>
#include <mutex>
#include <string_view>

namespace VyrPlatform::Locale {

namespace {

/// Turkish and Azerbaijani have an i with and one without a dot, each with a capital of its own.
bool HasTwoLettersI(std::u16string_view localeName) noexcept
{
    const std::u16string_view language = localeName.substr(0, localeName.find_first_of(u"_-"));
    return language == u"tr" || language == u"az";
}

/// A value that is read when it is first wanted.
template <class Value>
class Lazy
{
public:
    template <class Read>
    const Value& Get(Read read) const
    {
        std::call_once(m_once, [&] { m_value = read(); });
        return m_value;
    }

private:
    mutable std::once_flag m_once;
    mutable Value m_value{};
};

struct LocaleData
{
    explicit LocaleData(const CString& localeName) : name(localeName), hasTwoLettersI(HasTwoLettersI(name)) {}

    CString name;
    bool hasTwoLettersI;
    Lazy<Collation> collation;
    Lazy<DateTexts> dateTexts;
    Lazy<NumberTexts> numberTexts;
};

constinit std::atomic<const LocaleData*> currentLocale = nullptr;

/// The data of the locale `name`, made at the first call and kept for the life of the process.
const LocaleData& Load(const CString& name)
{
    // Never destroyed: other threads and late destructors may still use what they were given.
    static auto& mutex = *new std::mutex;
    static auto& loaded = *new std::map<CString, LocaleData>;
    const std::lock_guard lock(mutex);
    return loaded.try_emplace(name, name).first->second;
}

const LocaleData& Current()
{
    const LocaleData* current = currentLocale.load(std::memory_order_acquire);
    if (!current) [[unlikely]] {
        const LocaleData* const own = &Load(UserLocaleName());
        // Unless another thread was quicker.
        if (currentLocale.compare_exchange_strong(current, own))
            current = own;
    }
    return *current;
}

constexpr char16_t capitalDottedI = u'\u0130';
constexpr char16_t smallDotlessI = u'\u0131';

char16_t Upper(char16_t unit, bool hasTwoLettersI) noexcept
{
    if (unit < 0x80) {
        if (unit == u'i' && hasTwoLettersI)
            return capitalDottedI;
        return unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - u'a' + u'A') : unit;
    }
    return unit == smallDotlessI ? u'I' : SystemUpper(unit);
}

char16_t Lower(char16_t unit, bool hasTwoLettersI) noexcept
{
    if (unit < 0x80) {
        if (unit == u'I' && hasTwoLettersI)
            return smallDotlessI;
        return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit - u'A' + u'a') : unit;
    }
    return unit == capitalDottedI ? u'i' : SystemLower(unit);
}

DateTexts ReadTidyDateTexts(const CString& localeName)
{
    DateTexts texts = ReadDateTexts(localeName);
    texts.shortDatePattern = TidyPattern(texts.shortDatePattern);
    texts.timePattern = TidyPattern(texts.timePattern);
    texts.am = texts.am.IsEmpty() ? CString(u"AM") : TidyText(texts.am);
    texts.pm = texts.pm.IsEmpty() ? CString(u"PM") : TidyText(texts.pm);
    return texts;
}

} // namespace

void ToUpper(char16_t* text, std::size_t length)
{
    const bool hasTwoLettersI = Current().hasTwoLettersI;
    for (std::size_t i = 0; i < length; ++i)
        text[i] = Upper(text[i], hasTwoLettersI);
}

void ToLower(char16_t* text, std::size_t length)
{
    const bool hasTwoLettersI = Current().hasTwoLettersI;
    for (std::size_t i = 0; i < length; ++i)
        text[i] = Lower(text[i], hasTwoLettersI);
}

int Compare(const CString& left, const CString& right)
{
    const LocaleData& locale = Current();
    return locale.collation.Get([&] { return MakeCollation(locale.name); })(left, right);
}

const DateTexts& GetDateTexts()
{
    const LocaleData& locale = Current();
    return locale.dateTexts.Get([&] { return ReadTidyDateTexts(locale.name); });
}

const NumberTexts& GetNumberTexts()
{
    const LocaleData& locale = Current();
    return locale.numberTexts.Get([&] { return ReadNumberTexts(locale.name); });
}

void SetLocale(const CString& name)
{
    currentLocale.store(name.IsEmpty() ? nullptr : &Load(SystemLocaleName(name)), std::memory_order_release);
}

} // namespace VyrPlatform::Locale
