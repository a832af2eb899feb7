#include "tests/support/ScreenSize.h"

#include <string>
#include <X11/extensions/Xrandr.h>

void resizeScreen(Display* display, int width, int height)
{
    const Window root = DefaultRootWindow(display);
    XRRScreenResources* const resources = XRRGetScreenResources(display, root);
    std::string name = std::to_string(width) + "x" + std::to_string(height);
    XRRModeInfo info{};
    info.width = static_cast<unsigned>(width);
    info.height = static_cast<unsigned>(height);
    info.hTotal = info.width;
    info.vTotal = info.height;
    info.dotClock = 60UL * info.width * info.height;
    info.name = name.data();
    info.nameLength = static_cast<unsigned>(name.size());
    const RRMode mode = XRRCreateMode(display, root, &info);
    XRRAddOutputMode(display, resources->outputs[0], mode);
    XRRSetCrtcConfig(display, resources, resources->crtcs[0], CurrentTime, 0, 0, None, RR_Rotate_0, nullptr,
                     0);
    XRRSetScreenSize(display, root, width, height, width / 4, height / 4);
    XRRSetCrtcConfig(display, resources, resources->crtcs[0], CurrentTime, 0, 0, mode, RR_Rotate_0,
                     &resources->outputs[0], 1);
    XRRFreeScreenResources(resources);
    XSync(display, False);
}
