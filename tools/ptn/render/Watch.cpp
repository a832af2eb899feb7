#include "tools/ptn/render/Watch.h"

#include "tools/ptn/common/SourceWatch.h"
#include "tools/ptn/system/TemporaryFolder.h"

#include <filesystem>
#include <gio/gio.h>
#include <gtk/gtk.h>
#include <memory>
#include <vector>

namespace ptn
{

namespace
{

/// Pixels of the text, and lines of it that are shown.
constexpr int TEXT_WIDTH = 400;
constexpr int MOST_LINES = 20;

class Watcher
{
  public:
    explicit Watcher(const WatchJob& job);
    ~Watcher();
    Watcher(const Watcher&) = delete;
    Watcher& operator=(const Watcher&) = delete;

    void run();

  private:
    static void onDrawn(GObject* process, GAsyncResult* result, gpointer self);
    static void onChecked(GObject* process, GAsyncResult* result, gpointer self);
    void draw();
    void check();
    void start(const std::vector<std::string>& words, GAsyncReadyCallback ended);
    void finish();
    void show(const std::string& text, bool picture);

    const WatchJob& job_;
    TemporaryFolder folder_{"ptn-"};
    SourceWatch sources_;
    Owned<GSubprocess> running_; ///< makes the picture or checks; null while nothing is being done
    bool again_ = false;         ///< something was saved meanwhile
    GtkWidget* window_ = nullptr;
    GtkWidget* image_ = nullptr;
    GtkWidget* text_ = nullptr;
};

Watcher::Watcher(const WatchJob& job) : job_(job), sources_(job.source, [this] { draw(); })
{
    window_ = gtk_window_new(GTK_WINDOW_TOPLEVEL);
    gtk_window_set_title(GTK_WINDOW(window_), ("ptn watch " + job.source).c_str());
    g_signal_connect(window_, "destroy", G_CALLBACK(gtk_main_quit), nullptr);
    GtkWidget* box = gtk_hbox_new(FALSE, 0);
    image_ = gtk_image_new();
    text_ = gtk_label_new("");
    gtk_label_set_selectable(GTK_LABEL(text_), TRUE);
    gtk_label_set_line_wrap(GTK_LABEL(text_), TRUE);
    gtk_widget_set_size_request(text_, TEXT_WIDTH, -1);
    gtk_misc_set_alignment(GTK_MISC(text_), 0, 0);
    gtk_misc_set_padding(GTK_MISC(text_), 16, 16);
    gtk_box_pack_start(GTK_BOX(box), image_, TRUE, TRUE, 0);
    gtk_box_pack_start(GTK_BOX(box), text_, TRUE, TRUE, 0);
    gtk_container_add(GTK_CONTAINER(window_), box);
    gtk_widget_show(box);
}

Watcher::~Watcher()
{
    if (running_)
        g_subprocess_force_exit(running_.get());
}

void Watcher::run()
{
    draw();
    gtk_widget_show(window_);
    gtk_main();
}

// In a process of its own, which a screen that ends the panel ends instead of the watching. The window goes
// on meanwhile; what is saved until the picture is there asks for another one.
void Watcher::draw()
{
    if (running_) {
        again_ = true;
        return;
    }
    again_ = false;
    const std::string picture = (folder_.path() / "picture.png").string();
    std::vector<std::string> words = {"/proc/self/exe", "render", job_.source, "-o", picture};
    if (!job_.pattern.empty())
        words.push_back(job_.pattern);
    words.insert(words.end(), job_.arguments.begin(), job_.arguments.end());
    start(words, onDrawn);
}

void Watcher::check()
{
    start({"/proc/self/exe", "check", job_.source}, onChecked);
}

void Watcher::start(const std::vector<std::string>& words, GAsyncReadyCallback ended)
{
    std::vector<const char*> arguments;
    for (const std::string& word : words)
        arguments.push_back(word.c_str());
    arguments.push_back(nullptr);

    GError* problem = nullptr;
    const auto pipes =
        static_cast<GSubprocessFlags>(G_SUBPROCESS_FLAGS_STDOUT_SILENCE | G_SUBPROCESS_FLAGS_STDERR_PIPE);
    running_.reset(g_subprocess_newv(arguments.data(), pipes, &problem));
    if (!running_) {
        show(problem->message, false);
        g_error_free(problem);
        return;
    }
    g_subprocess_communicate_utf8_async(running_.get(), nullptr, nullptr, ended, this);
}

// What a process has said that has ended.
std::string ErrorsOf(GObject* process, GAsyncResult* result)
{
    char* errors = nullptr;
    g_subprocess_communicate_utf8_finish(G_SUBPROCESS(process), result, nullptr, &errors, nullptr);
    std::string text = errors ? errors : "";
    g_free(errors);
    return text;
}

void Watcher::onDrawn(GObject* process, GAsyncResult* result, gpointer self)
{
    auto* watcher = static_cast<Watcher*>(self);
    const std::string errors = ErrorsOf(process, result);
    const bool succeeded = g_subprocess_get_successful(G_SUBPROCESS(process)) != FALSE;
    const std::string picture = (watcher->folder_.path() / "picture.png").string();
    const Owned<GdkPixbuf> drawn(succeeded ? gdk_pixbuf_new_from_file(picture.c_str(), nullptr) : nullptr);
    if (!drawn) {
        watcher->show(errors.empty() ? "The picture could not be made." : errors, false);
        watcher->finish();
        return;
    }
    gtk_image_set_from_pixbuf(GTK_IMAGE(watcher->image_), drawn.get());
    watcher->show("", true);
    watcher->check();
}

void Watcher::onChecked(GObject* process, GAsyncResult* result, gpointer self)
{
    auto* watcher = static_cast<Watcher*>(self);
    watcher->show(ErrorsOf(process, result), true);
    watcher->finish();
}

void Watcher::finish()
{
    running_.reset();
    if (again_)
        draw();
}

// The first lines of a text.
std::string Shortened(const std::string& text)
{
    std::size_t end = 0;
    for (int line = 0; line < MOST_LINES && end != std::string::npos; ++line)
        end = text.find('\n', end ? end + 1 : 0);
    return end == std::string::npos || end + 1 >= text.size() ? text : text.substr(0, end) + "\n...";
}

// A text beside the picture, or in its place.
void Watcher::show(const std::string& text, bool picture)
{
    gtk_label_set_text(GTK_LABEL(text_), Shortened(text).c_str());
    (text.empty() ? gtk_widget_hide : gtk_widget_show)(text_);
    (picture ? gtk_widget_show : gtk_widget_hide)(image_);
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
    if (!std::filesystem::is_directory(job.source)) {
        diagnostics.error({job.source, 0}, "can not be watched. Check that it is there and readable.");
        return false;
    }
    Watcher watcher(job);
    watcher.run();
    return true;
}

} // namespace ptn
