#include "shell/Refusal.h"

#include "dialogs/MessageBox.h"

#include <cstdio>
#include <glib.h>

namespace tessary
{

namespace
{

int startStatus;

} // namespace

void RefuseStart(const Refusal& refusal)
{
    startStatus = refusal.status;
    Tell(refusal.advice);
    MessageBox("起動不可", refusal.box.c_str(), 1, 1);
}

int StartStatus()
{
    return startStatus;
}

void Tell(const std::string& text)
{
    const char* const program = g_get_prgname();
    std::fprintf(stderr, "%s: %s\n", program ? program : "tessary", text.c_str());
}

} // namespace tessary
