/// @file
/// Input: the standard input, names in a stream of bytes, the byte order mark of UTF-8.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <functional>
#include <string>
#include <string_view>

namespace VyrHost::Text {

/// `bytes` without a byte order mark of UTF-8 at the beginning.
[[nodiscard]] inline std::string_view SkipByteOrderMark(std::string_view bytes)
{
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    return bytes.substr(bytes.starts_with(mark) ? mark.size() : 0);
}

/// Calls `use` with each piece of the standard input, up to its end.
/// @throws UsageError where it cannot be read.
void ReadStandardInput(const std::function<void(std::string_view piece)>& use);

/// The content of the file or pipe that the user named; "-" is the standard input.
/// @throws UsageError where it cannot be read.
[[nodiscard]] std::string ReadInputFile(const CString& path);

/// Splits a stream of bytes, which comes in pieces, into names.
class NameReader
{
public:
    /// @param end  the byte that ends a name. With a line end (`\n`), a byte order mark at the beginning is skipped,
    /// and a `\r` before the line end is skipped where names cannot contain one.
    explicit NameReader(char end) : m_end(end) {}

    /// Calls `take` with each name that ends in `piece`. Empty names are skipped.
    template <class Take>
    void Read(std::string_view piece, Take take)
    {
        for (std::size_t end = piece.find(m_end); end != std::string_view::npos; end = piece.find(m_end)) {
            m_pending += piece.substr(0, end);
            piece.remove_prefix(end + 1);
            Finish(take);
        }
        m_pending += piece;
    }

    /// Calls `take` with the last name, which may lack its end.
    template <class Take>
    void Finish(Take take)
    {
        if (const CString name = Name(); !name.IsEmpty())
            take(name);
        m_pending.clear();
        m_isFirst = false;
    }

private:
    [[nodiscard]] CString Name() const;

    char m_end;
    std::string m_pending;
    bool m_isFirst = true;
};

} // namespace VyrHost::Text
