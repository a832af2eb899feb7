// Pictures as a panel takes them: PNG, JPEG, BMP, XPM, XBM and GIF.
#pragma once

#include <gdk-pixbuf/gdk-pixbuf.h>
#include <memory>
#include <optional>
#include <string>

namespace ptn
{

struct UnrefPicture {
    void operator()(GdkPixbuf* picture) const { g_object_unref(picture); }
};
using DecodedPicture = std::unique_ptr<GdkPixbuf, UnrefPicture>;

/// What a picture says of itself before it is decoded.
struct PictureHead {
    const char* format; ///< as the toolkit calls it
    long long width;
    long long height;
};

/// None for anything but the formats of a panel.
std::optional<PictureHead> ReadPictureHead(const std::string& bytes);

/// Decodes a picture of a sane size.
/// @param problem  receives why not, as a part of a sentence
/// @return null when it is damaged, cut off or larger than any display
DecodedPicture DecodePicture(const std::string& bytes, std::string& problem);

} // namespace ptn
