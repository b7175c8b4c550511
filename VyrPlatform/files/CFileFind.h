/// @file
/// The file finder of the platform class library.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

#include <memory>

// The Windows headers define this name as a macro, which would rename the member. A source that includes them undefines
// it before it calls the member.
#pragma push_macro("FindNextFile")
#undef FindNextFile

/// Walks the entries of a folder, including "." and "..", in the system's order.
///
///     CFileFind finder;
///     for (bool more = finder.FindFile(folder + u"/*.*"); more;) {
///         more = finder.FindNextFile();
///         use(finder.GetFilePath());
///     }
class VYR_PLATFORM_API CFileFind
{
public:
    CFileFind();
    CFileFind(const CFileFind&) = delete;
    CFileFind& operator=(const CFileFind&) = delete;
    ~CFileFind();

    /// Begins a search, after closing one in progress.
    /// @param pattern a folder, a separator and "*.*" or "*", which both match every name. Without a folder the current
    ///        one is searched. Any other pattern matches nothing.
    /// @return whether there is an entry; the first FindNextFile goes to it.
    [[nodiscard]] bool FindFile(const CString& pattern);
    /// Goes to the next entry.
    /// @return whether another one follows.
    [[nodiscard]] bool FindNextFile();
    /// Ends the search.
    void Close();

    /// The entry's name; empty when the search is at none.
    [[nodiscard]] CString GetFileName() const;
    /// The folder that is searched, as the pattern names it, without a separator at its end unless it is a root folder.
    [[nodiscard]] CString GetRoot() const;
    /// The entry's path: the root and the name.
    [[nodiscard]] CString GetFilePath() const;
    /// Whether the entry is "." or "..".
    [[nodiscard]] bool IsDots() const;
    /// Whether the entry is a folder. A link to one is not: a walk into folders must not leave the tree.
    [[nodiscard]] bool IsDirectory() const;

private:
    struct Search;
    std::unique_ptr<Search> m_search;
};

#pragma pop_macro("FindNextFile")
