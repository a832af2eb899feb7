// Text in the three sizes of fonts: half-width letters, kana, kanji, half-width katakana.
#include "tests/support/Golden.h"
#include "tests/support/Sheet.h"

namespace
{

const char* const LINES[] = {
    "ABCDEFGHIJKLMNOPQRSTUVWXYZ 0123456789",
    "abcdefghijklmnopqrstuvwxyz .,:;!?",
    "+-*/=<>()[]{}|&@#$%^~_'`\"\\ 12:34",
    "あいうえおかきくけこさしすせそたちつてと",
    "アイウエオカキクケコヴヵヶー・、。「」（）",
    "漢字表示温度圧力流量運転停止故障警報異常",
    "鬱龍鷹麒麟薔薇　［Ａｂ１２３］　℃→↑■",
    "ｱｲｳｴｵｶﾞｷﾞﾊﾟﾝﾞﾟｧｨｩｪｫｬｭｮｯｰ｡｢｣､･",
    "Pump 3 ポンプ３号 ﾎﾟﾝﾌﾟ gjpqy",
};

class GoldenText : public testing::TestWithParam<std::pair<int, int>>
{
  protected:
    GoldenText() { useSheet(); }
};

std::string size(const testing::TestParamInfo<std::pair<int, int>>& info)
{
    return "of_" + std::to_string(info.param.second) + "_pixels";
}

} // namespace

TEST_P(GoldenText, is_crisp_and_whole)
{
    const auto [font, height] = GetParam();
    const int step = height + 6;
    Sheet sheet(21 * height + 16, static_cast<int>(std::size(LINES)) * 2 * step + 10);
    int y = 8;
    for (const char* const text : LINES) {
        sheet->DrawText(8, y, font, BLACK, -1, text);
        sheet->DrawText(8, y + step, font, WHITE, NAVY, text);
        y += 2 * step;
    }
    expectGolden(sheet.picture(), "text-" + std::to_string(height));
}

INSTANTIATE_TEST_SUITE_P(Fonts, GoldenText,
                         testing::Values(std::pair{0, 14}, std::pair{1, 16}, std::pair{2, 24}), size);

class GoldenTextPlace : public testing::Test
{
  protected:
    GoldenTextPlace() { useSheet(); }
};

TEST_F(GoldenTextPlace, is_the_middle_of_the_line_and_of_the_button)
{
    Sheet sheet(640, 236);
    const char* const texts[] = {"x", "g", "'", "_", "Agjy", "漢", "、", "ｶﾞ"};
    int y = 8;
    for (int font = 0; font < 3; font++) {
        int x = 8;
        for (const char* const text : texts) {
            sheet->DrawText(x, y, font, BLACK, SKY, text);
            x += sheet->GetTextSize(font, text).cx + 30;
        }
        x = 8;
        y += 32;
        for (const char* const text : texts) {
            sheet->DrawButn(x, y, x + 74, y + 36, 2, WHITE, GREY, SILVER, BLACK, -1, font, text);
            x += 78;
        }
        y += 44;
    }
    expectGolden(sheet.picture(), "text-place");
}
