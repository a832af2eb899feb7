// tessary.h behind headers that are full of macros. The test framework does not bear them.
#include <algorithm>
#include <gtest/gtest.h>

#include <linux/input.h>
#include <ncurses.h>
#include <X11/keysym.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include "tests/contract/Declared.h"

namespace
{

TEST(Contract, compiles_behind_headers_full_of_macros)
{
    EXPECT_TRUE((Declared<void(unsigned int, unsigned int)>(ReqKeyEntry)));
    EXPECT_EQ(tessary::KEYVAL_RETURN, unsigned{XK_Return});
}

} // namespace
