// Owning pointers to the toolkit's reference-counted objects.
#pragma once

#include <gdk-pixbuf/gdk-pixbuf.h>
#include <gdk/gdk.h>
#include <memory>

namespace tessary
{

struct ObjectUnref {
    void operator()(gpointer object) const { g_object_unref(object); }
};

template <class T> using ObjectPtr = std::unique_ptr<T, ObjectUnref>;

using GcPtr = ObjectPtr<GdkGC>;
using PixmapPtr = ObjectPtr<GdkPixmap>;
using BitmapPtr = ObjectPtr<GdkBitmap>;
using PixbufPtr = ObjectPtr<GdkPixbuf>;

struct FontUnref {
    void operator()(GdkFont* font) const { gdk_font_unref(font); }
};
using FontPtr = std::unique_ptr<GdkFont, FontUnref>;

struct CursorUnref {
    void operator()(GdkCursor* cursor) const { gdk_cursor_unref(cursor); }
};
using CursorPtr = std::unique_ptr<GdkCursor, CursorUnref>;

} // namespace tessary
