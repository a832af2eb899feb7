// Waiting for sources to be saved.
#pragma once

#include <functional>
#include <gio/gio.h>
#include <memory>
#include <string>
#include <vector>

namespace ptn
{

struct Unref {
    void operator()(gpointer object) const { g_object_unref(object); }
};
/// An object of the toolkit's libraries that somebody owns.
template <class T> using Owned = std::unique_ptr<T, Unref>;

/// Looks at a folder of sources, without taking any time while nothing happens there.
class SourceWatch
{
  public:
    /// @param folder  of sources
    /// @param saved   called in the main loop when something has been saved, once for what comes at a time
    SourceWatch(const std::string& folder, std::function<void()> saved);
    ~SourceWatch();
    SourceWatch(const SourceWatch&) = delete;
    SourceWatch& operator=(const SourceWatch&) = delete;

  private:
    static void onChange(GFileMonitor*, GFile*, GFile*, GFileMonitorEvent, gpointer self);
    static gboolean onSettled(gpointer self);
    void watchFolders();

    std::string folder_;
    std::function<void()> saved_;
    std::vector<Owned<GFileMonitor>> monitors_;
    guint settling_ = 0;
};

} // namespace ptn
