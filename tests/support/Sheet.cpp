#include "tests/support/Sheet.h"

#include "draw/Resource.h"
#include "tests/support/Toolkit.h"

#include <gdk/gdkx.h>
#include <gtest/gtest.h>
#include <map>

namespace
{

constexpr std::uint32_t COLORS[] = {
    0x000000, 0xFFFFFF, 0xF4F1E8, 0xDDD8C8, 0xC0C0C0, 0x808080, 0x404040, 0x102A54,
    0x1F5FBF, 0x9CC8F0, 0x1E7A3C, 0x8FD14F, 0xF2D024, 0xE88420, 0xD0282C, 0x6E1423,
};

/// One font for each character set of the locale ja_JP.eucJP. All come with xfonts-base.
const std::map<int, std::vector<std::string>> FONTS = {
    {14,
     {"-misc-fixed-medium-r-normal--14-130-75-75-c-70-iso8859-1",
      "-misc-fixed-medium-r-normal--14-130-75-75-c-140-jisx0208.1983-0",
      "-misc-fixed-medium-r-normal--14-130-75-75-c-70-jisx0201.1976-0"}},
    {16,
     {"-sony-fixed-medium-r-normal--16-120-100-100-c-80-iso8859-1",
      "-jis-fixed-medium-r-normal--16-150-75-75-c-160-jisx0208.1983-0",
      "-sony-fixed-medium-r-normal--16-120-100-100-c-80-jisx0201.1976-0"}},
    {24,
     {"-sony-fixed-medium-r-normal--24-170-100-100-c-120-iso8859-1",
      "-jis-fixed-medium-r-normal--24-230-75-75-c-240-jisx0208.1983-0",
      "-sony-fixed-medium-r-normal--24-170-100-100-c-120-jisx0201.1976-0"}},
};

std::vector<std::string> loadedNames(GdkFont* font)
{
    XFontStruct** fonts = nullptr;
    char** names = nullptr;
    const int count = XFontsOfFontSet(static_cast<XFontSet>(GDK_FONT_XFONT(font)), &fonts, &names);
    return {names, names + count};
}

} // namespace

void useBitmapFont(int number, int height)
{
    useToolkit();
    const auto& names = FONTS.at(height);
    std::string list;
    for (const std::string& name : names)
        list += (list.empty() ? "" : ",") + name;
    DrawFont[number] = gdk_fontset_load(list.c_str());
    FontSize[number] = {height / 2, height};
    if (!DrawFont[number] || loadedNames(DrawFont[number]) != names)
        ADD_FAILURE() << "The bitmap fonts of " << height
                      << " pixels are not all there; install xfonts-base.";
}

void useSheet()
{
    usePalette();
    int number = 0;
    for (const std::uint32_t rgb : COLORS) {
        const auto component = [&](int shift) { return static_cast<int>(rgb >> shift & 0xFF) * 257; };
        setColor(number++, component(16), component(8), component(0));
    }
    useBitmapFont(0, 14);
    useBitmapFont(1, 16);
    useBitmapFont(2, 24);
}

Sheet::Sheet(int width, int height) : Canvas(width, height)
{
    draw()->ClearScreen(PAPER);
    for (int y = 0; y < height; y += 8)
        draw()->ClearScreen(0, y, width, y + 4, STRIPE);
}

Picture enlarged(const Picture& picture, int factor)
{
    Picture result(picture.width() * factor, picture.height() * factor, 0);
    for (int y = 0; y < result.height(); y++)
        for (int x = 0; x < result.width(); x++)
            result.set(x, y, picture.at(x / factor, y / factor));
    return result;
}
