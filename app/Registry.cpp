// Which screen class shows which pattern.
#include "tessary.h"

#include "app/Haisenhyo.h"
#include "app/PtrnTest1.h"
#include "app/PtrnTest2.h"
#include "app/PtrnTest3.h"
#include "app/PtrnTest4.h"
#include "app/PtrnTest5.h"

#include <cstring>

namespace
{

struct Screen {
    const char* name;
    CPtrnDisp* (*make)();
};

template <class Window> CPtrnDisp* Make()
{
    return new Window;
}

// clang-format off
constexpr Screen SCREENS[] = {
    {"テスト  ［メニュー選択］", Make<CPtrnDisp>},
    {"システム終了", Make<CPtrnDisp>},
    {"テスト  （図形）", Make<CPtrnTest1>},
    {"テスト  （マウス操作）", Make<CPtrnTest5>},
    {"子ウィンドウ (1)", Make<CPtrnDisp>},
    {"子ウィンドウ (2)", Make<CPtrnDisp>},
    {"子ウィンドウ (3)", Make<CPtrnDisp>},
    {"ポップアップメニュー", Make<CPtrnDisp>},
    {"テスト  （文字列・ボタン）", Make<CPtrnTest2>},
    {"テスト  （グラフ）", Make<CPtrnTest4>},
    {"テスト  （表・キー入力）", Make<CPtrnTest3>},
    {"テスト  （表）", Make<CHaisenhyo>},
};
// clang-format on

} // namespace

CPtrnDisp* GetPtrnWnd(const char* name)
{
    for (const Screen& screen : SCREENS)
        if (std::strcmp(screen.name, name) == 0)
            return screen.make();
    return nullptr;
}
