// The fields in FLTK: boxes with labels in a double-buffered window. With SERVER_FONTS the labels are drawn
// in the server's font of the same height, as FLTK does where it is built without smooth letters.
#include "bench/compare/Fields.h"

#include <cstring>
#include <FL/Fl.H>
#include <FL/Fl_Box.H>
#include <FL/Fl_Double_Window.H>
#include <FL/fl_draw.H>
#include <FL/x.H>
#include <vector>

namespace
{

Fl_Color Color(Rgb color)
{
    return fl_rgb_color(color.red, color.green, color.blue);
}

#ifdef SERVER_FONTS
class Field : public Fl_Box
{
  public:
    using Fl_Box::Fl_Box;

  private:
    void draw() override
    {
        static XFontStruct* const FONT = XLoadQueryFont(fl_display, SERVER_FONT_NAME);
        draw_box();
        fl_color(labelcolor());
        XSetFont(fl_display, fl_gc, FONT->fid);
        const int length = static_cast<int>(std::strlen(label()));
        XDrawString(fl_display, fl_window, fl_gc, x() + w() - XTextWidth(FONT, label(), length),
                    y() + FONT->ascent, label(), length);
    }
};
#else
using Field = Fl_Box;
#endif

Fl_Box* NewField(int field)
{
    auto* box = new Field(FL_FLAT_BOX, FieldLeft(field), FieldTop(field), FIELD_WIDTH, FIELD_HEIGHT, "");
    box->color(Color(FIELD_COLOR));
    box->labelcolor(Color(TEXT_COLOR));
    box->labelfont(FL_COURIER);
    box->labelsize(FONT_PIXELS);
    box->align(FL_ALIGN_RIGHT | FL_ALIGN_INSIDE);
    box->copy_label(FieldText(0, field).c_str());
    return box;
}

void Tick(void* data)
{
    Fl::repeat_timeout(TICK_MILLISECONDS / 1000.0, Tick, data);
    const auto& boxes = *static_cast<std::vector<Fl_Box*>*>(data);
    const int next = NextTick();
    const int tick = IsQuiet() ? 0 : next;
    static float shown[FIELD_COUNT];
    for (int field = 0; field < FIELD_COUNT; field++)
        if (shown[field] != FieldValue(tick, field)) { // a field that is the same is not touched
            shown[field] = FieldValue(tick, field);
            boxes[static_cast<std::size_t>(field)]->copy_label(FieldText(tick, field).c_str());
        }
}

} // namespace

int main()
{
    const std::string font = std::string(" ") + FONT_NAME; // the first character tells the style
    Fl::set_font(FL_COURIER, font.c_str());
    Fl_Double_Window window(0, 0, SCREEN_WIDTH, SCREEN_HEIGHT);
    window.color(Color(BODY_COLOR));
    std::vector<Fl_Box*> boxes;
    for (int field = 0; field < FIELD_COUNT; field++)
        boxes.push_back(NewField(field));
    window.end();
    window.show();
    Fl::add_timeout(TICK_MILLISECONDS / 1000.0, Tick, &boxes);
    return Fl::run();
}
