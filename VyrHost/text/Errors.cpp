#include <VyrHost/text/Errors.h>

#include <VyrHost/text/SafeText.h>
#include <VyrPlatform/documents/PropertyStorage.h>
#include <VyrPlatform/process/Process.h>

namespace VyrHost::Text {

namespace {

/// Empty for any other code.
CString DocumentText(std::uint32_t result)
{
    namespace Result = VyrPlatform::PropertyStorage::Result;
    switch (result) {
    case Result::fileNotFound:
        return u"it has no summary information, or is not there any more";
    case Result::accessDenied:
        return u"it is read-only, or may not be read or written";
    case Result::shareViolation:
        return u"another program has it open, or has written to it";
    case Result::lockViolation:
        return u"another program has locked it";
    case Result::tooManyLinks:
        return u"it has several hard links, of which the others would keep the old document";
    case Result::mediumFull:
        return u"there is no space left on the disk";
    case Result::damaged:
        return u"it is damaged, or not a document of its kind";
    case Result::classNotRegistered:
        return u"no handler is registered for documents of its kind";
    case Result::notSupported:
    case Result::noInterface:
        return u"such a document has no property that is to be changed";
    case Result::invalidParameter:
        return u"such a document cannot hold the text";
    case Result::writeFault:
        return u"it could not be read or written";
    default:
        return {};
    }
}

} // namespace

void RefuseValue(const std::string& option, std::u16string_view value, const std::string& reason)
{
    throw UsageError(option + " '" + SafeText(value) + "': " + reason);
}

CString ErrorText(std::uint32_t code)
{
    if (code == 0)
        return u"its folder is not where it was";
    if (CString text = DocumentText(code); !text.IsEmpty())
        return text;
    CString text = VyrPlatform::Process::GetErrorMessage(code);
    if (text.IsEmpty())
        text.Format(u"error %u", code);
    return text;
}

} // namespace VyrHost::Text
