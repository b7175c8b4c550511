#!/usr/bin/env python3
"""A calendar with every rule written out, for tests: prints random steps and where they lead.

Each line is "year month day years months days year month day": a date, the step, and the date that the step leads to,
or zeros where the step leaves the years 1400 to 9999.
"""
import random
import sys


def is_leap(year):
    return year % 4 == 0 and (year % 100 != 0 or year % 400 == 0)


def month_length(year, month):
    if month == 2:
        return 29 if is_leap(year) else 28
    return 30 if month in (4, 6, 9, 11) else 31


def year_length(year):
    return 366 if is_leap(year) else 365


FIRST_YEAR, LAST_YEAR = 1400, 9999

# The day number of each year's first day.
year_start = {}
number = 0
for year in range(FIRST_YEAR, LAST_YEAR + 2):
    year_start[year] = number
    number += year_length(year)


def add_months(date, count):
    year, month, day = date
    is_last = day == month_length(year, month)
    index = year * 12 + (month - 1) + count
    year, month = index // 12, index % 12 + 1
    if not FIRST_YEAR <= year <= LAST_YEAR:
        return None
    length = month_length(year, month)
    return year, month, length if is_last else min(day, length)


def add_days(date, count):
    year, month, day = date
    number = year_start[year] + sum(month_length(year, m) for m in range(1, month)) + day - 1 + count
    if not 0 <= number < year_start[LAST_YEAR + 1]:
        return None
    low, high = FIRST_YEAR, LAST_YEAR
    while low < high:
        middle = (low + high + 1) // 2
        if year_start[middle] <= number:
            low = middle
        else:
            high = middle - 1
    rest = number - year_start[low]
    month = 1
    while rest >= month_length(low, month):
        rest -= month_length(low, month)
        month += 1
    return low, month, rest + 1


def move(date, years, months, days):
    if not FIRST_YEAR <= date[0] <= LAST_YEAR:
        return None
    for step, count in ((add_months, years * 12), (add_months, months), (add_days, days)):
        date = step(date, count)
        if date is None:
            return None
    return date


def pick_date():
    year = random.choice((random.randint(100, 9999), random.randint(1400, 1403), random.randint(9996, 9999),
                          random.randint(1395, 1404), random.randint(1890, 2110), random.choice((1900, 2000, 2100))))
    month = random.randint(1, 12)
    length = month_length(year, month)
    return year, month, random.choice((1, length, random.randint(1, length)))


def pick_step(usual):
    return random.choice((0, 0, random.randint(-3, 3), random.randint(-usual, usual), random.randint(-usual, usual),
                          random.randint(-2**31, 2**31 - 1) if random.random() < 0.02 else 0))


random.seed(int(sys.argv[1]))
for _ in range(int(sys.argv[2])):
    date = pick_date()
    steps = pick_step(3000), pick_step(36000), pick_step(1100000)
    print(*date, *steps, *(move(date, *steps) or (0, 0, 0)))
