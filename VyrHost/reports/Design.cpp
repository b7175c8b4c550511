#include <VyrHost/reports/Design.h>

#include <VyrHost/text/Errors.h>
#include <VyrLibraryFuncs/xmlinfo/StyleFuncs.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/process/Process.h>
#include <VyrPlatform/text/Encoding.h>

#include <algorithm>

namespace VyrHost::Reports {

namespace {

using VyrLibraryFuncs::StyleFuncs;
using VyrLibraryUtils::FileUtils;

constexpr const char16_t* fileName = u"designs.xml";

bool EndsStyleElement(const CString& style)
{
    return CString(style).MakeLower().Find(u"</style") >= 0;
}

} // namespace

CString ShippedDesignsPath()
{
    const CString folder = FileUtils::GetSplitDirPath(VyrPlatform::Process::GetProgramPath());
    const CString beside = folder + fileName;
    return FileUtils::IsFileExist(beside) ? beside : folder + u"../share/vyrlibrary/" + fileName;
}

std::vector<Design> ReadDesigns(const CString& path, const std::string& option)
{
    if (StyleFuncs::GetStylesInformation(path) == 0 || StyleFuncs::GetDesignItemsList().empty())
        Text::RefuseValue(option, path, "it cannot be read as a design document, or has no designs");
    std::vector<Design> designs;
    for (const StyleFuncs::DESIGNITEM& item : StyleFuncs::GetDesignItemsList()) {
        if (EndsStyleElement(item.value))
            Text::RefuseValue(option, path,
                              "the design \"" + VyrPlatform::Encoding::ToUtf8(item.name) +
                                  "\" would end the style element");
        designs.push_back({item.name, item.value});
    }
    return designs;
}

Design ChooseDesign(const std::vector<Design>& designs, const CString& name)
{
    std::string names;
    for (const Design& design : designs) {
        if (name.IsEmpty() || design.name.CompareNoCase(name) == 0)
            return design;
        names += (names.empty() ? "" : ", ") + VyrPlatform::Encoding::ToUtf8(design.name);
    }
    Text::RefuseValue("--design", name, "the designs are " + names);
}

} // namespace VyrHost::Reports
