#include "tools/ptn/common/SourceWatch.h"

#include <utility>

namespace ptn
{

namespace
{

/// Editors save in several steps; they count as one.
constexpr guint SETTLE_MILLISECONDS = 150;

} // namespace

SourceWatch::SourceWatch(const std::string& folder, std::function<void()> saved)
    : folder_(folder), saved_(std::move(saved))
{
    watchFolders();
}

SourceWatch::~SourceWatch()
{
    if (settling_)
        g_source_remove(settling_);
}

/// Anew after each change, since a folder that a project need not have may have been made by it.
void SourceWatch::watchFolders()
{
    monitors_.clear();
    for (const char* name : {"", "/screens", "/bitmaps"}) {
        const Owned<GFile> folder(g_file_new_for_path((folder_ + name).c_str()));
        if (!g_file_query_exists(folder.get(), nullptr))
            continue;
        GFileMonitor* monitor =
            g_file_monitor_directory(folder.get(), G_FILE_MONITOR_WATCH_MOVES, nullptr, nullptr);
        if (!monitor)
            continue;
        g_signal_connect(monitor, "changed", G_CALLBACK(onChange), this);
        monitors_.emplace_back(monitor);
    }
}

void SourceWatch::onChange(GFileMonitor*, GFile*, GFile*, GFileMonitorEvent, gpointer self)
{
    auto* watch = static_cast<SourceWatch*>(self);
    if (!watch->settling_)
        watch->settling_ = g_timeout_add(SETTLE_MILLISECONDS, onSettled, watch);
}

gboolean SourceWatch::onSettled(gpointer self)
{
    auto* watch = static_cast<SourceWatch*>(self);
    watch->settling_ = 0;
    watch->watchFolders();
    watch->saved_();
    return FALSE;
}

} // namespace ptn
