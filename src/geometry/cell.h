#pragma once
// One cell of the course table or the leg table. A cell holds the text the user
// typed, or a number once a computation or a global conversion has stored one.

#include <string>
#include <variant>

#include "number_read.h"

namespace quilmar {

class Cell {
public:
    Cell() = default;
    Cell(std::string text) : m_value(std::move(text)) {}
    Cell(const char *text) : m_value(std::string(text)) {}
    Cell(double number) : m_value(number) {}

    bool isNumber() const { return std::holds_alternative<double>(m_value); }
    /// True for the empty text only; a number is never empty.
    bool isEmpty() const { return !isNumber() && std::get<std::string>(m_value).empty(); }
    /// The text as typed; empty for a number cell (callers format numbers themselves).
    const std::string &text() const
    {
        static const std::string none;
        return isNumber() ? none : std::get<std::string>(m_value);
    }
    double number() const { return isNumber() ? std::get<double>(m_value) : 0.0; }
    /// The value by the leading-number rule; a number cell gives its number.
    /// @throws VbError Overflow when the text's number is beyond double range
    double value() const { return isNumber() ? std::get<double>(m_value) : leadingNumber(text()); }

    bool operator==(const Cell &) const = default;

private:
    std::variant<std::string, double> m_value{std::string()};
};

} // namespace quilmar
