/// @file
/// The classes that the public headers publish, read from the headers' own text.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

/// A class that is exported whole.
struct PublishedClass
{
    /// With its namespace.
    std::string name;
    /// The names of its static operations, and how many overloads each has.
    std::map<std::string, int> operations;
};

/// The classes in the headers below `folder` that stand in the namespace of the folder's own name and have static
/// operations.
[[nodiscard]] std::vector<PublishedClass> ReadPublishedClasses(const std::filesystem::path& folder);
