#pragma once
// Integer conversion and integer division as the calculators' arithmetic has
// always done them: a value becomes a 32-bit integer by rounding half to even,
// and integer division rounds both operands that way before dividing.

#include <cstdint>

#include "vb_math.h"

namespace quilmar {

/// @p v rounded half to even to a 32-bit integer (2.5 -> 2, 3.5 -> 4).
/// @throws VbError Overflow when the rounded value is outside the 32-bit range
inline int32_t toLong(double v)
{
    const double r = roundEven(v);
    if (!(r >= -2147483648.0 && r <= 2147483647.0))
        throw VbError::overflow();
    return static_cast<int32_t>(r);
}

/// Integer division: both operands rounded half to even, quotient truncated
/// toward zero (-7 \ 2 = -3).
/// @throws VbError Division by zero when @p b rounds to 0; Overflow as toLong
inline int32_t intDiv(double a, double b)
{
    const int32_t x = toLong(a);
    const int32_t y = toLong(b);
    if (y == 0)
        throw VbError::divisionByZero();
    if (x == INT32_MIN && y == -1)
        throw VbError::overflow();
    return x / y;
}

} // namespace quilmar
