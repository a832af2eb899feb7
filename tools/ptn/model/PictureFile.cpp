#include "tools/ptn/model/PictureFile.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fmt/core.h>

namespace ptn
{

namespace
{

/// Most pixels of a picture: several times those of the largest display.
constexpr long long MOST_PIXELS = 16LL * 1024 * 1024;

bool BeginsWith(const std::string& bytes, const std::string& begin)
{
    return bytes.compare(0, begin.size(), begin) == 0;
}

/// Numbers of a picture's head; 0 beyond its end.
class Head
{
  public:
    explicit Head(const std::string& bytes) : bytes_(bytes) {}

    unsigned byte(std::size_t at) const
    {
        return at < bytes_.size() ? static_cast<unsigned char>(bytes_[at]) : 0;
    }
    long long high(std::size_t at, int count) const
    {
        long long value = 0;
        for (int i = 0; i < count; ++i)
            value = value << 8 | byte(at + static_cast<std::size_t>(i));
        return value;
    }
    long long low(std::size_t at, int count) const
    {
        long long value = 0;
        for (int i = count - 1; i >= 0; --i)
            value = value << 8 | byte(at + static_cast<std::size_t>(i));
        return value;
    }

  private:
    const std::string& bytes_;
};

PictureHead BmpHead(const Head& head)
{
    constexpr int OLD_HEADER = 12;
    if (head.low(14, 4) == OLD_HEADER)
        return {"bmp", head.low(18, 2), head.low(20, 2)};
    // A negative height tells that it begins at the top.
    const auto height = static_cast<std::int32_t>(static_cast<std::uint32_t>(head.low(22, 4)));
    return {"bmp", head.low(18, 4), std::llabs(height)};
}

// The size stands in the first frame header; before it are segments of other kinds.
PictureHead JpegHead(const Head& head, std::size_t size)
{
    for (std::size_t at = 2; at + 9 < size;) {
        const unsigned marker = head.byte(at + 1);
        if (head.byte(at) != 0xFF)
            break;
        const bool table = marker == 0xC4 || marker == 0xC8 || marker == 0xCC;
        if (marker >= 0xC0 && marker <= 0xCF && !table)
            return {"jpeg", head.high(at + 7, 2), head.high(at + 5, 2)};
        at += marker == 0xFF ? 1 : 2 + static_cast<std::size_t>(head.high(at + 2, 2));
    }
    return {"jpeg", 0, 0};
}

PictureHead XpmHead(const std::string& bytes)
{
    long long width = 0;
    long long height = 0;
    const std::size_t quote = bytes.find('"');
    if (quote != std::string::npos)
        std::sscanf(bytes.c_str() + quote + 1, "%9lld %9lld", &width, &height);
    return {"xpm", width, height};
}

// "#define name_width 16" among its first lines.
long long XbmSide(const std::string& bytes, const std::string& side)
{
    const std::size_t at = bytes.find(side);
    return at == std::string::npos ? 0 : std::strtol(bytes.c_str() + at + side.size(), nullptr, 10);
}

// What the decoders take for whole although its end is missing.
bool IsCutOff(const PictureHead& picture, const std::string& bytes)
{
    const std::string format = picture.format;
    if (format == "png")
        return bytes.find("IEND") == std::string::npos;
    if (format == "jpeg")
        return bytes.rfind("\xFF\xD9") == std::string::npos;
    if (format == "gif")
        return bytes.find_last_not_of('\0') == std::string::npos ||
               bytes[bytes.find_last_not_of('\0')] != ';';
    if (format == "bmp") {
        // Its size, where its pixels begin, and the size of its second header: the decoder makes room for all
        // that.
        const Head head(bytes);
        return std::max({head.low(2, 4), head.low(10, 4), head.low(14, 4)}) >
               static_cast<long long>(bytes.size());
    }
    return format == "xpm" && bytes.find("};") == std::string::npos;
}

} // namespace

std::optional<PictureHead> ReadPictureHead(const std::string& bytes)
{
    const Head head(bytes);
    if (BeginsWith(bytes, "\x89PNG\r\n\x1A\n"))
        return PictureHead{"png", head.high(16, 4), head.high(20, 4)};
    if (BeginsWith(bytes, "GIF87a") || BeginsWith(bytes, "GIF89a"))
        return PictureHead{"gif", head.low(6, 2), head.low(8, 2)};
    if (BeginsWith(bytes, "\xFF\xD8\xFF"))
        return JpegHead(head, bytes.size());
    if (BeginsWith(bytes, "BM"))
        return BmpHead(head);
    if (BeginsWith(bytes, "/* XPM */"))
        return XpmHead(bytes);
    if (BeginsWith(bytes, "#define ") && bytes.find("_bits") != std::string::npos)
        return PictureHead{"xbm", XbmSide(bytes, "_width"), XbmSide(bytes, "_height")};
    return std::nullopt;
}

DecodedPicture DecodePicture(const std::string& bytes, std::string& problem)
{
    const std::optional<PictureHead> head = ReadPictureHead(bytes);
    if (!head) {
        problem = bytes.empty() ? "it is empty" : "it is no PNG, JPEG, BMP, XPM, XBM or GIF picture";
        return nullptr;
    }
    if (head->width > 0 && head->height > 0 && head->width > MOST_PIXELS / head->height) {
        problem = fmt::format("it has {} x {} pixels, more than any display", head->width, head->height);
        return nullptr;
    }
    if (head->width <= 0 || head->height <= 0 || IsCutOff(*head, bytes)) {
        problem = "its end is missing";
        return nullptr;
    }
    GError* error = nullptr;
    GdkPixbufLoader* loader = gdk_pixbuf_loader_new_with_type(head->format, &error);
    const auto* data = reinterpret_cast<const guchar*>(bytes.data());
    DecodedPicture picture;
    bool whole = loader && gdk_pixbuf_loader_write(loader, data, bytes.size(), &error);
    // It has to be closed in any case, and tells of only one error.
    if (loader)
        whole = gdk_pixbuf_loader_close(loader, whole ? &error : nullptr) && whole;
    if (GdkPixbuf* decoded = whole ? gdk_pixbuf_loader_get_pixbuf(loader) : nullptr)
        picture.reset(GDK_PIXBUF(g_object_ref(decoded)));
    if (!picture)
        problem = error ? error->message : "it can not be decoded";
    g_clear_error(&error);
    if (loader)
        g_object_unref(loader);
    return picture;
}

} // namespace ptn
