// The private operations of the function classes, for the tests: a section for each class with a forwarder for each
// operation.
#pragma once

namespace VyrLibraryFuncs {

struct PrivateOperations
{};

} // namespace VyrLibraryFuncs
