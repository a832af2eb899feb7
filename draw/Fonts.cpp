// Font sets by number, and what the log says when one is missing.
#include "config/Profile.h"
#include "config/Settings.h"
#include "draw/FontProblem.h"
#include "draw/Resource.h"
#include "draw/ResourceLoad.h"
#include "draw/ToolkitPtr.h"
#include "log/Category.h"
#include "log/Logfile.h"
#include "log/LogText.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <gdk/gdkx.h>
#include <langinfo.h>
#include <string>

using namespace tessary;

GdkFont* DrawFont[CONT_FONT];
SIZE FontSize[CONT_FONT];

namespace
{

/// What DrawFont points at. Never destroyed: the display may go before the program ends.
std::array<FontPtr, CONT_FONT>& Fonts()
{
    static auto& fonts = *new std::array<FontPtr, CONT_FONT>;
    return fonts;
}

std::string problem; ///< see FontProblem

/// Name of the profile key; 64 bits, because a language number may be as large as the profile can write it.
std::string FontKey(int no)
{
    return "FONTNAME" + std::to_string(std::int64_t{Language} * CONT_FONT + no);
}

/// Character sets that EUC-JP needs and the font set lacks, separated by blanks. A locale with another code
/// set asks for other character sets; that is the locale's fault, which the start reports.
std::string MissingCharsets(GdkFont* font)
{
    std::string names;
    if (std::strcmp(nl_langinfo(CODESET), "EUC-JP") != 0)
        return names;
    XOMCharSetList missing{};
    const auto context = static_cast<XOC>(GDK_FONT_XFONT(font));
    if (XGetOCValues(context, XNMissingCharSet, &missing, nullptr))
        return names;
    for (int i = 0; i < missing.charset_count; ++i) {
        if (i)
            names += ' ';
        names += missing.charset_list[i];
    }
    return names;
}

/// Appends a font set that is not as it should be to what FontProblem tells.
void NoteProblem(const std::string& key, const std::string& what)
{
    problem += "The font set " + key + " " + what + ". ";
}

/// @return false when something of the font is missing
bool LoadFont(int no, const std::string& key, const std::string& name)
{
    FontPtr& font = Fonts()[static_cast<std::size_t>(no)];
    font.reset(gdk_fontset_load(name.c_str()));
    DrawFont[no] = font.get();
    FontDataInit(no, name.c_str());
    if (!font) {
        LogText(CATEGORY_SYSTEM, __FILE__, __LINE__, "フォントの読込みに失敗 [%s=%s]", key.c_str(),
                name.c_str());
        NoteProblem(key, "(" + name + ") can not be loaded");
        return false;
    }
    const std::string missing = MissingCharsets(font.get());
    if (missing.empty())
        return true;
    LogText(CATEGORY_SYSTEM, __FILE__, __LINE__, "フォントに文字集合がない [%s: %s]", key.c_str(),
            missing.c_str());
    NoteProblem(key, "lacks the character sets " + missing);
    return false;
}

} // namespace

void tessary::FontInit()
{
    problem.clear();
    int named = 0;
    bool complete = true;
    for (int no = 0; no < CONT_FONT; ++no) {
        const std::string key = FontKey(no);
        const std::string name = ProfileReadAsc(ProfName, "FONT", key.c_str());
        if (name.empty())
            continue;
        ++named;
        complete = LoadFont(no, key, name) && complete;
    }

    if (!named) {
        const std::string first = FontKey(0);
        const std::string last = FontKey(CONT_FONT - 1);
        LogText(CATEGORY_SYSTEM, __FILE__, __LINE__,
                "文字を表示できない: 環境設定ファイルの [FONT] に %s から %s のどのキーもない", first.c_str(),
                last.c_str());
        problem = "No text can be shown: name a font set with one of the keys " + first + " to " + last +
                  " in the profile's section [FONT].";
    }
    if (!complete) {
        problem +=
            "Install the packages xfonts-base and xfonts-intl-japanese and start the X server anew, or "
            "correct the name in the profile's section [FONT].";
        LogfileWrite(
            CATEGORY_SYSTEM,
            "xfonts-base, xfonts-intl-japanese を導入してXサーバーを再起動するか、[FONT] の名前を直すこと "
            "(名前はコンマで終わる。一つの名前が * で全文字集合に合うこと)",
            __FILE__, __LINE__);
    }
}

std::string tessary::FontProblem()
{
    return problem;
}

void tessary::FontExit()
{
    std::fill(std::begin(DrawFont), std::end(DrawFont), nullptr);
    Fonts() = {};
    std::memset(FontSize, 0, sizeof FontSize);
}

void FontDataInit(int no, const char* name)
{
    if (no < 0 || no >= CONT_FONT)
        return;
    FontSize[no] = {0, 0};

    const char* at = name;
    for (int field = 0; field < 7; ++field) {
        at = at ? std::strchr(at, '-') : nullptr;
        if (!at)
            return;
        ++at;
    }

    // No pixel size: the next field is the point size, in tenths.
    const bool points = *at == '*';
    if (points)
        at += at[1] ? 2 : 1;

    int size = 0;
    for (int digits = 0; digits < 4 && *at >= '0' && *at <= '9'; ++digits)
        size = size * 10 + (*at++ - '0');
    if (points)
        size /= 10;
    FontSize[no] = {size / 2, size};
}
