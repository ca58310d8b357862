#pragma once
// A point in drawing units (twips: ground units times the scale factor) or in
// ground units, as each caller says. x grows east, y grows south (down the map).

namespace quilmar {

struct PointF {
    float x = 0.0f;
    float y = 0.0f;
    bool operator==(const PointF &) const = default;
};

} // namespace quilmar
