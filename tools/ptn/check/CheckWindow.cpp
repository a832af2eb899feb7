#include "base/EucText.h"
#include "pattern/ItemParm.h"
#include "pattern/TitleBar.h"
#include "tools/ptn/check/Check.h"

#include <algorithm>

namespace ptn
{

namespace
{

constexpr int FRAMED = 1; ///< HEDR_KIND
constexpr int PLAIN = 2;

/// From where to where something of the title bar reaches.
struct Span {
    long long begin;
    long long end;
};

// As the title bar lays itself out: logo, title, clock and hard-copy button are as high as the title's font.
class TitleLayout
{
  public:
    TitleLayout(const HEDRFILE& header, const Resources& resources)
        : header_(header), parm_(header.Parm1), font_(resources.fontCell(parm_[HEDR_TITLE_FONT])),
          clockFont_(resources.fontCell(parm_[HEDR_CLOCK_FONT])),
          margin_((0LL + parm_[HEDR_TITLE_HEIGHT] - font_.cy) / 2)
    {
    }

    Span title(std::size_t bytes) const
    {
        const long long width = 1LL * font_.cx * static_cast<long long>(bytes);
        const bool logo = parm_[HEDR_LOGO] && header_.LogoName[0];
        const long long begin = parm_[HEDR_TITLE_CENTERED] ? (parm_[HEDR_WIDTH] - width) / 2
                                                           : (logo ? font_.cy + margin_ : 0) + font_.cy / 2;
        return {begin, begin + width};
    }

    // What is right of the title, and where it begins.
    std::pair<const char*, long long> next() const
    {
        const long long button = parm_[HEDR_HARDCOPY] ? margin_ + font_.cy : 0;
        if (const int clock = tessary::ClockLength(parm_[HEDR_CLOCK]))
            return {"the clock", parm_[HEDR_WIDTH] - 1LL * clock * clockFont_.cx - margin_ - button};
        return {button ? "the hard-copy button" : "the end of the window", parm_[HEDR_WIDTH] - button};
    }

  private:
    const HEDRFILE& header_;
    const std::int32_t* parm_;
    SIZE font_;
    SIZE clockFont_;
    long long margin_;
};

void CheckTitle(const Pattern& pattern, const ProjectSource& project, Diagnostics& diagnostics)
{
    const HEDRFILE& header = pattern.header;
    if (header.Parm1[HEDR_TITLE_HEIGHT] <= 0)
        return;
    const TitleLayout layout(header, project.resources);
    std::size_t longest = 0;
    for (const auto* field : {&header.PtrnName1, &header.PtrnName2, &header.PtrnName3})
        longest = std::max(longest, BoundedLength(*field, sizeof *field));
    const Span title = layout.title(longest);
    const auto [what, begin] = layout.next();
    if (longest && title.end > begin)
        diagnostics.error(
            pattern.place,
            fmt::format("its title reaches {}, into {}, which begins at {}. Shorten it, or choose "
                        "smaller fonts or a shorter clock.",
                        title.end, what, begin));
}

void CheckDisplay(const Pattern& pattern, const ProjectSource& project, Diagnostics& diagnostics)
{
    const std::int32_t* window = pattern.header.Parm1;
    const std::optional<SIZE> display = DisplaySize(project);
    // A plain window may be a part of another screen, which is placed and cut by the program.
    if (!display || window[HEDR_KIND] == PLAIN)
        return;
    const int width = window[HEDR_WIDTH];
    const int height = window[HEDR_HEIGHT];
    // Only as much as the panel has is scaled to the display.
    const char* const room = project.profile.scaled() ? "the panel that is scaled" : "the display";
    const bool placed = window[HEDR_KIND] == FRAMED && !window[HEDR_REMEMBER];
    const long long left = placed ? window[HEDR_LEFT] : 0;
    const long long top = placed ? window[HEDR_TOP] : 0;
    if (width > display->cx || height > display->cy)
        diagnostics.error(pattern.place,
                          fmt::format("its window of {} x {} pixels is larger than {}, DISPSIZE, of {} x "
                                      "{}. Make it smaller.",
                                      width, height, room, display->cx, display->cy));
    else if (left < 0 || top < 0 || left + width > display->cx || top + height > display->cy)
        diagnostics.error(pattern.place,
                          fmt::format("its window of {} x {} pixels at {},{} opens beyond {}, DISPSIZE, of "
                                      "{} x {}. Move it.",
                                      width, height, left, top, room, display->cx, display->cy));
}

} // namespace

void CheckWindow(const Pattern& pattern, const ProjectSource& project, Diagnostics& diagnostics)
{
    CheckTitle(pattern, project, diagnostics);
    CheckDisplay(pattern, project, diagnostics);
}

} // namespace ptn
