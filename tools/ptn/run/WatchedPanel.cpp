#include "tools/ptn/run/WatchedPanel.h"

#include "tools/ptn/common/SourceWatch.h"

#include <csignal>
#include <glib-unix.h>
#include <iostream>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ptn
{

namespace
{

/// What the handlers know of the panel.
struct Panel {
    GMainLoop* loop;
    GPid pid = 0; ///< 0 when it has ended
    int status = 0;
};

/// In the new process, before it becomes the panel: the signal to load again waits until that is ready for
/// it.
void PrepareChild(gpointer)
{
    sigset_t reload;
    sigemptyset(&reload);
    sigaddset(&reload, SIGUSR1);
    sigprocmask(SIG_BLOCK, &reload, nullptr);
    prctl(PR_SET_PDEATHSIG, SIGTERM);
}

void OnEnd(GPid pid, gint state, gpointer data)
{
    auto* panel = static_cast<Panel*>(data);
    panel->status = WIFEXITED(state) ? WEXITSTATUS(state) : 128 + WTERMSIG(state);
    panel->pid = 0;
    g_spawn_close_pid(pid);
    g_main_loop_quit(panel->loop);
}

template <int NUMBER> gboolean PassOn(gpointer data)
{
    if (const GPid pid = static_cast<Panel*>(data)->pid)
        kill(pid, NUMBER);
    return TRUE;
}

bool Start(const std::vector<std::string>& line, GPid* pid)
{
    std::vector<char*> words;
    for (const std::string& word : line)
        words.push_back(const_cast<char*>(word.c_str()));
    words.push_back(nullptr);
    GError* problem = nullptr;
    const auto flags = static_cast<GSpawnFlags>(G_SPAWN_DO_NOT_REAP_CHILD | G_SPAWN_CHILD_INHERITS_STDIN);
    if (g_spawn_async(nullptr, words.data(), nullptr, flags, PrepareChild, nullptr, pid, &problem))
        return true;
    std::cerr << "ptn: " << problem->message << "\n";
    g_error_free(problem);
    return false;
}

} // namespace

int RunWatched(const std::vector<std::string>& line, const std::string& source,
               const std::function<bool()>& build)
{
    const std::unique_ptr<GMainLoop, void (*)(GMainLoop*)> loop(g_main_loop_new(nullptr, FALSE),
                                                                g_main_loop_unref);
    Panel panel{loop.get()};
    // Before the panel starts, so that nothing that is saved from now on is missed.
    const SourceWatch watch(source, [&] {
        if (build() && panel.pid)
            kill(panel.pid, SIGUSR1);
    });
    if (!Start(line, &panel.pid))
        return 1;
    const guint handlers[] = {
        g_child_watch_add(panel.pid, OnEnd, &panel),
        g_unix_signal_add(SIGTERM, PassOn<SIGTERM>, &panel),
        g_unix_signal_add(SIGINT, PassOn<SIGINT>, &panel),
        g_unix_signal_add(SIGHUP, PassOn<SIGHUP>, &panel),
    };
    g_main_loop_run(loop.get());
    for (const guint handler : handlers)
        if (GSource* left = g_main_context_find_source_by_id(nullptr, handler))
            g_source_destroy(left);
    return panel.status;
}

} // namespace ptn
