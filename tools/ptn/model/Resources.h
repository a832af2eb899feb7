// Colours, fonts and marks of a project: their names, and the files "PtrnColr" and "PtrnMark".
#pragma once

#include "base/Constants.h"
#include "base/Types.h"
#include "draw/Resource.h"
#include "tools/ptn/model/NameTable.h"
#include "tools/ptn/yaml/Source.h"

#include <array>
#include <filesystem>
#include <set>
#include <string>

namespace ptn
{

class Resources
{
  public:
    Resources();

    /// Section "colors": "#RRGGBB", "#RRRRGGGGBBBB" on the display's own scale, or [red, green, blue] as they
    /// are stored.
    void readColors(const Source& section, Diagnostics& diagnostics);
    /// Section "fonts": the X name of a font set, or a list with one for each language, of which some may be
    /// empty.
    void readFonts(const Source& section, Diagnostics& diagnostics);
    /// Section "marks": the picture, one line per row, "." clear and "X" set; or "image", a PNG or XBM file
    /// below `folder`; or "bytes", all 512 of them in hexadecimal digits.
    void readMarks(const Source& section, const std::filesystem::path& folder, Diagnostics& diagnostics);

    const NameTable& colors() const { return colors_; }
    const NameTable& fonts() const { return fonts_; }
    const NameTable& marks() const { return marks_; }

    /// Cell of a font in pixels; (0, 0) for a number that is not defined.
    SIZE fontCell(int font) const;
    /// The X names of a font number in EUC-JP, one per language; empty when it is not defined.
    const std::array<std::string, 3>& fontNames(int font) const { return fontNames_.at(font); }

    /// Where a font is defined; nowhere in a compiled project.
    const Place& fontPlace(int font) const { return fontPlaces_.at(font); }

    /// The file "PtrnColr".
    std::string colorBytes() const;
    /// The file "PtrnMark".
    std::string markBytes() const;

    /// The reverse. Names are made up for the numbers in `used` and for all that are not black or blank.
    void loadColors(const std::string& bytes, const std::set<int>& used);
    void loadMarks(const std::string& bytes, const std::set<int>& used);
    /// @param names  EUC-JP, one per language
    /// @return whether such names can stand in a source
    bool loadFont(int number, const std::array<std::string, 3>& names);

    /// The sections as sources have them; empty without entries.
    std::string colorsYaml() const;
    std::string fontsYaml() const;
    std::string marksYaml() const;

  private:
    NameTable colors_{"color", CONT_COLR};
    NameTable fonts_{"font", CONT_FONT};
    NameTable marks_{"mark", CONT_MARK};
    std::array<COLRDATA, CONT_COLR> colorData_{};
    std::array<std::array<std::string, 3>, CONT_FONT> fontNames_;
    std::array<SIZE, CONT_FONT> fontCells_{};
    std::array<Place, CONT_FONT> fontPlaces_;
    std::array<MARKDATA, CONT_MARK> markData_{};
};

} // namespace ptn
