#include "draw/ImageFile.h"

#include "base/Constants.h"
#include "draw/ResourceLoad.h"
#include "log/Category.h"
#include "log/Logfile.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <optional>
#include <set>
#include <string_view>
#include <sys/stat.h>
#include <tuple>
#include <vector>

namespace tessary
{

namespace
{

/// Most pixels of a bitmap file; a larger one counts as damaged.
constexpr std::int64_t LARGEST_IMAGE = 100'000'000;

/// Most names of missing bitmaps that are remembered.
constexpr std::size_t MOST_MISSING = 1000;

std::set<std::string> missing; ///< bitmaps that the log has named

/// Images that are kept, and bytes of all their pixels together.
constexpr std::size_t MOST_KEPT = 16;
constexpr std::size_t MOST_KEPT_BYTES = std::size_t{64} * 1024 * 1024;

/// What tells a file from the one that was there before.
using FileMark = std::tuple<dev_t, ino_t, off_t, time_t, long>;

/// Nothing for what is no plain file.
std::optional<FileMark> MarkOf(const std::string& path)
{
    struct stat status = {};
    if (stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    return FileMark(status.st_dev, status.st_ino, status.st_size, status.st_mtim.tv_sec,
                    status.st_mtim.tv_nsec);
}

struct Kept {
    std::string path;
    FileMark mark;
    PixbufPtr image; ///< null for a file that is no image
};

std::vector<Kept> kept; ///< the one used last stands at the end

std::size_t BytesOf(const PixbufPtr& image)
{
    return image ? gdk_pixbuf_get_byte_length(image.get()) : 0;
}

/// Whether the file is a BMP whose header or pixels lie behind its end. The decoder makes room for all that
/// would stand before them, up to 4 GB, before it knows how large the picture is.
bool IsBeyond(std::string_view start, const std::string& path)
{
    struct stat status = {};
    if (start.substr(0, 2) != "BM" || stat(path.c_str(), &status) != 0)
        return false;
    for (const std::size_t place : {10, 14}) { // where the pixels begin; size of the second header
        std::uint32_t number = 0;
        if (start.size() < place + sizeof number)
            return true;
        std::memcpy(&number, start.data() + place, sizeof number);
        if (number > status.st_size)
            return true;
    }
    return false;
}

/// The formats that a panel needs, by how their files begin. Nothing else reaches a decoder, of which the
/// toolkit has many: some ask for gigabytes for a file of a few bytes.
bool HasImageFormat(const std::string& path)
{
    static constexpr std::string_view BEGINNINGS[] = {"\x89PNG\r\n", "\xFF\xD8\xFF", "GIF8", "BM",
                                                      "/* XPM */",   "#define",      "P1",   "P2",
                                                      "P3",          "P4",           "P5",   "P6"};
    char bytes[18] = "";
    std::ifstream file(path, std::ios::binary);
    file.read(bytes, sizeof bytes);
    const std::string_view start(bytes, static_cast<std::size_t>(file.gcount()));
    return !IsBeyond(start, path) &&
           std::any_of(std::begin(BEGINNINGS), std::end(BEGINNINGS), [&](std::string_view beginning) {
               return start.substr(0, beginning.size()) == beginning;
           });
}

PixbufPtr Shared(const PixbufPtr& image)
{
    return PixbufPtr(image ? GDK_PIXBUF(g_object_ref(image.get())) : nullptr);
}

void Keep(Kept loaded)
{
    std::size_t bytes = BytesOf(loaded.image);
    if (bytes > MOST_KEPT_BYTES)
        return;
    for (const Kept& one : kept)
        bytes += BytesOf(one.image);
    while (!kept.empty() && (kept.size() >= MOST_KEPT || bytes > MOST_KEPT_BYTES)) {
        bytes -= BytesOf(kept.front().image);
        kept.erase(kept.begin());
    }
    kept.push_back(std::move(loaded));
}

} // namespace

PixbufPtr FileImage(const std::string& path)
{
    int width = 0;
    int height = 0;
    if (!MarkOf(path) || !HasImageFormat(path) || !gdk_pixbuf_get_file_info(path.c_str(), &width, &height) ||
        std::int64_t{width} * height > LARGEST_IMAGE)
        return nullptr;
    return PixbufPtr(gdk_pixbuf_new_from_file(path.c_str(), nullptr));
}

PixbufPtr KeptImage(const std::string& path)
{
    const std::optional<FileMark> mark = MarkOf(path);
    if (!mark)
        return nullptr;
    const auto found =
        std::find_if(kept.begin(), kept.end(), [&](const Kept& one) { return one.path == path; });
    if (found != kept.end() && found->mark == *mark) {
        std::rotate(found, found + 1, kept.end());
        return Shared(kept.back().image);
    }
    if (found != kept.end())
        kept.erase(found);
    PixbufPtr image = FileImage(path);
    Keep({path, *mark, Shared(image)});
    return image;
}

void BitmapExit()
{
    missing.clear();
    kept.clear();
}

void ReportMissing(const char* name)
{
    if (missing.size() >= MOST_MISSING || !missing.insert(name).second)
        return;
    char text[SIZE_LOGMESG2 + 2];
    std::snprintf(text, sizeof text, "ビットマップの読込みに失敗 [%s]", name);
    LogfileWrite(CATEGORY_DRAW, text, nullptr, 0);
}

} // namespace tessary
