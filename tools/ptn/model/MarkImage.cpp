#include "tools/ptn/model/MarkImage.h"

#include "tools/ptn/common/Files.h"
#include "tools/ptn/model/PictureFile.h"

namespace ptn
{

namespace
{

// What a pixel counts on a scale of 0 to 255, of which the lower half is dark.
bool IsDark(const guchar* pixel, bool alpha)
{
    if (alpha && pixel[3] < 128)
        return false;
    return 299 * pixel[0] + 587 * pixel[1] + 114 * pixel[2] < 128 * 1000;
}

} // namespace

std::optional<MARKDATA> ReadMarkImage(const std::filesystem::path& file, SIZE size, const Subject& what,
                                      const Place& place, Diagnostics& diagnostics)
{
    const auto unread = [&](const std::string& problem) {
        diagnostics.error(place, what, ": '{}' can not be read: {}. Give a PNG or XBM file.", file.string(),
                          problem);
        return std::nullopt;
    };
    const std::optional<std::string> bytes = ReadBytes(file);
    if (!bytes)
        return unread("it is no file, or larger than any picture");
    // Before it is decoded, so that nothing is decoded that is not wanted.
    const std::optional<PictureHead> head = ReadPictureHead(*bytes);
    if (head && head->width > 0 && (head->width != size.cx || head->height != size.cy)) {
        diagnostics.error(place, what,
                          ": '{}' has {} x {} pixels. Marks of this number have {} x {}; scale it, or choose "
                          "a number of another group.",
                          file.string(), head->width, head->height, size.cx, size.cy);
        return std::nullopt;
    }
    std::string problem;
    const DecodedPicture picture = DecodePicture(*bytes, problem);
    if (!picture)
        return unread(problem);
    const int width = gdk_pixbuf_get_width(picture.get());
    const int height = gdk_pixbuf_get_height(picture.get());
    if (width != size.cx || height != size.cy)
        return unread("its head tells another size than it has");
    MARKDATA mark{};
    const int channels = gdk_pixbuf_get_n_channels(picture.get());
    const int stride = gdk_pixbuf_get_rowstride(picture.get());
    const guchar* pixels = gdk_pixbuf_get_pixels(picture.get());
    for (int bit = 0; bit < width * height; ++bit) {
        const guchar* pixel = &pixels[bit / width * stride + bit % width * channels];
        if (IsDark(pixel, gdk_pixbuf_get_has_alpha(picture.get())))
            mark.mark[bit / 8] |= static_cast<BYTE>(1 << bit % 8);
    }
    return mark;
}

} // namespace ptn
