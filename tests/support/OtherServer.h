// An X server beside that of the tests: of another size or depth, or one that can be taken away.
#pragma once

#include "tests/support/Picture.h"

#include <string>
#include <sys/types.h>

struct _XDisplay;

class OtherServer
{
  public:
    /// @param screen  width x height x depth, as Xvfb takes it
    /// @param name    of the display, such as ":7"; by default one that is free
    explicit OtherServer(const std::string& screen = "1280x1024x24", const std::string& name = "");
    ~OtherServer();
    OtherServer(const OtherServer&) = delete;
    OtherServer& operator=(const OtherServer&) = delete;

    /// Of the display, such as ":7"; empty when no server has come up.
    const std::string& name() const { return name_; }
    void end();
    /// Serves nobody until it goes on.
    void stop() const;
    void goOn() const;

  private:
    pid_t pid_ = -1;
    std::string name_;
};

/// A user at another server.
class OtherUser
{
  public:
    explicit OtherUser(const std::string& display);
    ~OtherUser();
    OtherUser(const OtherUser&) = delete;
    OtherUser& operator=(const OtherUser&) = delete;

    operator _XDisplay*() const { return display_; }
    int width() const;
    int height() const;
    /// What is visible, in eight bits a colour whatever the display has; by number where it has a palette.
    Picture picture(int x, int y, int width, int height) const;
    void click(int x, int y) const;
    /// Whether a window of that size is on the screen.
    bool shows(int width, int height) const;

  private:
    _XDisplay* display_;
};
