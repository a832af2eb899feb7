// The marks: from bits to the pictures that are drawn, and to sources.
#include "base/EucText.h"
#include "config/FileCntl.h"
#include "config/Settings.h"
#include "draw/Resource.h"
#include "draw/ToolkitPtr.h"
#include "fuzz/Sections.h"
#include "fuzz/Target.h"

namespace
{

/// The file is long, and most marks are empty: an input is some of them, one of each size and place.
std::string MarkFile(const std::string& bytes)
{
    if (bytes.empty() || bytes[0] == 0)
        return bytes;
    std::string file(sizeof MarkData, '\0');
    std::size_t mark = static_cast<unsigned char>(bytes[0]);
    for (std::size_t at = 1; at < bytes.size(); at += SIZE_MARK, mark += 37)
        file.replace(mark % CONT_MARK * SIZE_MARK, std::min<std::size_t>(SIZE_MARK, bytes.size() - at), bytes,
                     at, SIZE_MARK);
    return file;
}

void Run(const std::string& bytes)
{
    const std::string file = MarkFile(bytes);
    fuzz::Project::own().write("ProjPath/PtrnMark", file);
    FileRead(ProjPath, "PtrnMark", MarkData, sizeof MarkData, 0, nullptr, 0);
    MarkDataSet();
    MarkDataInit();
    for (int mark = 0; mark < CONT_MARK; mark += 37) {
        tessary::CopyText(Mark_XPM[mark].data[1], ". c #000000");
        tessary::CopyText(Mark_XPM[mark].data[2], "X c #FFFFFF");
        const tessary::PixbufPtr picture(
            gdk_pixbuf_new_from_xpm_data(const_cast<const char**>(Mark_XPM[mark].mark)));
        fuzz::promise(picture != nullptr, "a mark is a picture");
    }
    fuzz::LoadSection("marks", file);
}

const fuzz::Target TARGET("marks", Run);

} // namespace
