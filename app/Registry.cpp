// Which screen class shows which pattern.
#include "tessary.h"

#include "app/Haisenhyo.h"
#include "app/PtrnTest1.h"
#include "app/PtrnTest2.h"
#include "app/PtrnTest3.h"
#include "app/PtrnTest4.h"
#include "app/PtrnTest5.h"
#include "cells.h"

#include <cstring>

namespace
{

namespace screen = panel::screen;

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
    {screen::テスト_メニュー選択, Make<CPtrnDisp>},
    {screen::システム終了, Make<CPtrnDisp>},
    {screen::テスト_図形, Make<CPtrnTest1>},
    {screen::テスト_マウス操作, Make<CPtrnTest5>},
    {screen::子ウィンドウ_1, Make<CPtrnDisp>},
    {screen::子ウィンドウ_2, Make<CPtrnDisp>},
    {screen::子ウィンドウ_3, Make<CPtrnDisp>},
    {screen::ポップアップメニュー, Make<CPtrnDisp>},
    {screen::テスト_文字列_ボタン, Make<CPtrnTest2>},
    {screen::テスト_グラフ, Make<CPtrnTest4>},
    {screen::テスト_表_キー入力, Make<CPtrnTest3>},
    {screen::テスト_表, Make<CHaisenhyo>},
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
