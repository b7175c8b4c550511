#include <VyrLibraryFuncs/html/OutputFuncs.h>

#include <VyrLibraryUtils/StringUtils.h>
#include <VyrLibraryUtils/VersionUtils.h>

using VyrLibraryUtils::StringUtils;
using VyrLibraryUtils::VersionUtils;

namespace VyrLibraryFuncs {

OutputFuncs::OutputFuncs() = default;
OutputFuncs::~OutputFuncs() = default;
OutputFuncs& OutputFuncs::operator=(const OutputFuncs&) = default;

CString OutputFuncs::GetOutputFilePath()
{
    return m_outputFilePath;
}

void OutputFuncs::SetOutputFilePath(CString path)
{
    m_outputFilePath = path;
}

int OutputFuncs::GetOutputFilterIndex()
{
    return m_outputFilterIndex;
}

void OutputFuncs::SetOutputFilterIndex(int index)
{
    m_outputFilterIndex = index;
}

CString OutputFuncs::GetGeneratorOutputString()
{
    return GetGeneratorOutputString(VersionUtils::GetProductName());
}

CString OutputFuncs::GetGeneratorOutputString(CString name)
{
    return StringUtils::GetFormatedText(u"%s %s", name, VersionUtils::GetStringProductVersion());
}

int OutputFuncs::GetPropertySize(int choice, int custom)
{
    constexpr int largest = 1024;
    switch (choice) {
    case 0:
        return 0;
    case 2:
        return 800;
    case 3:
        return 640;
    case 4:
        return custom;
    default:
        return largest;
    }
}

CString OutputFuncs::GetDialogPropertyWidth(int width)
{
    return width <= 0 ? CString(u"auto") : StringUtils::IntNumberToString(width);
}

} // namespace VyrLibraryFuncs
