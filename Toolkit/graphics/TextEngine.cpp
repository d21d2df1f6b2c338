#include "Toolkit/graphics/TextEngine.h"

#include "Toolkit/base/Text.h"
#include "Toolkit/graphics/BuiltinFont.h"

namespace
{

toolkit::TextEngine* s_pInstalled = nullptr;

// Where a text may be cut: at its start and before each code point that is no combining mark.
std::vector<std::size_t> FindCuts(std::string_view text)
{
    std::vector<std::size_t> cuts{0};
    for (std::size_t at = 0; at < text.size();) {
        const toolkit::CodePoint c = toolkit::DecodeUtf8(text.substr(at));
        if (at > 0 && !toolkit::IsCombiningMark(c.value))
            cuts.push_back(at);
        at += static_cast<std::size_t>(c.bytes);
    }
    return cuts;
}

} // namespace

toolkit::TextEngine& toolkit::CurrentTextEngine()
{
    return s_pInstalled ? *s_pInstalled : BuiltinTextEngine();
}

void toolkit::InstallTextEngine(TextEngine* pEngine)
{
    s_pInstalled = pEngine;
}

toolkit::TextEngine& toolkit::BuiltinTextEngine()
{
    static BuiltinFont font;
    return font;
}

std::string toolkit::Ellipsize(std::string_view text, int width, FontStyle style)
{
    constexpr std::string_view kDots = "...";
    TextEngine& engine = CurrentTextEngine();
    if (engine.Measure(text, style) <= width)
        return std::string(text);

    const auto cutAt = [&](std::size_t cut) { return std::string(text.substr(0, cut)).append(kDots); };
    const auto fits = [&](std::size_t cut) { return engine.Measure(cutAt(cut), style) <= width; };
    const std::vector<std::size_t> cuts = FindCuts(text);
    const auto firstTooWide = std::partition_point(cuts.begin() + 1, cuts.end(), fits);
    return cutAt(*(firstTooWide - 1));
}
