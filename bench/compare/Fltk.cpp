// The fields in FLTK: boxes with labels in a double-buffered window.
#include "bench/compare/Fields.h"

#include <FL/Fl.H>
#include <FL/Fl_Box.H>
#include <FL/Fl_Double_Window.H>
#include <vector>

namespace
{

Fl_Color Color(Rgb color)
{
    return fl_rgb_color(color.red, color.green, color.blue);
}

Fl_Box* NewField(int field)
{
    auto* box = new Fl_Box(FL_FLAT_BOX, FieldLeft(field), FieldTop(field), fieldWidth, fieldHeight, "");
    box->color(Color(fieldColor));
    box->labelcolor(Color(textColor));
    box->labelfont(FL_COURIER);
    box->labelsize(fontPixels);
    box->align(FL_ALIGN_RIGHT | FL_ALIGN_INSIDE);
    box->copy_label(FieldText(0, field).c_str());
    return box;
}

void Tick(void* data)
{
    Fl::repeat_timeout(tickMilliseconds / 1000.0, Tick, data);
    const auto& boxes = *static_cast<std::vector<Fl_Box*>*>(data);
    const int tick = NextTick();
    for (int field = 0; field < fieldCount; field++)
        boxes[static_cast<std::size_t>(field)]->copy_label(FieldText(tick, field).c_str());
}

} // namespace

int main()
{
    const std::string font = std::string(" ") + fontName; // the first character tells the style
    Fl::set_font(FL_COURIER, font.c_str());
    Fl_Double_Window window(0, 0, screenWidth, screenHeight);
    window.color(Color(bodyColor));
    std::vector<Fl_Box*> boxes;
    for (int field = 0; field < fieldCount; field++)
        boxes.push_back(NewField(field));
    window.end();
    window.show();
    Fl::add_timeout(tickMilliseconds / 1000.0, Tick, &boxes);
    return Fl::run();
}
