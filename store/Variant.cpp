#include "Variant.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace {
template <class Int>
Int Clamp(double value)
{
    if (std::isnan(value))
        return 0;
    const double low = std::numeric_limits<Int>::min();
    const double high = std::numeric_limits<Int>::max();
    return static_cast<Int>(std::clamp(std::trunc(value), low, high));
}
}

Variant::Variant(const DateTime& value)
{
    char text[32];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", value.year, value.month,
                  value.day, value.hour, value.minute, value.second);
    value_ = std::string(text);
}

double Variant::CDbl() const
{
    if (const auto* whole = std::get_if<long long>(&value_))
        return double(*whole);
    if (const auto* real = std::get_if<double>(&value_))
        return *real;
    if (const auto* text = std::get_if<std::string>(&value_))
        return std::strtod(text->c_str(), nullptr);
    return 0.0;
}

bool Variant::CBool() const
{
    if (const auto* whole = std::get_if<long long>(&value_))
        return *whole != 0;
    return CDbl() != 0.0;
}

std::int16_t Variant::CInt() const
{
    if (const auto* whole = std::get_if<long long>(&value_))
        return std::int16_t(std::clamp<long long>(*whole, INT16_MIN, INT16_MAX));
    return Clamp<std::int16_t>(CDbl());
}

std::int32_t Variant::CLng() const
{
    if (const auto* whole = std::get_if<long long>(&value_))
        return std::int32_t(std::clamp<long long>(*whole, INT32_MIN, INT32_MAX));
    return Clamp<std::int32_t>(CDbl());
}

std::string Variant::CStr() const
{
    if (const auto* text = std::get_if<std::string>(&value_))
        return *text;
    if (const auto* whole = std::get_if<long long>(&value_))
        return std::to_string(*whole);
    if (const auto* real = std::get_if<double>(&value_)) {
        char buffer[32];
        std::snprintf(buffer, sizeof buffer, "%.15g", *real);
        return buffer;
    }
    return {};
}

DateTime Variant::CDate() const
{
    DateTime read;
    const int parts = std::sscanf(CStr().c_str(), "%4d-%2d-%2d %2d:%2d:%2d", &read.year, &read.month,
                                  &read.day, &read.hour, &read.minute, &read.second);
    return parts >= 3 ? read : DateTime{};
}
