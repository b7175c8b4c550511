// The content of a private-profile file.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace VyrPlatform {

/// Sections of keys and values, with the rules of PrivateProfile.h. Exported only for the fuzz target.
class VYR_PLATFORM_API ProfileText
{
public:
    explicit ProfileText(std::string_view bytes);

    /// The value of `key` in `section` without its quotes; nothing where there is none.
    [[nodiscard]] std::optional<CString> Find(std::u16string_view section, std::u16string_view key) const;
    /// Sets it.
    /// @return whether the text has changed.
    bool Set(std::u16string_view section, std::u16string_view key, std::u16string_view value);
    /// The content in normal form, in its own encoding.
    [[nodiscard]] std::string ToBytes() const;

private:
    enum class Form : std::uint8_t
    {
        Ansi,
        Utf8,
        Utf16LittleEndian,
        Utf16BigEndian
    };
    /// The code units of the file: of UTF-16, or single bytes. Unchanged parts are not converted, so they are written
    /// back exactly in any encoding.
    using Raw = std::u16string;
    struct Entry
    {
        Raw name;
        std::optional<Raw> value;
    };
    struct Section
    {
        Raw name;
        std::vector<Entry> entries;
    };

    void TakeForm(std::string_view& bytes);
    void AddLine(std::u16string_view line);
    [[nodiscard]] std::uint32_t PageNumber() const noexcept;
    [[nodiscard]] bool IsUtf16() const noexcept;
    [[nodiscard]] Raw ToRaw(std::string_view bytes) const;
    [[nodiscard]] Raw ToRaw(std::u16string_view text) const;
    [[nodiscard]] CString ToText(const Raw& raw) const;
    [[nodiscard]] bool IsNamed(const Raw& name, std::u16string_view wanted) const;
    template <class All>
    [[nodiscard]] auto FindNamed(All& all, std::u16string_view name) const;

    Form m_form = Form::Ansi;
    /// The first has the lines before all sections, and no line of its own.
    std::vector<Section> m_sections{1};
};

} // namespace VyrPlatform
