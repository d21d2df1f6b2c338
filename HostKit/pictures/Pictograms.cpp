#include "HostKit/pictures/Pictograms.h"

#include "HostKit/pictures/Drawing.h"
#include "Toolkit/graphics/SysColors.h"

#include <map>
#include <tuple>

namespace hostkit
{
namespace
{

// Every picture is laid out on 48 units. Below this many pixels details that would only blur are left out.
constexpr double kUnits = 48;
constexpr int kDetailed = 32;

constexpr COLORREF kPaper = RGB(250, 251, 253);
constexpr COLORREF kInk = RGB(92, 104, 120);

// Of signs, which have no ground of their own.
COLORREF SignInk()
{
    return toolkit::IsDark() ? RGB(184, 194, 208) : kInk;
}

COLORREF SignPaper()
{
    return toolkit::IsDark() ? RGB(52, 59, 70) : kPaper;
}

void DrawFolder(Drawing& drawing, bool detailed)
{
    const Shape back = RoundRect({5, 10}, {22, 22}, 3) | RoundRect({5, 14}, {43, 40}, 3);
    const Shape front = RoundRect({4, 19}, {44, 41}, 3.5);
    if (detailed)
        drawing.Shade(RoundRect({5, 20}, {43, 42}, 3.5), 2.5, 0.22);
    drawing.Fill(back, Ink(RGB(222, 156, 44), RGB(206, 138, 30), 10, 40));
    if (detailed)
        drawing.Fill(RoundRect({8, 16.5}, {40, 30}, 1.5), Ink(kPaper));
    drawing.Fill(front, Ink(RGB(255, 212, 112), RGB(247, 186, 70), 19, 41));
    drawing.Fill(front & RoundRect({4, 19}, {44, 20.4}, 0), Ink(RGB(255, 233, 170)));
}

// One picture inside the film: ground and sky, or just a light field where it is small.
void DrawFrameOfFilm(Drawing& drawing, double left, double right, bool detailed, int turn)
{
    const Shape frame = RoundRect({left, 14}, {right, 34}, 1.5);
    drawing.Fill(frame, Ink(RGB(190, 222, 250), RGB(226, 241, 254), 14, 34));
    if (!detailed)
        return;
    const double middle = (left + right) / 2;
    drawing.Fill(frame & Circle({middle, 41}, 11), Ink(RGB(122, 186, 120)));
    drawing.Fill(Circle({middle - 1.5 + turn * 1.5, 24.0 - turn * 3}, 3), Ink(RGB(247, 160, 62)));
}

void DrawPhase(Drawing& drawing, bool detailed)
{
    const Shape film = RoundRect({3, 7}, {45, 41}, 3.5);
    if (detailed)
        drawing.Shade(RoundRect({4, 8}, {44, 42}, 3.5), 2.5, 0.22);
    drawing.Fill(film, Ink(RGB(66, 76, 94), RGB(48, 56, 72), 7, 41));
    const double step = detailed ? 6.0 : 9.0;
    const double hole = detailed ? 3.2 : 4.2;
    for (double x = detailed ? 7.4 : 8.4; x + hole < 44; x += step)
        for (const double y : {8.9, 36.3})
            drawing.Fill(RoundRect({x, y}, {x + hole, y + 2.8}, 0.8), Ink(RGB(232, 238, 246)));
    if (detailed) {
        for (int i = 0; i < 3; ++i)
            DrawFrameOfFilm(drawing, 5.5 + i * 12.8, 16.9 + i * 12.8, true, i);
    } else {
        DrawFrameOfFilm(drawing, 6, 22.5, false, 0);
        DrawFrameOfFilm(drawing, 25.5, 42, false, 0);
    }
}

// A sheet with a mountain and a sun; `sheet` may be a part of the whole.
void DrawPhotograph(Drawing& drawing, const Shape& sheet, double strength)
{
    const Shape scene = sheet & RoundRect({8, 10}, {40, 38}, 1.5);
    drawing.Fill(sheet, Ink(kPaper));
    drawing.Fill(Outline(sheet, 1.2), Ink(kInk, 0.55 * strength));
    drawing.Fill(scene, Ink(RGB(196, 220, 244), strength * 0.8));
    drawing.Fill(scene & Circle({32.5, 17.5}, 3.6), Ink(RGB(250, 190, 84), strength));
    drawing.Fill(scene & Polygon({{4, 42}, {18, 20}, {32, 42}}), Ink(RGB(112, 160, 132), strength));
    drawing.Fill(scene & Polygon({{20, 42}, {31.5, 26}, {44, 42}}), Ink(RGB(136, 184, 150), strength));
}

void DrawPlaceholder(Drawing& drawing, bool)
{
    DrawPhotograph(drawing, RoundRect({5, 7}, {43, 41}, 3), 0.35);
}

void DrawBrokenPicture(Drawing& drawing, bool detailed)
{
    const Shape whole = RoundRect({5, 7}, {43, 41}, 3);
    const Shape left = Polygon({{-4, -4}, {27, -4}, {21, 13}, {27, 20}, {19, 29}, {24, 36}, {21, 52}, {-4, 52}});
    const Shape right = Polygon({{52, -4}, {32, -4}, {26, 13}, {32, 20}, {24, 29}, {29, 36}, {26, 52}, {52, 52}});
    if (detailed)
        drawing.Shade(whole & (left | right), 2, 0.16);
    DrawPhotograph(drawing, whole & left, 0.75);
    DrawPhotograph(drawing, whole & right, 0.75);
    const Shape badge = Circle({37.5, 36.5}, 8.5);
    drawing.Fill(Circle({37.5, 36.5}, 10), Ink(RGB(255, 255, 255)));
    drawing.Fill(badge, Ink(RGB(222, 82, 70), RGB(200, 58, 50), 28, 45));
    drawing.Fill(Stroke({{34.4, 33.4}, {40.6, 39.6}}, 2.6) | Stroke({{40.6, 33.4}, {34.4, 39.6}}, 2.6),
                 Ink(RGB(255, 255, 255)));
}

void DrawTreePane(Drawing& drawing, bool)
{
    drawing.Fill(Stroke({{10, 12}, {10, 36}, {20, 36}}, 3) | Stroke({{10, 24}, {20, 24}}, 3), Ink(kInk));
    drawing.Fill(RoundRect({4, 4}, {18, 16}, 2.5), Ink(RGB(240, 180, 64)));
    drawing.Fill(RoundRect({22, 18}, {44, 29}, 2.5) | RoundRect({22, 33}, {44, 44}, 2.5), Ink(RGB(84, 146, 214)));
}

void DrawIconPane(Drawing& drawing, bool)
{
    const COLORREF colors[] = {RGB(84, 146, 214), RGB(240, 180, 64), RGB(112, 172, 124), RGB(84, 146, 214)};
    for (int i = 0; i < 4; ++i) {
        const Vec at{5.0 + i % 2 * 21, 5.0 + i / 2 * 21};
        drawing.Fill(RoundRect(at, {at.x + 17, at.y + 17}, 4), Ink(colors[i]));
    }
}

void DrawThumbnailPane(Drawing& drawing, bool)
{
    DrawPhotograph(drawing, RoundRect({4, 6}, {44, 42}, 3), 1);
}

void DrawUp(Drawing& drawing, bool)
{
    drawing.Fill(Stroke({{24, 39}, {24, 11}}, 4.5) | Stroke({{11, 24}, {24, 10.5}, {37, 24}}, 4.5), Ink(SignInk()));
}

void DrawBack(Drawing& drawing, bool)
{
    drawing.Fill(Stroke({{39, 24}, {11, 24}}, 4.5) | Stroke({{24, 11}, {10.5, 24}, {24, 37}}, 4.5), Ink(SignInk()));
}

void DrawForward(Drawing& drawing, bool)
{
    drawing.Fill(Stroke({{9, 24}, {37, 24}}, 4.5) | Stroke({{24, 11}, {37.5, 24}, {24, 37}}, 4.5), Ink(SignInk()));
}

// Half a turn with an arrow at its end.
void DrawUndo(Drawing& drawing, bool)
{
    const Shape turn = Outline(Circle({25, 27}, 15.5), 4.5) & RoundRect({25, 8}, {48, 48}, 0);
    drawing.Fill(turn | Stroke({{10, 13.7}, {25, 13.7}}, 4.5) | Stroke({{25, 40.2}, {16, 40.2}}, 4.5) |
                     Stroke({{18, 5}, {9, 13.7}, {18, 22.4}}, 4.5),
                 Ink(SignInk()));
}

void DrawRedo(Drawing& drawing, bool)
{
    const Shape turn = Outline(Circle({23, 27}, 15.5), 4.5) & RoundRect({0, 8}, {23, 48}, 0);
    drawing.Fill(turn | Stroke({{23, 13.7}, {38, 13.7}}, 4.5) | Stroke({{23, 40.2}, {32, 40.2}}, 4.5) |
                     Stroke({{30, 5}, {39, 13.7}, {30, 22.4}}, 4.5),
                 Ink(SignInk()));
}

void DrawCut(Drawing& drawing, bool)
{
    drawing.Fill(Outline(Circle({13, 36}, 8), 4) | Outline(Circle({35, 36}, 8), 4), Ink(RGB(84, 146, 214)));
    drawing.Fill(Stroke({{17, 29.5}, {34, 4}}, 4.2) | Stroke({{31, 29.5}, {14, 4}}, 4.2), Ink(SignInk()));
}

void DrawSheet(Drawing& drawing, Vec at)
{
    const Shape sheet = RoundRect(at, {at.x + 27, at.y + 33}, 3);
    drawing.Fill(sheet, Ink(SignPaper()));
    drawing.Fill(Outline(sheet, 3.6), Ink(SignInk()));
}

void DrawCopy(Drawing& drawing, bool)
{
    DrawSheet(drawing, {4, 3});
    DrawSheet(drawing, {16, 12});
    drawing.Fill(Stroke({{24, 24}, {35, 24}}, 3.2) | Stroke({{24, 33}, {35, 33}}, 3.2), Ink(RGB(84, 146, 214)));
}

void DrawPaste(Drawing& drawing, bool)
{
    const Shape board = RoundRect({4, 6}, {36, 45}, 4);
    drawing.Fill(board, Ink(RGB(240, 180, 64)));
    drawing.Fill(RoundRect({12, 2}, {28, 12}, 3), Ink(SignInk()));
    DrawSheet(drawing, {17, 14});
}

void DrawDelete(Drawing& drawing, bool)
{
    const Shape body = Polygon({{10, 15}, {38, 15}, {35.5, 45}, {12.5, 45}});
    drawing.Fill(Outline(body, 4), Ink(SignInk()));
    drawing.Fill(Stroke({{6, 12}, {42, 12}}, 4.5) | Stroke({{18, 6}, {30, 6}}, 4.5), Ink(SignInk()));
    drawing.Fill(Stroke({{20, 23}, {20.8, 37}}, 3.2) | Stroke({{28, 23}, {27.2, 37}}, 3.2), Ink(RGB(212, 72, 62)));
}

void DrawFind(Drawing& drawing, bool)
{
    drawing.Fill(Stroke({{30, 30}, {42, 42}}, 6), Ink(SignInk()));
    drawing.Fill(Circle({20, 20}, 15), Ink(toolkit::IsDark() ? SignPaper() : RGB(226, 241, 254)));
    drawing.Fill(Outline(Circle({20, 20}, 16), 4.5), Ink(SignInk()));
}

// A sheet with lines of writing and a corner turned down.
void DrawFile(Drawing& drawing, bool detailed)
{
    const Shape whole = Polygon({{10, 4}, {29, 4}, {38, 13}, {38, 44}, {10, 44}});
    if (detailed)
        drawing.Shade(whole, 2, 0.16);
    drawing.Fill(whole, Ink(kPaper));
    drawing.Fill(Outline(whole, 2), Ink(kInk, 0.8));
    drawing.Fill(Polygon({{29, 4}, {38, 13}, {29, 13}}), Ink(kInk, 0.6));
    for (const double y : {21.0, 28.0, 35.0})
        drawing.Fill(Stroke({{16, y}, {32, y}}, 2.6), Ink(kInk, 0.55));
}

void DrawPathArrow(Drawing& drawing, bool)
{
    drawing.Fill(Stroke({{19, 13}, {30, 24}, {19, 35}}, 4), Ink(SignInk(), 0.7));
}

void DrawPlay(Drawing& drawing, bool)
{
    drawing.Fill(Polygon({{13, 7}, {40, 24}, {13, 41}}), Ink(RGB(84, 146, 214)));
}

void DrawPause(Drawing& drawing, bool)
{
    drawing.Fill(RoundRect({10, 8}, {20, 40}, 2.5) | RoundRect({28, 8}, {38, 40}, 2.5), Ink(RGB(84, 146, 214)));
}

void DrawStepBack(Drawing& drawing, bool)
{
    drawing.Fill(Polygon({{36, 9}, {36, 39}, {15, 24}}) | RoundRect({9, 9}, {14, 39}, 1.5), Ink(SignInk()));
}

void DrawStepForward(Drawing& drawing, bool)
{
    drawing.Fill(Polygon({{12, 9}, {33, 24}, {12, 39}}) | RoundRect({34, 9}, {39, 39}, 1.5), Ink(SignInk()));
}

void DrawSlower(Drawing& drawing, bool)
{
    drawing.Fill(Stroke({{22, 12}, {10, 24}, {22, 36}}, 4.5) | Stroke({{38, 12}, {26, 24}, {38, 36}}, 4.5),
                 Ink(SignInk()));
}

void DrawFaster(Drawing& drawing, bool)
{
    drawing.Fill(Stroke({{10, 12}, {22, 24}, {10, 36}}, 4.5) | Stroke({{26, 12}, {38, 24}, {26, 36}}, 4.5),
                 Ink(SignInk()));
}

// Round and round: two arrows, each to the other's tail.
void DrawLoop(Drawing& drawing, bool)
{
    drawing.Fill(Stroke({{8, 24}, {8, 14}, {37, 14}}, 4.2) | Stroke({{30, 6}, {38, 14}, {30, 22}}, 4.2) |
                     Stroke({{40, 24}, {40, 34}, {11, 34}}, 4.2) | Stroke({{18, 26}, {10, 34}, {18, 42}}, 4.2),
                 Ink(SignInk()));
}

void DrawBackAndForth(Drawing& drawing, bool)
{
    drawing.Fill(Stroke({{8, 24}, {40, 24}}, 4.2) | Stroke({{17, 14}, {7, 24}, {17, 34}}, 4.2) |
                     Stroke({{31, 14}, {41, 24}, {31, 34}}, 4.2),
                 Ink(SignInk()));
}

} // namespace

toolkit::Surface DrawPictogram(Pictogram which, int extent)
{
    using Draw = void (*)(Drawing&, bool);
    static constexpr Draw draw[] = {
        DrawFolder,        DrawPhase, DrawBrokenPicture, DrawPlaceholder, DrawTreePane,    DrawIconPane,
        DrawThumbnailPane, DrawUp,    DrawBack,          DrawForward,     DrawPathArrow,   DrawUndo,
        DrawRedo,          DrawCut,   DrawCopy,          DrawPaste,       DrawDelete,      DrawFind,
        DrawFile,          DrawPlay,  DrawPause,         DrawStepBack,    DrawStepForward, DrawSlower,
        DrawFaster,        DrawLoop,  DrawBackAndForth};
    Drawing drawing(extent, kUnits);
    draw[static_cast<int>(which)](drawing, drawing.Pixels() >= kDetailed);
    return drawing.Take();
}

const toolkit::Surface& GetPictogram(Pictogram which, int extent)
{
    static std::map<std::tuple<Pictogram, int, double, bool>, toolkit::Surface> drawn;
    const auto [at, isNew] = drawn.try_emplace({which, extent, toolkit::ScreenScale().Factor(), toolkit::IsDark()});
    if (isNew)
        at->second = DrawPictogram(which, extent);
    return at->second;
}

} // namespace hostkit
