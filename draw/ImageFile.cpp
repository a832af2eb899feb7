#include "draw/ImageFile.h"

#include "base/Constants.h"
#include "base/Limits.h"
#include "draw/Resource.h"
#include "draw/ResourceLoad.h"
#include "log/Category.h"
#include "log/Logfile.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <set>
#include <sstream>
#include <string_view>
#include <sys/stat.h>
#include <tuple>
#include <vector>

namespace tessary
{

namespace
{

/// Most pixels of a bitmap file; a larger one counts as damaged.
std::int64_t LargestImage()
{
    const std::int64_t display = std::int64_t{gdk_screen_width()} * gdk_screen_height();
    return PICTURE_SCREENS * std::max(display, std::int64_t{DispSizeX} * DispSizeY);
}

/// Bytes at the beginning of a text file in which its size stands.
constexpr std::size_t TEXT_BEGINNING = 16384;

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

/// How a file in the format XPM or XBM, which the toolkit measures only by decoding them, begins.
std::string BeginningOf(const std::string& path)
{
    std::string text(TEXT_BEGINNING, '\0');
    std::ifstream file(path, std::ios::binary);
    file.read(text.data(), static_cast<std::streamsize>(text.size()));
    text.resize(static_cast<std::size_t>(file.gcount()));
    return text;
}

/// The size that an XPM file claims in its first text, which comments may precede.
std::optional<SIZE> XpmSize(const std::string& text)
{
    std::size_t at = std::min(text.find('{'), text.size());
    for (std::size_t comment = text.find("/*", at); comment < text.find('"', at);
         comment = text.find("/*", at))
        at = std::min(text.find("*/", comment + 2), text.size());
    SIZE size{};
    at = text.find('"', at);
    if (at == std::string::npos || std::sscanf(text.c_str() + at + 1, "%d %d", &size.cx, &size.cy) != 2)
        return std::nullopt;
    return size;
}

bool EndsWith(const std::string& name, const std::string& end)
{
    return name.size() >= end.size() && name.compare(name.size() - end.size(), end.size(), end) == 0;
}

/// The size that an XBM file claims in its lines "#define NAME_width 16".
std::optional<SIZE> XbmSize(const std::string& text)
{
    SIZE size{};
    std::istringstream lines(text);
    std::string define;
    std::string name;
    int value = 0;
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        if (!(words >> define >> name >> value) || define != "#define")
            continue;
        if (EndsWith(name, "width"))
            size.cx = value;
        else if (EndsWith(name, "height"))
            size.cy = value;
    }
    return size;
}

/// The size of an image by its header, before anything is decoded.
std::optional<SIZE> SizeOf(const std::string& path)
{
    const std::string text = BeginningOf(path);
    if (text.compare(0, 9, "/* XPM */") == 0)
        return XpmSize(text);
    if (text.compare(0, 7, "#define") == 0)
        return XbmSize(text);
    SIZE size{};
    if (!gdk_pixbuf_get_file_info(path.c_str(), &size.cx, &size.cy))
        return std::nullopt;
    return size;
}

bool Fits(const SIZE& size)
{
    return size.cx > 0 && size.cy > 0 && std::int64_t{size.cx} * size.cy <= LargestImage();
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
    if (!MarkOf(path) || !HasImageFormat(path))
        return nullptr;
    const std::optional<SIZE> size = SizeOf(path);
    if (!size || !Fits(*size))
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

namespace
{

void ReportOnce(const char* format, const char* name)
{
    if (missing.size() >= MOST_MISSING || !missing.insert(name).second)
        return;
    char text[SIZE_LOGMESG2 + 2];
    std::snprintf(text, sizeof text, format, name);
    LogfileWrite(CATEGORY_DRAW, text, nullptr, 0);
}

} // namespace

bool StaysInFolder(const std::string& folder, const std::string& name)
{
    namespace fs = std::filesystem;
    const fs::path inner(name);
    if (inner.is_absolute() || std::find(inner.begin(), inner.end(), "..") != inner.end())
        return false;
    std::error_code absent;
    const fs::path file = fs::canonical(folder + "/" + name, absent);
    const fs::path home = absent ? fs::path() : fs::canonical(folder, absent);
    return absent || std::mismatch(home.begin(), home.end(), file.begin(), file.end()).first == home.end();
}

void ReportMissing(const char* name)
{
    ReportOnce("ビットマップの読込みに失敗 [%s]", name);
}

void ReportOutside(const char* name)
{
    ReportOnce("ビットマップ名がフォルダ外を指す [%s]", name);
}

} // namespace tessary
