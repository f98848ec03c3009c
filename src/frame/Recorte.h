#pragma once
// Clipping a segment to the picture before it is rasterised, so that ends at 1e300 or NaN
// neither fault nor loop for long.

namespace lumerina {

// Cohen-Sutherland against [-1, xmax] x [-1, ymax]. Each cut puts the moved end exactly on
// the edge and interpolates only the other coordinate, so that even ends at 1e300 give the
// visible piece to the pixel. False when nothing of the segment is inside.
inline bool Recortar(double& x1, double& y1, double& x2, double& y2, double xmax, double ymax)
{
    const auto codigo = [&](double x, double y) {
        return (x < -1 ? 1 : 0) | (x > xmax ? 2 : 0) | (y < -1 ? 4 : 0) | (y > ymax ? 8 : 0);
    };
    int c1 = codigo(x1, y1), c2 = codigo(x2, y2);
    for (int passo = 0; passo < 8; ++passo) {
        if ((c1 | c2) == 0)
            return true;
        if (c1 & c2)
            return false;
        const bool primeiro = c1 != 0;
        double& x = primeiro ? x1 : x2;
        double& y = primeiro ? y1 : y2;
        const double ox = primeiro ? x2 : x1, oy = primeiro ? y2 : y1;
        const int c = primeiro ? c1 : c2;
        if (c & 1) { y = y + (oy - y) * ((-1 - x) / (ox - x)); x = -1; }
        else if (c & 2) { y = y + (oy - y) * ((xmax - x) / (ox - x)); x = xmax; }
        else if (c & 4) { x = x + (ox - x) * ((-1 - y) / (oy - y)); y = -1; }
        else { x = x + (ox - x) * ((ymax - y) / (oy - y)); y = ymax; }
        (primeiro ? c1 : c2) = codigo(x, y);
    }
    return (c1 | c2) == 0;
}

}  // namespace lumerina
