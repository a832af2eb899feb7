// tessary.h before headers that are full of macros.
#include "tests/contract/Declared.h"

#include <linux/input.h>
#include <ncurses.h>
#include <X11/keysym.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

namespace
{

TEST(Contract, compiles_before_headers_full_of_macros)
{
    EXPECT_TRUE((Declared<void(unsigned int, unsigned int)>(ReqKeyEntry)));
    EXPECT_EQ(tessary::KEYVAL_DOWN, unsigned{XK_Down});
}

} // namespace
