#include "tests/support/OtherServer.h"

#include <csignal>
#include <cstdlib>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>
#include <X11/extensions/XTest.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

namespace
{

std::uint32_t eightBits(unsigned long pixel, unsigned long mask)
{
    const unsigned long value = (pixel & mask) >> __builtin_ctzl(mask);
    const unsigned long most = mask >> __builtin_ctzl(mask);
    return static_cast<std::uint32_t>((value * 255 + most / 2) / most);
}

} // namespace

OtherServer::OtherServer(const std::string& screen, const std::string& name)
{
    int ends[2];
    if (pipe(ends) != 0)
        return;
    pid_ = fork();
    if (pid_ == 0) {
        const std::string number = std::to_string(ends[1]);
        std::vector<const char*> words = {"Xvfb", "-displayfd",   number.c_str(), "-screen",
                                          "0",    screen.c_str(), "-nolisten",    "tcp"};
        if (!name.empty())
            words.push_back(name.c_str());
        words.push_back(nullptr);
        execvp("Xvfb", const_cast<char* const*>(words.data()));
        _exit(127);
    }
    close(ends[1]);
    char text[16] = "";
    for (std::size_t length = 0; length < sizeof text - 1 && read(ends[0], text + length, 1) == 1; ++length)
        if (text[length] == '\n')
            break;
    close(ends[0]);
    if (text[0])
        name_ = ":" + std::to_string(std::atoi(text));
}

OtherServer::~OtherServer()
{
    end();
}

void OtherServer::end()
{
    if (pid_ <= 0)
        return;
    kill(pid_, SIGKILL);
    waitpid(std::exchange(pid_, -1), nullptr, 0);
}

void OtherServer::stop() const
{
    kill(pid_, SIGSTOP);
}

void OtherServer::goOn() const
{
    kill(pid_, SIGCONT);
}

OtherUser::OtherUser(const std::string& display) : display_(XOpenDisplay(display.c_str())) {}

OtherUser::~OtherUser()
{
    XCloseDisplay(display_);
}

int OtherUser::width() const
{
    return DisplayWidth(display_, DefaultScreen(display_));
}

int OtherUser::height() const
{
    return DisplayHeight(display_, DefaultScreen(display_));
}

Picture OtherUser::picture(int x, int y, int width, int height) const
{
    Picture picture(width, height, 0);
    XImage* const image = XGetImage(display_, DefaultRootWindow(display_), x, y, static_cast<unsigned>(width),
                                    static_cast<unsigned>(height), AllPlanes, ZPixmap);
    const Visual* const visual = DefaultVisual(display_, DefaultScreen(display_));
    for (int row = 0; row < height; ++row) {
        for (int column = 0; column < width; ++column) {
            const unsigned long pixel = XGetPixel(image, column, row);
            // A display of eight bits has numbers of colours instead.
            picture.set(column, row,
                        visual->red_mask == 0 ? static_cast<std::uint32_t>(pixel)
                                              : eightBits(pixel, visual->red_mask) << 16 |
                                                    eightBits(pixel, visual->green_mask) << 8 |
                                                    eightBits(pixel, visual->blue_mask));
        }
    }
    XDestroyImage(image);
    return picture;
}

void OtherUser::click(int x, int y) const
{
    XTestFakeMotionEvent(display_, -1, x, y, CurrentTime);
    XTestFakeButtonEvent(display_, 1, True, CurrentTime);
    XTestFakeButtonEvent(display_, 1, False, CurrentTime);
    XSync(display_, False);
}

bool OtherUser::shows(int width, int height) const
{
    Window root = 0;
    Window parent = 0;
    Window* children = nullptr;
    unsigned count = 0;
    XQueryTree(display_, DefaultRootWindow(display_), &root, &parent, &children, &count);
    bool shown = false;
    for (unsigned i = 0; i < count; ++i) {
        XWindowAttributes attributes;
        shown = shown || (XGetWindowAttributes(display_, children[i], &attributes) &&
                          attributes.map_state == IsViewable && attributes.width == width &&
                          attributes.height == height);
    }
    if (children)
        XFree(children);
    return shown;
}
