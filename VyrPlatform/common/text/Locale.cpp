// Keeps the locale in force and its data.
#include <VyrPlatform/common/text/DatePattern.h>
#include <VyrPlatform/common/text/SystemLocale.h>
#include <VyrPlatform/text/Locale.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <map>
#include <memory>
#include <mutex>

namespace VyrPlatform::Locale {

namespace {

/// A value that is read on first use.
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
    explicit LocaleData(const CString& localeName) : name(localeName) {}

    CString name;
    Lazy<Collation> collation;
    Lazy<DateTexts> dateTexts;
    Lazy<NumberTexts> numberTexts;
};

/// The locale in force, by Category.
constinit std::array<std::atomic<const LocaleData*>, categoryCount> currentLocales{};

/// The data of the locale `name`, read at the first call and kept for the life of the process.
const LocaleData& Load(const CString& name)
{
    // Never destroyed: other threads and late destructors may still use its data.
    static auto& mutex = *new std::mutex;
    static auto& loaded = *new std::map<CString, LocaleData>;
    const std::lock_guard lock(mutex);
    return loaded.try_emplace(name, name).first->second;
}

const LocaleData& Current(Category category)
{
    std::atomic<const LocaleData*>& currentLocale = currentLocales[static_cast<std::size_t>(category)];
    const LocaleData* current = currentLocale.load(std::memory_order_acquire);
    if (!current) [[unlikely]] {
        const LocaleData* const own = &Load(UserLocaleName(category));
        // Unless another thread was quicker.
        if (currentLocale.compare_exchange_strong(current, own))
            current = own;
    }
    return *current;
}

char16_t Upper(char16_t unit) noexcept
{
    if (unit < 0x80)
        return unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - u'a' + u'A') : unit;
    return SystemUpper(unit);
}

char16_t Lower(char16_t unit) noexcept
{
    if (unit < 0x80)
        return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit - u'A' + u'a') : unit;
    return SystemLower(unit);
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
    std::transform(text, text + length, text, Upper);
}

void ToLower(char16_t* text, std::size_t length)
{
    std::transform(text, text + length, text, Lower);
}

int Compare(const CString& left, const CString& right)
{
    const LocaleData& locale = Current(Category::Collation);
    return locale.collation.Get([&] { return MakeCollation(locale.name); })(left, right);
}

const DateTexts& GetDateTexts()
{
    const LocaleData& locale = Current(Category::Dates);
    return locale.dateTexts.Get([&] { return ReadTidyDateTexts(locale.name); });
}

const NumberTexts& GetNumberTexts()
{
    const LocaleData& locale = Current(Category::Numbers);
    return locale.numberTexts.Get([&] { return ReadNumberTexts(locale.name); });
}

void SetLocale(const CString& name)
{
    const LocaleData* const chosen = name.IsEmpty() ? nullptr : &Load(SystemLocaleName(name));
    for (std::atomic<const LocaleData*>& currentLocale : currentLocales)
        currentLocale.store(chosen, std::memory_order_release);
}

} // namespace VyrPlatform::Locale
