// libFuzzer entry point for the deed-text reader: any bytes must give rows and
// flags, never a crash or a hang. Spans must lie inside the text.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "deed_text.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::string_view text(reinterpret_cast<const char *>(data), size);
    const auto deed = quilmar::deedtext::parseDeedText(text);
    for (const auto &r : deed.rows)
        if (r.span.begin > r.span.end || r.span.end > size)
            std::abort();
    for (const auto &f : deed.flags)
        if (f.span.begin > f.span.end || f.span.end > size || f.reason.empty())
            std::abort();
    return 0;
}
