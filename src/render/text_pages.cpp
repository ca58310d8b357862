#include "text_pages.h"

#include <algorithm>

namespace quilmar {

namespace {

constexpr float kLeft = 360.0f;
constexpr float kTop = 720.0f;
constexpr float kBottom = 720.0f;

} // namespace

int charsPerLine(const Surface &surface, PageSize page)
{
    const float w = surface.textWidth("M");
    if (!(w > 0.0f))
        return 1;
    return std::max(1, int((page.width - 2 * kLeft) / w));
}

int paintTextPages(Surface &surface, PageSize page, const std::vector<std::string> &lines)
{
    surface.setScaleOrigin(0.0f, 0.0f);
    const float h = surface.textHeight();
    int pages = 1;
    float y = kTop;
    for (const std::string &line : lines) {
        if (y + h > page.height - kBottom && y > kTop) {
            surface.newPage();
            ++pages;
            y = kTop;
        }
        if (!line.empty())
            surface.text({kLeft, y}, 0, line);
        y += h;
    }
    return pages;
}

} // namespace quilmar
