#include "shell/Locale.h"

#include <clocale>
#include <cstdio>
#include <cstring>
#include <gtk/gtk.h>
#include <langinfo.h>
#include <X11/Xlib.h>

namespace tessary
{

namespace
{

const char* problem;

bool IsEuc()
{
    return std::strcmp(nl_langinfo(CODESET), "EUC-JP") == 0;
}

/// Keeps gtk_init from setting the environment's locale again.
void KeepLocale()
{
    // Once the toolkit runs it is too late, and it would complain.
    if (!gdk_display_get_default())
        gtk_disable_setlocale();
}

} // namespace

bool UseEucLocale()
{
    problem = nullptr;
    KeepLocale();
    std::setlocale(LC_NUMERIC, "C");

    if (!IsEuc())
        std::setlocale(LC_CTYPE, "ja_JP.eucJP");
    if (!IsEuc()) {
        problem = "日本語を表示できない: ロケール ja_JP.eucJP がない。パッケージ locales を導入して "
                  "localedef -i ja_JP -f EUC-JP ja_JP.eucJP を実行すること";
        std::fputs("The locale ja_JP.eucJP is not installed, so Japanese text can not be shown.\n"
                   "Install the package \"locales\", then run as root:\n"
                   "    localedef -i ja_JP -f EUC-JP ja_JP.eucJP\n",
                   stderr);
        return false;
    }

    // The X library keeps these per locale; gtk_set_locale() has set them for the environment's only.
    XSetLocaleModifiers("");
    return true;
}

const char* LocaleProblem()
{
    return problem;
}

} // namespace tessary
