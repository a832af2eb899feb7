#include "tests/support/Golden.h"

#include "tests/support/Program.h"
#include "tests/support/Wishes.h"

#include <algorithm>
#include <filesystem>
#include <gdk/gdkx.h>

namespace fs = std::filesystem;

namespace
{

constexpr std::uint32_t DIFFERENT = 0xFF0000;

/// What the pixels depend on beside this project.
std::string versions()
{
    std::string text = std::string("gdk-pixbuf ") + gdk_pixbuf_version;
    if (GdkDisplay* display = gdk_display_get_default()) {
        Display* server = GDK_DISPLAY_XDISPLAY(display);
        text += std::string(", ") + ServerVendor(server) + " " + std::to_string(VendorRelease(server));
    }
    return text;
}

std::uint32_t pale(std::uint32_t rgb)
{
    const std::uint32_t brightness = ((rgb >> 16 & 0xFF) + (rgb >> 8 & 0xFF) + (rgb & 0xFF)) / 3;
    return (192 + brightness / 4) * 0x010101;
}

} // namespace

Picture difference(const Picture& drawn, const Picture& expected)
{
    Picture result(std::max(drawn.width(), expected.width()), std::max(drawn.height(), expected.height()),
                   DIFFERENT);
    for (int y = 0; y < std::min(drawn.height(), expected.height()); y++)
        for (int x = 0; x < std::min(drawn.width(), expected.width()); x++)
            if (drawn.at(x, y) == expected.at(x, y))
                result.set(x, y, pale(drawn.at(x, y)));
    return result;
}

Goldens::Goldens(std::string folder, std::string results, bool renew)
    : folder_(std::move(folder)), results_(std::move(results)), renew_(renew)
{
}

std::string Goldens::goldenFile(const std::string& name) const
{
    return folder_ + "/" + name + ".png";
}

std::string Goldens::actualFile(const std::string& name) const
{
    return results_ + "/" + name + ".actual.png";
}

std::string Goldens::diffFile(const std::string& name) const
{
    return results_ + "/" + name + ".diff.png";
}

testing::AssertionResult Goldens::renewed(const Picture& picture, const std::string& name) const
{
    std::error_code ignored;
    fs::create_directories(fs::path(goldenFile(name)).parent_path(), ignored);
    if (!picture.save(goldenFile(name), versions()))
        return testing::AssertionFailure() << "can not write " << goldenFile(name);
    return testing::AssertionFailure()
           << "renewed " << goldenFile(name) << ", which fails on purpose: look at the picture, then run "
           << "the tests again without TESSARY_RENEW_GOLDENS";
}

testing::AssertionResult Goldens::check(const Picture& picture, const std::string& name) const
{
    std::string madeWith;
    const auto golden = Picture::load(goldenFile(name), &madeWith);
    const testing::AssertionResult alike =
        golden ? same(picture, *golden) : testing::AssertionFailure() << "there is no " << goldenFile(name);
    std::error_code ignored;
    if (alike) {
        fs::remove(actualFile(name), ignored);
        fs::remove(diffFile(name), ignored);
        return alike;
    }
    if (renew_)
        return renewed(picture, name);

    testing::AssertionResult result = testing::AssertionFailure() << name << ": " << alike.message();
    fs::create_directories(fs::path(actualFile(name)).parent_path(), ignored);
    const auto leave = [&](const char* what, const Picture& file, const std::string& path) {
        result << "\n  " << what << (file.save(path) ? path : "can not write " + path);
    };
    leave("drawn:      ", picture, actualFile(name));
    if (golden) {
        leave("difference: ", difference(picture, *golden), diffFile(name));
        result << "\n  golden:     " << goldenFile(name);
        if (madeWith != versions())
            result << "\n  The golden picture was made with " << madeWith << "; this is " << versions()
                   << ".";
    }
    return result << "\n  When the picture drawn is right, this makes it the golden one:\n    "
                  << RENEW_COMMAND;
}

void expectGolden(const Picture& picture, const std::string& name, const char* file, int line)
{
    const Goldens goldens(Program::sourceFolder() + "/tests/golden", Program::buildFolder() + "/golden",
                          renewsGoldens());
    const testing::AssertionResult result = goldens.check(picture, name);
    if (!result)
        ADD_FAILURE_AT(file, line) << result.message();
}
