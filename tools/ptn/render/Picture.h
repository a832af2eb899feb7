// Drawing off the screen, and pictures of what was drawn.
#pragma once

#include "draw/DrawCntl.h"
#include "tools/ptn/common/Diagnostics.h"

#include <filesystem>
#include <gdk-pixbuf/gdk-pixbuf.h>
#include <memory>
#include <vector>

namespace ptn
{

struct PictureUnref {
    void operator()(GdkPixbuf* picture) const { g_object_unref(picture); }
};
using PicturePtr = std::unique_ptr<GdkPixbuf, PictureUnref>;

/// Connects to the display that $DISPLAY names. @return false when there is none
bool OpenDisplay();

/// A back buffer as a window has it.
class Pixmap
{
  public:
    Pixmap(int width, int height);
    ~Pixmap();
    Pixmap(const Pixmap&) = delete;
    Pixmap& operator=(const Pixmap&) = delete;

    CDraw* draw() const { return draw_.get(); }
    PicturePtr picture() const;

  private:
    int width_;
    int height_;
    GdkPixmap* pixmap_;
    PaintDrawPtr draw_;
};

/// Writes a PNG file.
/// @return false, with the reason reported, when it can not be written
bool SavePicture(GdkPixbuf* picture, const std::filesystem::path& file, Diagnostics& diagnostics);

/// All pictures side by side, in the order of reading, made as small as needed to be 400 pixels wide each.
PicturePtr ContactSheet(const std::vector<PicturePtr>& pictures);

} // namespace ptn
