// For tests: calls through C and in C++, and what they gave, as texts to compare. Include it behind the functions that
// show the records.
#pragma once

#include "SameValues.h"

#include <VyrC/vyr.h>

#include <cstddef>
#include <cstdint>
#include <gtest/gtest.h>
#include <string>
#include <type_traits>
#include <vector>

namespace VyrCTests {

constexpr int rounds = 12;

inline std::string ShowStatus(vyr_status status)
{
    return status == VYR_OK ? "done" : status == VYR_FAILED ? "failed" : "status " + std::to_string(status);
}

/// The result of a call through C, and that of the C++ operation.
struct Pair
{
    std::string inC;
    std::string inCpp;
};

/// The result of `call`, with a buffer of the length that it requests.
template <class Call>
std::string ShowText(const Call& call)
{
    std::size_t length = 0;
    vyr_status status = call(nullptr, 0, &length);
    std::vector<std::uint16_t> buffer(length + 1);
    if (status == VYR_BUFFER_TOO_SMALL)
        status = call(buffer.data(), buffer.size(), &length);
    return status == VYR_OK ? Show(vyr_text{buffer.data(), static_cast<std::ptrdiff_t>(length)}) : ShowStatus(status);
}

template <class Call>
std::string ShowTextAndNumber(const Call& call, const std::int32_t& number)
{
    const std::string text = ShowText(call);
    return text + '/' + std::to_string(number);
}

template <class Number, class Call>
std::string ShowNumber(const Call& call)
{
    Number number{};
    const vyr_status status = call(&number);
    return status == VYR_OK ? Show(number) : ShowStatus(status);
}

/// The content of a list, which is then released.
template <class Record, class Call, class Get>
std::string ShowList(const Call& call, const Get& get)
{
    vyr_list list = 0;
    if (const vyr_status status = call(&list); status != VYR_OK)
        return ShowStatus(status);
    std::string shown;
    std::size_t count = 0;
    EXPECT_EQ(vyr_list_get_count(list, &count), VYR_OK);
    for (std::size_t index = 0; index < count; ++index) {
        Record record{};
        if constexpr (!std::is_same_v<Record, vyr_text>)
            record.struct_size = sizeof record;
        EXPECT_EQ(get(list, index, &record), VYR_OK);
        shown += Show(record) + '\n';
    }
    EXPECT_EQ(vyr_list_release(list), VYR_OK);
    return shown;
}

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
        return Show(call());
    } catch (...) {
        return "failed";
    }
}

template <class Call>
std::string ShowNothing(const Call& call)
{
    try {
        call();
        return "done";
    } catch (...) {
        return "failed";
    }
}

/// Expects both to be the same; a second that passes between the two calls is given another try.
template <class Calls>
void ExpectSame(const Calls& calls)
{
    Pair pair = calls();
    if (pair.inC != pair.inCpp)
        pair = calls();
    EXPECT_EQ(pair.inC, pair.inCpp);
}

} // namespace VyrCTests
