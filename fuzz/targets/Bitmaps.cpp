// A picture file, as the panel and the authoring tool decode it. The decoders are the toolkit's; no coverage
// guides through them.
#include "draw/ImageFile.h"
#include "fuzz/Target.h"
#include "tools/ptn/model/MarkImage.h"
#include "tools/ptn/model/PictureFile.h"

namespace
{

void Run(const std::string& bytes)
{
    fuzz::Project::own().write("picture", bytes);
    tessary::FileImage("picture");
    std::string problem;
    if (!ptn::DecodePicture(bytes, problem))
        fuzz::promise(!problem.empty(), "a picture that can not be decoded has a reason");
    ptn::Diagnostics diagnostics;
    ptn::ReadMarkImage("picture", {32, 32}, "mark", {"m", 1}, diagnostics);
}

const fuzz::Target TARGET("bitmaps", Run);

} // namespace
