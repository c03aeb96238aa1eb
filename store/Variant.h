#pragma once
// The value of one field: empty (NULL), a whole number, a floating-point number or a text,
// as SQLite hands it over. The conversions take whatever the file holds, so a file edited by
// hand or written by an older build never stops a reader.
#include <concepts>
#include <cstdint>
#include <string>
#include <variant>

#include "DateTime.h"

class Variant {
public:
    Variant() = default;
    // Truth values are written as -1 and 0, as the game's own truth values are.
    Variant(bool value) : value_(value ? -1LL : 0LL) {}
    template <std::integral T>
        requires(!std::same_as<T, bool>)
    Variant(T value) : value_(static_cast<long long>(value)) {}
    Variant(double value) : value_(value) {}
    Variant(std::string value) : value_(std::move(value)) {}
    Variant(const char* value) : value_(std::string(value)) {}
    // Dates are stored as 'YYYY-MM-DD HH:MM:SS' so that ordering by the text orders by time.
    Variant(const DateTime& value);

    bool IsNull() const { return std::holds_alternative<std::monostate>(value_); }
    // A whole or floating-point number, as opposed to empty or a text.
    bool IsNumber() const
    {
        return std::holds_alternative<long long>(value_) || std::holds_alternative<double>(value_);
    }
    // Calls `visitor` with std::monostate, long long, double or const std::string&.
    template <class Visitor>
    decltype(auto) Visit(Visitor&& visitor) const { return std::visit(visitor, value_); }

    // Any non-zero number is true; empty is false.
    bool CBool() const;
    // Whole numbers clamp to the 16-bit and 32-bit ranges: a figure beyond the range keeps
    // its side of every comparison (a huge high score stays unbeatable) instead of wrapping.
    std::int16_t CInt() const;
    std::int32_t CLng() const;
    double CDbl() const;
    // Empty gives the empty text.
    std::string CStr() const;
    // A text that does not start with a date in the stored form gives the default DateTime.
    DateTime CDate() const;

    bool operator==(const Variant&) const = default;

private:
    std::variant<std::monostate, long long, double, std::string> value_;
};
