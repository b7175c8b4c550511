// For tests: the document object of a page whose elements the test describes.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

struct IDispatch;

namespace VyrTests {

/// One element, and what has become of its style.
struct HtmlElement
{
    /// What the element does not do.
    enum class Fault
    {
        None,
        /// The page's list fails at its index.
        NotInList,
        /// The page's list gives no object at its index.
        NoObject,
        /// The rest do what their names say, and fail otherwise.
        NoPicture,
        NoElement,
        NoAddress,
        NoWidth,
        NoHeight,
        NoStyle,
        /// It gives no object as its style.
        NoStyleObject,
        StyleRefusesWidth,
        StyleRefusesHeight
    };

    /// Of its picture. Empty: a null pointer or an empty text, by its index.
    CString address;
    std::int32_t width = 0;
    std::int32_t height = 0;
    Fault fault = Fault::None;
    /// Called when its style is asked for.
    std::function<void()> onStyle = [] {
    };

    /// What was set; nothing where nothing was.
    std::optional<CString> styleWidth;
    std::optional<CString> styleHeight;
};

class HtmlPage
{
public:
    /// What the page does not do.
    enum class Fault
    {
        None,
        /// It is an object of another kind.
        NoPage,
        /// It fails to give a list of its elements.
        NoList,
        /// It gives no object as that list.
        NoListObject,
        /// The list does not tell its length.
        NoLength,
        NegativeLength
    };

    explicit HtmlPage(std::vector<HtmlElement> elements, Fault fault = Fault::None);
    HtmlPage(const HtmlPage&) = delete;
    HtmlPage& operator=(const HtmlPage&) = delete;
    ~HtmlPage();

    /// Lives as long as this object, whoever releases it.
    [[nodiscard]] IDispatch* Document();
    [[nodiscard]] const std::vector<HtmlElement>& Elements() const;
    /// How many interfaces of the page and its parts were handed out and not released.
    [[nodiscard]] int CountOwners() const;

private:
    struct Objects;
    std::unique_ptr<Objects> m_objects;
};

} // namespace VyrTests
