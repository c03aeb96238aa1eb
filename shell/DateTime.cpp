#include "DateTime.h"
#include "Translate.h"

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
    static const char* const months[] = {
        TranslatableText("FormatDate", "Jan"), TranslatableText("FormatDate", "Feb"),
        TranslatableText("FormatDate", "Mar"), TranslatableText("FormatDate", "Apr"),
        TranslatableText("FormatDate", "May"), TranslatableText("FormatDate", "Jun"),
        TranslatableText("FormatDate", "Jul"), TranslatableText("FormatDate", "Aug"),
        TranslatableText("FormatDate", "Sep"), TranslatableText("FormatDate", "Oct"),
        TranslatableText("FormatDate", "Nov"), TranslatableText("FormatDate", "Dec")};
    const int m = (date.month >= 1 && date.month <= 12) ? date.month - 1 : 0;
    // %1 the month's short name, %2 the day, %3 the year: "Nov. 3, 2026" in English.
    return Arg(Translate("FormatDate", "%1. %2, %3"),
               {Translate("FormatDate", months[m]), std::to_string(date.day), std::to_string(date.year)});
}
