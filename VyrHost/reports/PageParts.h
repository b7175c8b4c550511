/// @file
/// What a page has beside the tags of HtmlFuncs: the style that all designs build on, the script, and the elements that
/// HtmlFuncs has no tags for.
#pragma once

#include <string_view>

namespace VyrHost::Reports::PageParts {

/// For the head: the page fits a telephone, and asks for nothing from outside.
extern const std::string_view headElements;
extern const std::string_view styleBeginning;
extern const std::string_view styleEnd;
/// The colours, for light and dark, and how the list is laid out, also on paper.
extern const std::string_view style;
extern const std::string_view mainBeginning;
extern const std::string_view mainEnd;
/// Adds the search box and the sorting by a click on a heading to the page, which is whole without them. A cell's value
/// for sorting stands in its attribute `data-value`, or is its text.
extern const std::string_view script;

} // namespace VyrHost::Reports::PageParts
