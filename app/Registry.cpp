// Which screen class shows which pattern.
#include "window/Registry.h"
#include "window/PtrnDisp.h"

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

constexpr Screen kScreens[] = {
    {"テスト  ［メニュー選択］", Make<CPtrnDisp>},   {"システム終了", Make<CPtrnDisp>},
    {"テスト  （図形）", Make<CPtrnDisp>},           {"テスト  （マウス操作）", Make<CPtrnDisp>},
    {"子ウィンドウ (1)", Make<CPtrnDisp>},           {"子ウィンドウ (2)", Make<CPtrnDisp>},
    {"子ウィンドウ (3)", Make<CPtrnDisp>},           {"ポップアップメニュー", Make<CPtrnDisp>},
    {"テスト  （文字列・ボタン）", Make<CPtrnDisp>}, {"テスト  （グラフ）", Make<CPtrnDisp>},
    {"テスト  （表・キー入力）", Make<CPtrnDisp>},   {"テスト  （表）", Make<CPtrnDisp>},
};

} // namespace

CPtrnDisp* GetPtrnWnd(const char* name)
{
    for (const Screen& screen : kScreens)
        if (std::strcmp(screen.name, name) == 0)
            return screen.make();
    return nullptr;
}
