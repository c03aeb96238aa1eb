#pragma once
// Local date and time, and the one date text the game shows.
#include <functional>
#include <string>

struct DateTime {
    int year = 1970, month = 1, day = 1;   // month 1..12
    int hour = 0, minute = 0, second = 0;
    int millisecond = 0;

    bool SameDay(const DateTime& other) const
    {
        return year == other.year && month == other.month && day == other.day;
    }
    // Fractions included: the roll's random source is seeded with it.
    double SecondsSinceMidnight() const
    {
        return hour * 3600.0 + minute * 60.0 + second + millisecond / 1000.0;
    }
};

DateTime Now();

// Tests pin the clock; an empty function restores the real one.
void SetClock(std::function<DateTime()> clock);

// "mmm. d, yyyy" in English, "Nov. 3, 2026"; in another language its own order and short
// month names, as its translation gives them.
std::string FormatDate(const DateTime& date);
