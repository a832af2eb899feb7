// A project for measuring, loaded by the program that measures.
#pragma once

#include "bench/BenchFiles.h"
#include "config/Settings.h"
#include "shell/Locale.h"

#include <ctime>
#include <gtk/gtk.h>

/// Processor time of this process in seconds, without that of the X server.
inline double ProcessorTime()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

class BenchProject : public BenchFiles
{
  public:
    /// Connects to the X server of $DISPLAY and loads a project with that many cells of the code "ITEM".
    explicit BenchProject(int cells) : BenchFiles(cells)
    {
        tessary::UseEucLocale();
        gtk_disable_setlocale();
        if (!gtk_init_check(nullptr, nullptr)) {
            std::fprintf(stderr, "No X server at $DISPLAY.\n");
            std::exit(1);
        }
        std::snprintf(ProfName, sizeof ProfName, "%s/panel.ini", folder().c_str());
        std::snprintf(ProjPath, sizeof ProjPath, "%s", folder().c_str());
        ComnDataInit();
        DrawCntlInit();
    }

    ~BenchProject()
    {
        tessary::DrawCntlExit();
        ComnDataExit();
    }
};
