// The L-system's line routine must light exactly the pixels the picture control's own Linha
// lights (same rounding, same clipping, both ends), and report every pixel it touched.

#include "frame/ControloImagem.h"
#include "geometric/Tracado.h"

#include <gtest/gtest.h>

#include <limits>

namespace lumerina {
namespace {

TEST(Tracado, MesmosPixeisQueALinhaDaImagem)
{
    constexpr int W = 40, H = 30;
    constexpr QRgb kAzul = 0xFF0000FFu;
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    const Segmento casos[] = {
        {3, 4, 30, 20},          {30, 20, 3, 4},          {5, 5, 5, 5},
        {0, 0, 39, 29},          {39, 0, 0, 29},          {10, 2.5, 10, 7.5},
        {2.5, -0.5, 7.49, 3.5},  {-0.5, 10, 40.5, 10},    {20, -5, 20, 50},
        {-10, -10, 50, 45},      {-1, -1, -1, 29},        {40, 0, 40, 29},
        {12, 12, 1e300, 13},     {12, 12, 13, -1e300},    {-1e300, -1e300, 1e300, 1e300},
        {-100, 5, -50, 20},      {60, -3, 90, 8},         {12, 12, nan, 3},
        {35.4, 26.6, 80.2, 31.7},
    };
    for (const Segmento& s : casos) {
        ControloImagem imagem(nullptr, W, H);
        imagem.Linha(s.x1, s.y1, s.x2, s.y2, kAzul);

        QImage propria(W, H, QImage::Format_RGB32);
        propria.fill(imagem.CorFundo());
        const ImagemCrua crua{reinterpret_cast<std::uint32_t*>(propria.bits()),
                              propria.bytesPerLine() / 4, W, H};
        const Rectangulo r = TracarSegmentos(crua, &s, 1, kAzul);

        int diferentes = 0, foraDoRectangulo = 0;
        for (int y = 0; y < H; ++y)
            for (int x = 0; x < W; ++x) {
                diferentes += propria.pixel(x, y) != imagem.Imagem().pixel(x, y);
                if (propria.pixel(x, y) == kAzul && (x < r.x1 || x > r.x2 || y < r.y1 || y > r.y2))
                    ++foraDoRectangulo;
            }
        EXPECT_EQ(diferentes, 0) << s.x1 << "," << s.y1 << " -> " << s.x2 << "," << s.y2;
        EXPECT_EQ(foraDoRectangulo, 0) << s.x1 << "," << s.y1 << " -> " << s.x2 << "," << s.y2;
        EXPECT_TRUE(r.x1 >= 0 && r.y1 >= 0 && (r.Vazio() || (r.x2 < W && r.y2 < H)));
    }

    // An infinite end gives no direction to draw in (a step that overflowed): nothing is drawn.
    QImage propria(W, H, QImage::Format_RGB32);
    propria.fill(Qt::white);
    const ImagemCrua crua{reinterpret_cast<std::uint32_t*>(propria.bits()),
                          propria.bytesPerLine() / 4, W, H};
    const Segmento infinitos[] = {{12, 12, inf, 12}, {12, 12, 12, -inf}, {-inf, 3, inf, 3}};
    EXPECT_TRUE(TracarSegmentos(crua, infinitos, 3, kAzul).Vazio());
    EXPECT_EQ(propria.pixel(12, 12), qRgb(255, 255, 255));
}

}  // namespace
}  // namespace lumerina
