// Makes the rule that reads the content of files.
#include <VyrHost/rename/RuleTexts.h>

#include <VyrHost/media/ContentKind.h>

#include <memory>
#include <utility>

namespace VyrHost::Rename {

namespace {

class ContentExtensionRule final : public Rule
{
public:
    Reason Apply(Subject& subject) override
    {
        if (subject.isFolder)
            return Reason::None;
        const Media::FileKind found = Media::KindOf(subject.path);
        if (found.error != 0)
            return Reason::ContentNotRead;
        if (found.kind == nullptr)
            return Reason::UnknownContent;
        const CString suffix = subject.extension.Mid(1);
        if (!found.kind->MayHave(suffix))
            subject.extension = CString::Join({u".", found.kind->extension});
        return Reason::None;
    }

    [[nodiscard]] bool MayNumber() const override { return false; }
};

} // namespace

Rules ContentExtensionRules()
{
    return OneRule<ContentExtensionRule>();
}

} // namespace VyrHost::Rename
