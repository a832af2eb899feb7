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
    Fail(refusal.advice, refusal.status);
    MessageBox("起動不可", refusal.box.c_str(), 1, 1);
}

void Fail(const std::string& advice, int status)
{
    startStatus = status;
    Tell(advice);
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
