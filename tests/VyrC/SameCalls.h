// For tests: calls in C++, and their comparison with those in C. Include it behind the functions that show the records.
#pragma once

#include "SameValues.h"
#include "Surroundings.h"

#include <gtest/gtest.h>
#include <list>
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

template <class Record>
std::string Show(const std::list<Record>& records)
{
    return Show(std::vector<Record>(records.begin(), records.end()));
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

/// Whether `given` is what a call shows that did not succeed.
inline bool IsFailure(const std::string& given)
{
    return given.starts_with("failed") || given.starts_with("status ");
}

/// What `call` shows, and what it left behind where it acts.
template <class Call>
std::string Outcome(Surroundings& surroundings, const Parts& parts, const Call& call)
{
    if (parts.acts)
        surroundings.Prepare();
    const std::string shown = call();
    return parts.acts ? shown + '\n' + surroundings.State() : shown;
}

/// Expects both to give the same with the values of each round, and to leave the same behind; a second that passes
/// between the two calls is given another try. Some round succeeds, and some round of what acts changes something.
template <class InCpp>
void ExpectSame(const char* (*inC)(std::size_t round), const InCpp& inCpp, const Parts& parts = {})
{
    Surroundings surroundings(parts);
    surroundings.Prepare();
    const std::string before = surroundings.State();
    int successes = 0;
    int acts = 0;
    for (int round = 0; round < parts.rounds; ++round) {
        std::string given;
        std::string expected;
        for (int attempt = 0; attempt < 2 && (attempt == 0 || given != expected); ++attempt) {
            given = Outcome(surroundings, parts, [&] { return inC(static_cast<std::size_t>(round)); });
            Values values(round);
            expected = Outcome(surroundings, parts, [&] { return inCpp(values); });
        }
        EXPECT_EQ(given, expected) << "round " << round;
        successes += !IsFailure(given);
        // Wine answers that it has set some attributes, and drops them.
        acts += surroundings.State() != before || given.starts_with('1');
    }
    EXPECT_GT(successes, 0) << "no round has good arguments";
    EXPECT_TRUE(acts > 0 || !parts.acts || !parts.isSeen) << "no round does anything";
}

} // namespace VyrCTests
