// Painting a thumbnail from a picture that is decoded already, beside Qt's smooth scaling of the same picture into the
// same rectangle.
#include "AtomLib/AtomLib.h"

#include <benchmark/benchmark.h>
#include <random>

#ifdef VIEWS_BENCH_QT
#include <QImage>
#include <QPainter>
#endif

namespace
{

constexpr CRect kRoom(24, 24, 104, 104); // of a picture of 128 by 128

// A photograph's size; smooth shades with noise, so that no two rows are alike.
const toolkit::Surface& Photograph()
{
    static const toolkit::Surface s_photograph = [] {
        toolkit::Surface picture({1024, 768});
        std::mt19937 random(1);
        for (int y = 0; y < picture.Height(); ++y)
            for (int x = 0; x < picture.Width(); ++x)
                picture.Row(y)[x] = 0xFF000000u | (static_cast<toolkit::Pixel>(x / 4) << 16) |
                                    (static_cast<toolkit::Pixel>(y / 3) << 8) | (random() & 0xFF);
        return picture;
    }();
    return s_photograph;
}

void PaintThumbnail(benchmark::State& state)
{
    const HBITMAP hPicture = CreateBitmapFromSurface(Photograph());
    toolkit::Surface target({128, 128}, 0xFFFFFFFF);
    const HDC hdc = toolkit::CreateSurfaceDC(target, {}, toolkit::Region(target.Bounds()));
    for (auto _ : state) {
        CRect room = kRoom;
        if (!DrawThumbnailProportional(hdc, room, hPicture, nullptr, nullptr, nullptr))
            state.SkipWithError("not drawn");
        benchmark::DoNotOptimize(target.Row(0));
    }
    DeleteDC(hdc);
    DeleteBitmap(hPicture);
}
BENCHMARK(PaintThumbnail)->Unit(benchmark::kMicrosecond)->UseRealTime();

#ifdef VIEWS_BENCH_QT
void PaintWithQtsSmoothScaling(benchmark::State& state)
{
    const toolkit::Surface& photograph = Photograph();
    const QImage picture(reinterpret_cast<const uchar*>(photograph.Row(0)), photograph.Width(), photograph.Height(),
                         QImage::Format_ARGB32_Premultiplied);
    QImage target(128, 128, QImage::Format_ARGB32_Premultiplied);
    target.fill(Qt::white);
    for (auto _ : state) {
        const QImage scaled =
            picture.scaled(kRoom.Width(), kRoom.Height(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
        QPainter painter(&target);
        painter.drawImage(kRoom.left + (kRoom.Width() - scaled.width()) / 2,
                          kRoom.top + (kRoom.Height() - scaled.height()) / 2, scaled);
        benchmark::DoNotOptimize(target.bits());
    }
}
BENCHMARK(PaintWithQtsSmoothScaling)->Unit(benchmark::kMicrosecond)->UseRealTime();
#endif

} // namespace
