#include "tests/support/Footprint.h"

#include <gdk/gdkx.h>
#include <memory>
#include <X11/extensions/XRes.h>

#ifdef __SANITIZE_ADDRESS__
#include <atomic>
// Of the sanitizer's interface, in a header that the compiler does not bring.
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*)(const volatile void*, std::size_t),
                                                         void (*)(const volatile void*));
extern "C" std::size_t __sanitizer_get_allocated_size(const volatile void*);
#else
#include <malloc.h>
#endif

namespace
{

struct Free {
    void operator()(void* memory) const { XFree(memory); }
};

#ifdef __SANITIZE_ADDRESS__

// The sanitizer's own sum includes freed memory that it keeps back to find late uses of it.
std::atomic<long> inUse{0};

void countMalloc(const volatile void*, std::size_t size)
{
    inUse += static_cast<long>(size);
}

void countFree(const volatile void* memory)
{
    if (memory)
        inUse -= static_cast<long>(__sanitizer_get_allocated_size(memory));
}

long heapInUse()
{
    static const int installed = __sanitizer_install_malloc_and_free_hooks(countMalloc, countFree);
    EXPECT_NE(installed, 0);
    return inUse;
}

#else

long heapInUse()
{
    const struct mallinfo2 state = mallinfo2();
    return static_cast<long>(state.uordblks + state.hblkhd);
}

#endif

std::string text(const std::map<std::string, unsigned>& resources)
{
    std::string list;
    for (const auto& [kind, count] : resources)
        list += " " + kind + " " + std::to_string(count);
    return list;
}

} // namespace

Footprint footprint()
{
    Footprint now;
    Display* display = GDK_DISPLAY_XDISPLAY(gdk_display_get_default());
    XSync(display, False);
    const XID own = GDK_WINDOW_XID(gdk_display_get_default_group(gdk_display_get_default()));
    {
        int count = 0;
        XResType* types = nullptr;
        const Status known = XResQueryClientResources(display, own, &count, &types);
        const std::unique_ptr<XResType, Free> owner(types);
        EXPECT_TRUE(known && count > 0) << "the server's extension X-Resource is missing";
        for (int i = 0; i < count; i++) {
            const std::unique_ptr<char, Free> kind(XGetAtomName(display, types[i].resource_type));
            now.resources[kind.get()] = types[i].count;
        }
    }
    XResQueryClientPixmapBytes(display, own, &now.pixmapBytes);
    now.heap = heapInUse();
    return now;
}

testing::AssertionResult holdsNoMore(const Footprint& after, const Footprint& before)
{
    if (after.resources != before.resources || after.pixmapBytes != before.pixmapBytes)
        return testing::AssertionFailure()
               << "on the server:" << text(after.resources) << ", " << after.pixmapBytes
               << " bytes of pixmaps; before:" << text(before.resources) << ", " << before.pixmapBytes;
    if (after.heap - before.heap > HEAP_SLACK)
        return testing::AssertionFailure()
               << "the heap has grown by " << after.heap - before.heap << " bytes";
    return testing::AssertionSuccess();
}
