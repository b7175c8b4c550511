/// @file
/// The parts of a page in addition to the tags of HtmlFuncs: the style that all designs extend, the script, and
/// elements for which HtmlFuncs has no tags.
#pragma once

#include <string_view>

namespace VyrHost::Reports::PageParts {

/// For the head: makes the page fit on a telephone, and forbids loading anything from outside.
extern const std::string_view headElements;
extern const std::string_view styleBeginning;
extern const std::string_view styleEnd;
/// The colours, for light and dark, and the layout of the list, also on a telephone and on paper. The property
/// `--label` of a cell is the heading of its column.
extern const std::string_view style;
extern const std::string_view mainBeginning;
extern const std::string_view mainEnd;
/// Around the table, which may be wider than the window.
extern const std::string_view listBeginning;
extern const std::string_view listEnd;
/// Adds the search box, and sorting by a click on a heading, to the page, which is complete without them. The value of
/// a cell for sorting is in its attribute `data-value`, otherwise it is its text. Without its closing tag.
extern const std::string_view script;

} // namespace VyrHost::Reports::PageParts
