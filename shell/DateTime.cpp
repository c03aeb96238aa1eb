#include "DateTime.h"

#include <chrono>
#include <ctime>

namespace {
std::function<DateTime()>& Clock()
{
    static std::function<DateTime()> clock;
    return clock;
}

DateTime SystemNow()
{
    using namespace std::chrono;
    const auto now = system_clock::now();
    const std::time_t t = system_clock::to_time_t(now);
    std::tm local{};
    localtime_r(&t, &local);
    DateTime d;
    d.year = local.tm_year + 1900;
    d.month = local.tm_mon + 1;
    d.day = local.tm_mday;
    d.hour = local.tm_hour;
    d.minute = local.tm_min;
    d.second = local.tm_sec;
    d.millisecond = int(duration_cast<milliseconds>(now.time_since_epoch()).count() % 1000);
    return d;
}
}

DateTime Now() { return Clock() ? Clock()() : SystemNow(); }

void SetClock(std::function<DateTime()> clock) { Clock() = std::move(clock); }

std::string FormatDate(const DateTime& date)
{
    static const char* const months[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                         "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    const int m = (date.month >= 1 && date.month <= 12) ? date.month - 1 : 0;
    return std::string(months[m]) + ". " + std::to_string(date.day) + ", " + std::to_string(date.year);
}
