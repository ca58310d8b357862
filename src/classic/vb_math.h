#pragma once
// The deed arithmetic as the system has always done it: every expression is
// evaluated in double, and a value is rounded to single precision only where it
// is stored into a single (pen points, scale factor, directions...). Run-time
// faults carry the classic numbers and descriptions, because users and the
// message texts ("6.  Error drawing map (mindraw)") know them by those.

#include <cmath>
#include <limits>
#include <stdexcept>
#include <string>

namespace quilmar {

/// A run-time fault with its classic number and description.
class VbError : public std::runtime_error {
public:
    VbError(int number, const char *description) : std::runtime_error(description), m_number(number) {}
    int number() const { return m_number; }
    std::string description() const { return what(); }

    static VbError overflow() { return {6, "Overflow"}; }
    static VbError divisionByZero() { return {11, "Division by zero"}; }
    static VbError invalidCall() { return {5, "Invalid procedure call or argument"}; }
    static VbError typeMismatch() { return {13, "Type mismatch"}; }

private:
    int m_number;
};

/// Checks a double result: infinity or NaN is an Overflow fault.
inline double dbl(double v)
{
    if (!std::isfinite(v))
        throw VbError::overflow();
    return v;
}

/// Stores a double into a single: out of single range is an Overflow fault.
inline float sng(double v)
{
    if (!std::isfinite(v) || std::fabs(v) > static_cast<double>(std::numeric_limits<float>::max()))
        throw VbError::overflow();
    return static_cast<float>(v);
}

/// Floating division: x / 0 is "Division by zero", 0 / 0 is "Overflow".
inline double fdiv(double a, double b)
{
    if (b == 0.0)
        throw a == 0.0 ? VbError::overflow() : VbError::divisionByZero();
    return dbl(a / b);
}

/// Square root: a negative argument is "Invalid procedure call or argument".
inline double fsqrt(double v)
{
    if (v < 0.0)
        throw VbError::invalidCall();
    return std::sqrt(v);
}

/// Rounds half to even, as integer conversion and integer division do.
inline double roundEven(double v) { return std::nearbyint(v); }

/// The circle constant as the system writes it, and a full turn.
inline constexpr double kPi = 3.14159265;
inline constexpr double kFullTurn = 6.2831853;

} // namespace quilmar
