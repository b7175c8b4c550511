/// @file
/// The settings of a host's report output.
#pragma once

#include <VyrLibraryFuncs/Export.h>
#include <VyrPlatform/text/CString.h>

namespace VyrLibraryFuncs {

/// The generator text of a report, its picture sizes, and the last chosen output file.
///
/// The two settings live as long as the process; the library only stores them. Use them on one thread.
class VYR_FUNCS_API OutputFuncs
{
public:
    OutputFuncs();
    ~OutputFuncs();
    OutputFuncs& operator=(const OutputFuncs&);

    /// The last chosen output file; empty at first.
    static CString GetOutputFilePath();
    static void SetOutputFilePath(CString path);
    /// The file-type filter chosen with it; 0 at first.
    static int GetOutputFilterIndex();
    static void SetOutputFilterIndex(int index);

    /// Product name, a blank and product version of the running program, such as "Trip Reports 2.1" (VersionUtils).
    static CString GetGeneratorOutputString();
    /// `name`, a blank and the product version of the running program.
    static CString GetGeneratorOutputString(CString name);

    /// The picture size for a choice.
    /// @param choice  0 to 4; every other value counts as 1.
    /// @param custom  the size for the choice 4, in pixels.
    /// @return in pixels: 0, 1024, 800, 640 or `custom` for the choices 0 to 4.
    static int GetPropertySize(int choice, int custom);
    /// The width of a dialog as a CSS value.
    /// @param width  in pixels.
    /// @return `width` in decimal; "auto" where it is 0 or negative.
    static CString GetDialogPropertyWidth(int width);

private:
    static CString m_outputFilePath;
    static int m_outputFilterIndex;
};

} // namespace VyrLibraryFuncs
