#include "base/EucText.h"
#include "base/Limits.h"
#include "tools/ptn/check/Check.h"
#include "tools/ptn/model/PictureFile.h"

namespace ptn
{

using tessary::PICTURE_SCREENS;

void CheckPictures(const ProjectSource& project, const std::filesystem::path& folder,
                   Diagnostics& diagnostics)
{
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
        if (display && width * height > 1LL * PICTURE_SCREENS * display->cx * display->cy)
            diagnostics.warning(place,
                                fmt::format("has {} x {} pixels, on a display of {} x {}. Scale it down.",
                                            width, height, display->cx, display->cy));
    }
}

} // namespace ptn
