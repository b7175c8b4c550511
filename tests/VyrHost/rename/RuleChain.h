// For tests: rules applied to one entry.
#pragma once

#include <VyrHost/rename/Rule.h>

#include <utility>

namespace VyrTests {

/// The file "NAME EXTENSION" in the folder /d/.
inline VyrHost::Rename::Subject FileSubject(const CString& name, const CString& extension, int index = 0)
{
    VyrHost::Rename::Subject subject;
    subject.folder = u"/d/";
    subject.name = name;
    subject.extension = extension;
    subject.path = subject.folder + name + extension;
    subject.index = index;
    return subject;
}

/// The result of `rules` for `subject`: folder, name and extension in one text. "!" for a fault.
inline CString Apply(const VyrHost::Rename::Rules& rules, VyrHost::Rename::Subject subject)
{
    for (const auto& rule : rules)
        if (rule->Apply(subject) != VyrHost::Rename::Reason::None)
            return u"!";
    return subject.folder + subject.name + subject.extension;
}

/// The rules of both lists in sequence.
inline VyrHost::Rename::Rules Chain(VyrHost::Rename::Rules first, VyrHost::Rename::Rules second)
{
    for (auto& rule : second)
        first.push_back(std::move(rule));
    return first;
}

} // namespace VyrTests
