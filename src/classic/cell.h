#pragma once
// One cell of the course table or the leg table. A cell holds the text the user
// typed, or a number once a computation or a global conversion has stored one.
// The text's number (leading-number rule) is read once, when the text is set,
// because every redraw reads every cell.

#include <string>

#include "number_read.h"
#include "vb_math.h"

namespace quilmar {

class Cell {
public:
    Cell() = default;
    Cell(std::string text) : m_text(std::move(text)) { readText(); }
    Cell(const char *text) : m_text(text) { readText(); }
    Cell(double number) : m_number(number), m_kind(Kind::Number) {}

    bool isNumber() const { return m_kind == Kind::Number; }
    /// True for the empty text only; a number is never empty.
    bool isEmpty() const { return m_kind != Kind::Number && m_text.empty(); }
    /// The text as typed; empty for a number cell (callers format numbers themselves).
    const std::string &text() const { return m_text; }
    double number() const { return isNumber() ? m_number : 0.0; }
    /// The value by the leading-number rule; a number cell gives its number.
    /// @throws VbError Overflow when the text's number is beyond double range
    double value() const
    {
        if (m_kind == Kind::TextOverflow)
            throw VbError::overflow();
        return m_number;
    }

    bool operator==(const Cell &other) const
    {
        return m_kind == other.m_kind && (isNumber() ? m_number == other.m_number : m_text == other.m_text);
    }

private:
    enum class Kind : unsigned char { Text, Number, TextOverflow };

    void readText()
    {
        try {
            m_number = leadingNumber(m_text);
        } catch (const VbError &) {
            m_kind = Kind::TextOverflow;
        }
    }

    std::string m_text;
    double m_number = 0.0;
    Kind m_kind = Kind::Text;
};

} // namespace quilmar
