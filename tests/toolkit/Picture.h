// Small pictures as text, one letter a pixel: what tests draw, and what they compare.
#pragma once

#include "Toolkit/graphics/Surface.h"

#include <map>
#include <string>
#include <vector>

using Rows = std::vector<std::string>;

inline const std::map<char, toolkit::Pixel>& PictureLetters()
{
    static const std::map<char, toolkit::Pixel> letters{
        {' ', 0x00000000}, {'.', 0xFFFFFFFF}, {'#', 0xFF000000}, {'R', 0xFFFF0000},
        {'G', 0xFF00FF00}, {'B', 0xFF0000FF}, {'Y', 0xFFFFFF00}, {'r', 0x80800000}, // half of red
    };
    return letters;
}

inline toolkit::Surface MakePicture(const Rows& rows)
{
    toolkit::Surface picture({static_cast<int>(rows.at(0).size()), static_cast<int>(rows.size())});
    for (int y = 0; y < picture.Height(); ++y)
        for (int x = 0; x < picture.Width(); ++x)
            picture.Row(y)[x] = PictureLetters().at(rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)]);
    return picture;
}

// '?' for a pixel that no letter stands for.
inline Rows ShowPicture(const toolkit::Surface& picture)
{
    Rows rows(static_cast<std::size_t>(picture.Height()));
    for (int y = 0; y < picture.Height(); ++y)
        for (int x = 0; x < picture.Width(); ++x) {
            char shown = '?';
            for (const auto& [letter, pixel] : PictureLetters())
                if (pixel == picture.At(x, y))
                    shown = letter;
            rows[static_cast<std::size_t>(y)] += shown;
        }
    return rows;
}
