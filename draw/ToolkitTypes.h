// The toolkit's types by name, for headers that only pass pointers to them on.
#pragma once

using GdkDrawable = struct _GdkDrawable;
using GdkPixmap = struct _GdkDrawable;
using GdkWindow = struct _GdkDrawable;
using GdkFont = struct _GdkFont;
using GdkGC = struct _GdkGC;

using GdkEvent = union _GdkEvent;
using GdkEventButton = struct _GdkEventButton;
using GdkEventConfigure = struct _GdkEventConfigure;
using GdkEventCrossing = struct _GdkEventCrossing;
using GdkEventExpose = struct _GdkEventExpose;
using GdkEventKey = struct _GdkEventKey;
using GdkEventMotion = struct _GdkEventMotion;
using GdkEventScroll = struct _GdkEventScroll;

using GtkIMContext = struct _GtkIMContext;
using GtkWidget = struct _GtkWidget;
