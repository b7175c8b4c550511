// For tests: calls in C++, and their comparison with those in C. Include it behind the functions that show the records.
#pragma once

#include "SameValues.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace VyrCTests {

constexpr int rounds = 12;

template <class Record>
std::string Show(const std::vector<Record>& records)
{
    std::string shown;
    for (const Record& record : records)
        shown += Show(record) + '\n';
    return shown;
}

/// What `operation` gives for each of `items`.
template <class Item>
std::vector<CString> Each(const std::vector<Item>& items, CString (*operation)(Item))
{
    std::vector<CString> given;
    for (const Item& item : items)
        given.push_back(operation(item));
    return given;
}

template <class Call>
std::string ShowCpp(const Call& call)
{
    try {
        if constexpr (std::is_void_v<decltype(call())>) {
            call();
            return "done";
        } else {
            return Show(call());
        }
    } catch (...) {
        return "failed";
    }
}

/// Expects both to give the same with the values of each round; a second that passes between the two calls is given
/// another try.
template <class InCpp>
void ExpectSame(const char* (*inC)(std::size_t round), const InCpp& inCpp)
{
    for (int round = 0; round < rounds; ++round) {
        std::string given;
        std::string expected;
        for (int attempt = 0; attempt < 2 && (attempt == 0 || given != expected); ++attempt) {
            given = inC(static_cast<std::size_t>(round));
            Values values(round);
            expected = inCpp(values);
        }
        EXPECT_EQ(given, expected) << "round " << round;
    }
}

} // namespace VyrCTests
