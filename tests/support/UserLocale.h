// For tests: the user's language and region.
#pragma once

#include <VyrPlatform/text/Locale.h>

namespace VyrTests {

/// Puts the process under the locale `name`, such as "de_DE" or "C", until its end of life.
class UserLocale
{
public:
    explicit UserLocale(const CString& name) { VyrPlatform::Locale::SetLocale(name); }
    UserLocale(const UserLocale&) = delete;
    UserLocale& operator=(const UserLocale&) = delete;
    ~UserLocale() { VyrPlatform::Locale::SetLocale(CString()); }
};

} // namespace VyrTests
