#include "base/EucText.h"
#include "tools/ptn/check/Check.h"
#include "tools/ptn/model/PictureFile.h"

namespace ptn
{

void CheckPictures(const ProjectSource& project, const std::filesystem::path& folder,
                   Diagnostics& diagnostics)
{
    // Pictures are scaled at each drawing, which is slow with one that is much larger than all that is shown.
    constexpr long long TOO_MANY_DISPLAYS = 16;
    const std::optional<SIZE> display = DisplaySize(project);
    for (const auto& [name, bytes] : project.bitmaps) {
        const Place place{(folder / EucToUtf8(name)).string(), 0};
        std::string problem;
        const DecodedPicture picture = DecodePicture(bytes, problem);
        if (!picture) {
            diagnostics.error(place, "", "not a picture that the panel can show: {}. Save it anew.", problem);
            continue;
        }
        const long long width = gdk_pixbuf_get_width(picture.get());
        const long long height = gdk_pixbuf_get_height(picture.get());
        if (display && width * height > TOO_MANY_DISPLAYS * display->cx * display->cy)
            diagnostics.warning(place,
                                fmt::format("has {} x {} pixels, on a display of {} x {}. Scale it down.",
                                            width, height, display->cx, display->cy));
    }
}

} // namespace ptn
