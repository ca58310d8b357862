#include "typed_number.h"

#include "number_read.h"

namespace quilmar {

std::optional<double> typedNumber(std::string_view text)
{
    if (!isWholeNumber(text))
        return std::nullopt;
    return leadingNumber(trimBlanks(text));
}

} // namespace quilmar
