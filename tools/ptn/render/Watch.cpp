#include "tools/ptn/render/Watch.h"

#include "tools/ptn/common/Files.h"
#include "tools/ptn/common/TemporaryFolder.h"

#include <cerrno>
#include <cstdlib>
#include <gtk/gtk.h>
#include <sys/inotify.h>
#include <unistd.h>

namespace ptn
{

namespace
{

/// Editors save in several steps; one picture is made of them.
constexpr guint settleMilliseconds = 150;

class Watcher
{
  public:
    explicit Watcher(const WatchJob& job);
    ~Watcher();
    Watcher(const Watcher&) = delete;
    Watcher& operator=(const Watcher&) = delete;

    bool watchFolders();
    void run();

  private:
    static gboolean onChange(GIOChannel*, GIOCondition, gpointer self);
    static gboolean onSettled(gpointer self);
    void draw();
    void show(const std::string& text);

    const WatchJob& job_;
    TemporaryFolder folder_;
    int notify_ = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    guint settling_ = 0;
    GtkWidget* window_ = nullptr;
    GtkWidget* image_ = nullptr;
    GtkWidget* text_ = nullptr;
};

Watcher::Watcher(const WatchJob& job) : job_(job)
{
    window_ = gtk_window_new(GTK_WINDOW_TOPLEVEL);
    gtk_window_set_title(GTK_WINDOW(window_), ("ptn watch " + job.source).c_str());
    g_signal_connect(window_, "destroy", G_CALLBACK(gtk_main_quit), nullptr);
    GtkWidget* box = gtk_vbox_new(FALSE, 0);
    image_ = gtk_image_new();
    text_ = gtk_label_new("");
    gtk_label_set_selectable(GTK_LABEL(text_), TRUE);
    gtk_label_set_line_wrap(GTK_LABEL(text_), TRUE);
    gtk_misc_set_alignment(GTK_MISC(text_), 0, 0);
    gtk_misc_set_padding(GTK_MISC(text_), 16, 16);
    gtk_box_pack_start(GTK_BOX(box), image_, TRUE, TRUE, 0);
    gtk_box_pack_start(GTK_BOX(box), text_, TRUE, TRUE, 0);
    gtk_container_add(GTK_CONTAINER(window_), box);
    gtk_widget_show(box);
}

Watcher::~Watcher()
{
    if (notify_ >= 0)
        close(notify_);
}

bool Watcher::watchFolders()
{
    constexpr unsigned saved = IN_CLOSE_WRITE | IN_MOVED_TO | IN_MOVED_FROM | IN_DELETE | IN_CREATE;
    if (notify_ < 0 || inotify_add_watch(notify_, job_.source.c_str(), saved) < 0)
        return false;
    for (const char* name : {"/screens", "/bitmaps"}) // which a project need not have
        inotify_add_watch(notify_, (job_.source + name).c_str(), saved);
    return true;
}

void Watcher::run()
{
    GIOChannel* channel = g_io_channel_unix_new(notify_);
    g_io_add_watch(channel, G_IO_IN, onChange, this);
    g_io_channel_unref(channel);
    draw();
    gtk_widget_show(window_);
    gtk_main();
}

gboolean Watcher::onChange(GIOChannel*, GIOCondition, gpointer self)
{
    auto* watcher = static_cast<Watcher*>(self);
    char events[4096];
    while (read(watcher->notify_, events, sizeof events) > 0) {
    }
    if (!watcher->settling_)
        watcher->settling_ = g_timeout_add(settleMilliseconds, onSettled, watcher);
    return TRUE;
}

gboolean Watcher::onSettled(gpointer self)
{
    auto* watcher = static_cast<Watcher*>(self);
    watcher->settling_ = 0;
    watcher->draw();
    return FALSE;
}

// In a process of its own, which a screen that ends the panel ends instead of the watching.
void Watcher::draw()
{
    const std::string picture = (folder_.path() / "picture.png").string();
    std::vector<std::string> words = {"/proc/self/exe", "render", job_.source, "-o", picture};
    if (!job_.pattern.empty())
        words.push_back(job_.pattern);
    words.insert(words.end(), job_.arguments.begin(), job_.arguments.end());
    std::vector<char*> arguments;
    for (std::string& word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);

    char* output = nullptr;
    char* errors = nullptr;
    int status = 0;
    GError* problem = nullptr;
    if (!g_spawn_sync(nullptr, arguments.data(), nullptr, static_cast<GSpawnFlags>(0), nullptr, nullptr,
                      &output, &errors, &status, &problem)) {
        show(problem->message);
        g_error_free(problem);
        return;
    }
    GdkPixbuf* drawn = status == 0 ? gdk_pixbuf_new_from_file(picture.c_str(), nullptr) : nullptr;
    show(drawn ? "" : errors);
    if (drawn) {
        gtk_image_set_from_pixbuf(GTK_IMAGE(image_), drawn);
        g_object_unref(drawn);
    }
    g_free(output);
    g_free(errors);
}

// Errors in place of the picture; no text brings the picture back.
void Watcher::show(const std::string& text)
{
    gtk_label_set_text(GTK_LABEL(text_), text.c_str());
    (text.empty() ? gtk_widget_hide : gtk_widget_show)(text_);
    (text.empty() ? gtk_widget_show : gtk_widget_hide)(image_);
}

} // namespace

bool Watch(const WatchJob& job, Diagnostics& diagnostics)
{
    gtk_disable_setlocale();
    if (!gtk_init_check(nullptr, nullptr)) {
        diagnostics.error({"", 0}, "there is no display to show the screen on. Set DISPLAY, or use 'ptn "
                                   "render'.");
        return false;
    }
    Watcher watcher(job);
    if (!watcher.watchFolders()) {
        diagnostics.error({job.source, 0}, "can not be watched. Check that it is there and readable.");
        return false;
    }
    watcher.run();
    return true;
}

} // namespace ptn
