#include "shell/Locale.h"

#include <clocale>
#include <cstdio>
#include <cstring>
#include <gtk/gtk.h>
#include <langinfo.h>
#include <X11/Xlib.h>

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

bool Fail(const char* logText, const char* userText)
{
    problem = logText;
    std::fprintf(stderr, "%s\n", userText);
    return false;
}

} // namespace

bool UseEucLocale()
{
    problem = nullptr;
    KeepLocale();
    std::setlocale(LC_NUMERIC, "C");

    if (!IsEuc()) {
        std::setlocale(LC_CTYPE, "ja_JP.eucJP");
        if (!IsEuc())
            return Fail("日本語を表示できない: ロケール ja_JP.eucJP がない。パッケージ locales を導入して "
                        "localedef -i ja_JP -f EUC-JP ja_JP.eucJP を実行すること",
                        "The locale ja_JP.eucJP is not installed, so Japanese text can not be shown.\n"
                        "Install the package \"locales\", then run as root:\n"
                        "    localedef -i ja_JP -f EUC-JP ja_JP.eucJP");
    }

    if (!XSupportsLocale())
        return Fail("日本語を表示できない: Xライブラリがロケール ja_JP.eucJP を知らない。"
                    "パッケージ libx11-data を導入すること",
                    "The X library does not know the locale ja_JP.eucJP, so Japanese text can not be shown.\n"
                    "Install the package \"libx11-data\".");
    XSetLocaleModifiers("");
    return true;
}

const char* LocaleProblem()
{
    return problem;
}
