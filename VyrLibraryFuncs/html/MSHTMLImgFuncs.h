/// @file
/// The pictures of a page that a web control shows.
#pragma once

#include <VyrLibraryFuncs/Export.h>
#include <VyrPlatform/controls/CRect.h>

#include <cstdint>

struct IDispatch;

namespace VyrLibraryFuncs {

/// Fits the pictures of a page into the window that shows it, through the page's document object
/// (VyrPlatform/documents/HtmlTypes.h).
class VYR_FUNCS_API MSHTMLImgFuncs
{
public:
    MSHTMLImgFuncs();
    ~MSHTMLImgFuncs();
    MSHTMLImgFuncs& operator=(const MSHTMLImgFuncs&);

    /// Gives each picture that is shown larger than `client` a style that makes it fit. One that is wider in proportion
    /// than `client` gets the width "100%" and the height "auto", any other the width "auto" and the height "100%".
    ///
    /// Pictures that fit, that have no address, or that the page gives no data about, are not changed, nor is a
    /// document that is not a page. The attributes of a picture are never changed. Call it when the page has been
    /// loaded, and again when the size of its window has changed.
    ///
    /// Example: in a window of 800 x 600, a picture of 2000 x 100 gets the width "100%", and one of 100 x 2000 the
    /// height "100%".
    /// @param document the page, or a null pointer. COM must be initialised on this thread.
    /// @param client the part of the window that shows the page. With an empty one every picture with an
    /// area gets the width "100%".
    /// @throws _com_error with E_OUTOFMEMORY when there is no memory for the text of a style.
    static void SetResizeImgStyle(IDispatch* document, CRect client);

private:
    friend struct PrivateOperations;

    static int IsImageBiggerThanClient(CRect client, std::int32_t imageWidth, std::int32_t imageHeight);
    static double GetClientRatio(CRect client);
    static double GetImageRatio(std::int32_t imageWidth, std::int32_t imageHeight);
};

} // namespace VyrLibraryFuncs
