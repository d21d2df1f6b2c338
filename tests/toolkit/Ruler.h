// A text engine of ten pixels a code point, one a combining mark, that counts what it is asked; in use while it lives.
#pragma once

#include "Toolkit/graphics/TextEngine.h"

class Ruler : public toolkit::TextEngine
{
public:
    Ruler() { toolkit::InstallTextEngine(this); }
    ~Ruler() override { toolkit::InstallTextEngine(nullptr); }

    int LineHeight() const override { return 20; }
    int Measure(std::string_view text, toolkit::FontStyle) override
    {
        ++asked;
        int width = 0;
        for (std::size_t i = 0; i < text.size(); ++i)
            width += text.substr(i).starts_with("\u0301") ? 1 : (text[i] & 0xC0) == 0x80 ? 0 : 10;
        return width;
    }
    void Draw(toolkit::Surface&, const CRect&, CPoint, std::string_view, COLORREF, toolkit::FontStyle) override {}

    int asked = 0;
};
